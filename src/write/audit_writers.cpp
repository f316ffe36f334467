// ProcessRun, PhaseTime and Notification audits, and the time stamps all
// audits carry.
#include "write/audit_writers.h"

#include <initializer_list>

#include "enums/audit_value_tables.h"
#include "enums/value_tables.h"
#include "write/audits.h"
#include "write/comments.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/process_types.h"
#include "zundo_trace.h"

namespace {

const void *firstValueOf(const FetchedAttribute &value) {
    zundo_int_attribute_s *attribute = value.attribute();
    resetIterator(attribute);
    return hasNextValue(attribute) ? nextValue(attribute) : nullptr;
}

void writeTextIfPresent(xercesc::DOMElement *element, const char *jdfName,
                        zundo_int_object_s *object, const char *attribute) {
    FetchedAttribute value(object, attribute);
    if (value.hasValue()) setAttributeTraced(element, jdfName, value.firstString());
}

void writeCodeIfKnown(xercesc::DOMElement *element, const char *jdfName,
                      zundo_int_object_s *object, const char *attribute,
                      const zundo_enum_pair_s *values) {
    const char *spelling = jdfNameForCode(values, FetchedAttribute(object, attribute).firstInt(0));
    if (spelling != nullptr) setAttributeTraced(element, jdfName, spelling);
}

void writeProcessRun(JDFWriteContext *ctx, zundo_int_object_s *run) {
    xercesc::DOMElement *audit = newAudit(ctx, "ProcessRun");
    if (audit == nullptr) return;
    writeTimeOrPlaceholder(audit, "End", run, "process-run-end");
    FetchedAttribute duration(run, "process-run-duration");
    if (const void *period = firstValueOf(duration)) {
        char text[ZUNDO_TIME_PERIOD_TEXT_SIZE];
        setAttributeTraced(
            audit, "Duration",
            toStringTimePeriod(text, static_cast<const zundo_time_period_s *>(period)));
    }
    writeTimeOrPlaceholder(audit, "Start", run, "process-run-start");
    writeTimeOrPlaceholder(audit, "TimeStamp", run, "process-run-time-stamp");
    writeCodeIfKnown(audit, "EndStatus", run, "process-run-end-status", processRunEndStatusValues);
    writeTimeIfPresent(audit, "SubmissionTime", run, "process-run-submission-time");
}

// The printer's marker or its RIP, by the phase's type.
void writePhaseModule(JDFWriteContext *ctx, xercesc::DOMElement *module, int type) {
    bool marker = type == 1;
    char index[kNumberTextSize];
    setAttributeTraced(module, "CombinedProcessIndex",
                       formatInteger(index, sizeof index,
                                     getCombinedProcessIndex(
                                         ctx, marker ? "DigitalPrinting" : "Rendering")));
    setAttributeTraced(module, "ModuleType", marker ? "Marker" : "RIP");
    setAttributeTraced(module, "StatusDetails", marker ? "Good" : "Processing");
    setAttributeTraced(module, "DeviceStatus", "Running");
    setAttributeTraced(module, "ModuleIndex", "0");
}

void writePhaseTime(JDFWriteContext *ctx, zundo_int_object_s *phase) {
    xercesc::DOMElement *audit = newAudit(ctx, "PhaseTime");
    if (audit == nullptr) return;
    xercesc::DOMElement *device = appendChildTraced(audit, "Device");
    xercesc::DOMElement *module = appendChildTraced(audit, "ModulePhase");
    setAttributeTraced(audit, "Status", "InProgress");
    writeTimeIfPresent(audit, "Start", phase, "phase-time-start-time");
    writeTimeIfPresent(audit, "End", phase, "phase-time-end-time");
    writeTimeOrPlaceholder(audit, "TimeStamp", phase, "phase-time-time-stamp");
    FetchedAttribute deviceId(phase, "phase-time-device-id");
    for (xercesc::DOMElement *element : {module, device})
        if (element != nullptr && deviceId.hasValue())
            setAttributeTraced(element, "DeviceID", deviceId.firstString());
    if (module != nullptr)
        writePhaseModule(ctx, module, FetchedAttribute(phase, "phase-time-type").firstInt(0));
}

// Texts and languages pair up by position: a reader gives each Comment's
// Language back to the text beside it.
void writeAuditComments(xercesc::DOMElement *audit, zundo_int_object_s *notification) {
    FetchedAttribute languages(notification, "notification-audit-language");
    zundo_int_attribute_s *languageList = languages.attribute();
    resetIterator(languageList);
    forEachValue(notification, "notification-audit-text", [&](void *text) {
        const char *language =
            hasNextValue(languageList) ? static_cast<const char *>(nextValue(languageList))
                                       : nullptr;
        addComment(audit, static_cast<const char *>(text), language, "Description");
    });
}

void writeNotificationAudit(JDFWriteContext *ctx, zundo_int_object_s *notification) {
    xercesc::DOMElement *audit = newAudit(ctx, "Notification");
    if (audit == nullptr) return;
    writeTimeOrPlaceholder(audit, "TimeStamp", notification, "notification-audit-time-stamp");
    writeCodeIfKnown(audit, "Class", notification, "notification-audit-class",
                     notificationAuditClassValues);
    writeAuditComments(audit, notification);
    FetchedAttribute errorId(notification, "notification-audit-error-id");
    xercesc::DOMElement *error = errorId.hasValue() ? appendChildTraced(audit, "Error") : nullptr;
    if (error != nullptr) setAttributeTraced(error, "ErrorID", errorId.firstString());
    writeTextIfPresent(audit, "JobID", notification, "notification-audit-job-id");
    writeTextIfPresent(audit, "JobPartID", notification, "notification-audit-job-part-id");
    writeTextIfPresent(audit, "QueueEntryID", notification, "notification-audit-queue-entry-id");
}

// The objects of a job list attribute, each written by write.
template <void (*write)(JDFWriteContext *, zundo_int_object_s *)>
void writeEachObject(JDFWriteContext *ctx, zundo_int_object_s *job, const char *name) {
    forEachValue(job, name, [ctx](void *object) {
        if (object != nullptr) write(ctx, static_cast<zundo_int_object_s *>(object));
    });
}

}  // namespace

