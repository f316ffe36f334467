// The job's history and consumption: the JDF node's AuditPool (process
// runs, phase times, notification audits, the Created, Modified and
// Deleted audits, audit-only media) and the consumption that UsageCounter
// and Ink resources record with their ResourceAudits.
#ifndef ZUNDO_READ_AUDIT_POOL_READER_H
#define ZUNDO_READ_AUDIT_POOL_READER_H

#include "read/reader_conversions.h"
#include "xml/jdf_lists.h"

// Reads the phase times, then every audit of the pool in order. mediaList
// holds the Media resources that audit-only MediaLinks name. ZUNDO_ERROR
// when the pool's or an audit's children or attributes cannot be had, or a
// modification cannot be made; what was read before stays on the job.
zundo_status_t getAuditPoolElement(xercesc::DOMElement *auditPool, zundo_int_object_s *ticket,
                                   IdElement **mediaList);

// The attribute a Modified or Deleted audit's XPath names, with the value
// the XPath gives it, handed to setModifiedAttribute (no attribute for a
// path that names none). The status of setModifiedAttribute.
zundo_status_t readModifiedXPath(const char *xpath, zundo_modified_s *modified);

// One counter from a UsageCounter resource, its Input link and the
// ResourceAudit of that link, added to usageCounters (the job's
// "job-usage-counters", set once after the ResourcePool). Always ZUNDO_OK.
zundo_status_t readUsageCounterResource(xercesc::DOMElement *usageCounter,
                                        ListAppender *usageCounters);

// The ink consumption an Ink resource records: its Unit, the amounts of
// its Input link's AmountPool ("job-ink-usages") and the time of the
// ResourceAudit of that link. The Ink resource reader calls it.
void readInkUsages(xercesc::DOMElement *ink, zundo_int_object_s *job);

// Audit times. Where the writer had no time it wrote the zero time
// "0000-00-00T00:00:00+00:00", which reads as no time at all.
//
bool isZeroTime(const char *text);
// True when the element's attribute holds a date-time or the zero time;
// *out is the date-time (the caller's), null for the zero time.
bool readAuditTime(const xercesc::DOMElement *element, const char *name, zundo_date_time_s **out);
// Sets the object's date-time attribute from the element's audit time;
// nothing for no time.
void setAuditTime(zundo_int_object_s *object, const char *name, const xercesc::DOMElement *element,
                  const char *jdfName);
// The first ResourceAudit of the resource's JDF node with a child named
// linkName whose rRef is reference, or null.
const xercesc::DOMElement *findResourceAudit(const xercesc::DOMElement *resource,
                                             const char *linkName, const char *reference);

#endif
