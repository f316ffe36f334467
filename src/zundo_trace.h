// Trace helpers used throughout the library on top of zundotrace/zundo_trace.
#ifndef ZUNDO_TRACE_H
#define ZUNDO_TRACE_H

#include "zundo.h"

// Reports a failed allocation in `operation`; callers then return
// ZUNDO_OUT_OF_MEMORY.
void traceOutOfMemory(const char *operation);

// True while DEBUG_ZUNDO is defined and some sink would take a level-1
// message; lets hot paths skip building trace arguments.
bool traceDetailWanted();

#endif