xercesc::DOMElement *newAudit(JDFWriteContext *ctx, const char *name) {
    AuditPoolElementRecord record = {name, nullptr};
    return addAuditPoolElement(ctx, &record) == ZUNDO_OK ? record.element : nullptr;
}

void writeTimeIfPresent(xercesc::DOMElement *element, const char *jdfName,
                        zundo_int_object_s *object, const char *attribute) {
    FetchedAttribute value(object, attribute);
    if (const void *time = firstValueOf(value)) {
        char text[ZUNDO_DATE_TIME_TEXT_SIZE];
        setAttributeTraced(element, jdfName,
                           toStringDateTime(text, static_cast<const zundo_date_time_s *>(time)));
    }
}

void writeTimeOrPlaceholder(xercesc::DOMElement *element, const char *jdfName,
                            zundo_int_object_s *object, const char *attribute) {
    if (objectHasValue(object, attribute)) writeTimeIfPresent(element, jdfName, object, attribute);
    else setAttributeTraced(element, jdfName, kMissingTimeStamp);
}

void writePhaseTimes(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writePhaseTimes\n");
    writeEachObject<writePhaseTime>(ctx, job, "job-phase-times");
    zundo_trace("<< leaving writePhaseTimes\n");
}

void writeNotificationAudits(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeNotificationAudits\n");
    writeEachObject<writeNotificationAudit>(ctx, job, "job-notification-audits");
    zundo_trace("<< leaving writeNotificationAudits\n");
}

void writeProcessRuns(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeProcessRuns\n");
    writeEachObject<writeProcessRun>(ctx, job, "job-process-runs");
    zundo_trace("<< leaving writeProcessRuns\n");
}
