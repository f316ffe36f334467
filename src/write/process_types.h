// The processes of the written JDF node: which of them the job needs, in
// what order, and the CombinedProcessIndex each one gets.
#ifndef ZUNDO_WRITE_PROCESS_TYPES_H
#define ZUNDO_WRITE_PROCESS_TYPES_H

#include "write/writer_context.h"

// Fills the process table from the job and sets Types on the root. Runs
// once per write, before any resource is made: later getters read the
// table and cannot add a process.
void writeTypes(JDFWriteContext *ctx, zundo_int_object_s *job);

// The CombinedProcessIndex of a process, -1 when it is not in Types or not
// a process of the table.
int getCombinedProcessIndex(const JDFWriteContext *ctx, const char *processName);

#endif
