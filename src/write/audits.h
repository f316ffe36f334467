// Audits of the written ticket. Writers add them in any order; the driver
// places them in the AuditPool by time stamp once every writer has run.
#ifndef ZUNDO_WRITE_AUDITS_H
#define ZUNDO_WRITE_AUDITS_H

#include "write/writer_context.h"

struct AuditPoolElementRecord {
    const char *name;              // in: the audit's element name
    xercesc::DOMElement *element;  // out: the new audit, null on failure
};

// A new audit element named record->name, recorded for sorting; the
// AuditPool is made with the first one.
zundo_status_t addAuditPoolElement(JDFWriteContext *ctx, AuditPoolElementRecord *record);

// Appends every recorded audit to the AuditPool, oldest TimeStamp first
// (a missing or unreadable TimeStamp before all others); at equal times
// ProcessRun audits follow the others and the rest keep their order. The
// records are released.
void sortAuditPool(JDFWriteContext *ctx);

#endif
