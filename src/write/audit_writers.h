// The job's history and consumption as audits: Created, Modified and
// Deleted, ProcessRun, PhaseTime, Notification, and the ResourceAudits of
// the usage counters and ink usages. Audits are recorded as they are
// written and placed by time stamp at the end of the write.
#ifndef ZUNDO_WRITE_AUDIT_WRITERS_H
#define ZUNDO_WRITE_AUDIT_WRITERS_H

#include "write/object_values.h"
#include "write/writer_context.h"

// Writer steps, each for the job.
void writeUsageCounters(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeInkUsages(JDFWriteContext *ctx, zundo_int_object_s *job);
void writePhaseTimes(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeNotificationAudits(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeProcessRuns(JDFWriteContext *ctx, zundo_int_object_s *job);

// The Created audit from "job-created-by" and "job-create-date-time", or
// else from the job's first modification of type 1 (created).
void writeJobCreated(JDFWriteContext *ctx, zundo_int_object_s *job);
// A Modified or Deleted audit per modification of type 3 or 2.
void writeJobModified(JDFWriteContext *ctx, zundo_int_object_s *job);
// Job-level step: writeJobCreated, then writeJobModified.
void writeJobHistory(JDFWriteContext *ctx, zundo_int_object_s *job);

// Helpers the audit and node writers share.

// A new recorded audit, or null (traced).
xercesc::DOMElement *newAudit(JDFWriteContext *ctx, const char *name);
// Sets jdfName to the object's first date-time; nothing without one.
void writeTimeIfPresent(xercesc::DOMElement *element, const char *jdfName,
                        zundo_int_object_s *object, const char *attribute);
// The same, with the missing time stamp written when there is none.
void writeTimeOrPlaceholder(xercesc::DOMElement *element, const char *jdfName,
                            zundo_int_object_s *object, const char *attribute);

// Calls visit with each value of the object's attribute, in order.
template <typename Visit>
void forEachValue(zundo_int_object_s *object, const char *name, Visit visit) {
    FetchedAttribute values(object, name);
    zundo_int_attribute_s *list = values.attribute();
    resetIterator(list);
    while (hasNextValue(list)) visit(nextValue(list));
}

#endif
