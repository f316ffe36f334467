// What a job reports and whom it tells: notifications, notification audits,
// phase times, process runs, usage counters and contact information.
//
// The notification extension registry holds no entries, so a notification
// is never followed by extension objects and stays the head of its chain.
#include <cstring>

#include "catalogue/audit_records.h"
#include "features/feature_object.h"

namespace {

const char kEvents[] = "notification-events";
const char kNoneEvent[] = "morvellan:None";

const zundo_rule_s auditRules[] = {
    {{kEvents}, ZUNDO_RULE_REQUIRED, "%s must be set.\n"},
    {{"phase-time-device-id"}, ZUNDO_RULE_NON_BLANK,
     "Attempted to set %s to %s, spaces or empty string are not allowed.\n"},
    {{"notification-audit-class", "phase-time-device-id", "phase-time-start-time",
      "phase-time-time-stamp", "phase-time-type", "process-run-end-status"},
     ZUNDO_RULE_REQUIRED},
    {{"usage-counter-actual-amount"}, ZUNDO_RULE_AT_LEAST, kAtLeastZeroIntegerText, 0},
    {},
};

// A list of several events may neither name "none" nor hold a blank event.
zundo_status_t validateNotification(void *, const char *name, zundo_int_attribute_s *attribute) {
    zundo_status_t status = applyRules(auditRules, name, attribute);
    if (status != ZUNDO_OK || std::strcmp(name, kEvents) != 0 || attribute->count < 2)
        return status;
    for (int i = 0; i < attribute->count; i++) {
        const char *event = static_cast<const char *>(valueAt(attribute, i));
        if (event == nullptr || std::strcmp(event, kNoneEvent) != 0) continue;
        zundo_trace("If %s contains the NONE value, it \t\t\t\t\t\t\tmust be the only event "
                    "specified. \n",
                    name);
        return ZUNDO_INVALID_ARGUMENT;
    }
    for (int i = 0; i < attribute->count; i++) {
        const char *event = static_cast<const char *>(valueAt(attribute, i));
        if (event == nullptr || (!isBlankText(event) && !containsBlank(event))) continue;
        zundo_trace("Attempted to set one of the values for %s to %s. Spaces are not allowed.\n",
                    name, event);
        return ZUNDO_INVALID_ARGUMENT;
    }
    return ZUNDO_OK;
}

}  // namespace

ZUNDO_FEATURE_TYPE(Notification, notification, NOTIFICATION, validateNotification, nullptr,
                   nullptr, compareNotificationAttrValue)

// A delivery type needs addressees, and addressees need a delivery type.
extern "C" zundo_status_t newNotification(zundo_int_object_s **out, const char *const *sendTo,
                                          const char *const *events, int deliveryType) {
    if (events == nullptr) return refuseConstruction(out, "eventsToDeliver can not be NULL\n");
    if ((sendTo == nullptr) != (deliveryType == 0))
        return refuseConstruction(out, "sendTo can only be NULL if deliveryType is ND_NOT_SET \n");
    return buildFeature<NotificationType>(
        out, "newNotification",
        {textsValue("notification-send-to", sendTo), textsValue(kEvents, events),
         integerValue("notification-delivery-type", deliveryType)});
}

ZUNDO_PLAIN_FEATURE(ContactInfo, contact_info, CONTACT_INFO, auditRules)
ZUNDO_FEATURE(NotificationAudit, notification_audit, NOTIFICATION_AUDIT, checkRules<auditRules>)

// An audit whose time stamp cannot be stored is still an audit.
extern "C" zundo_status_t newNotificationAudit(zundo_int_object_s **out, int auditClass,
                                               zundo_date_time_s *timeStamp) {
    zundo_status_t status = buildFeature<NotificationAuditType>(
        out, "newNotificationAudit", {integerValue("notification-audit-class", auditClass)});
    if (status == ZUNDO_OK &&
        setDateTimeAttribute(*out, "notification-audit-time-stamp", timeStamp) == ZUNDO_OK)
        return ZUNDO_OK;
    destroyDateTime(timeStamp);
    return status;
}

ZUNDO_FEATURE(PhaseTime, phase_time, PHASE_TIME, checkRules<auditRules>)

extern "C" zundo_status_t newPhaseTime(zundo_int_object_s **out, int type, const char *deviceId,
                                       zundo_date_time_s *startTime,
                                       zundo_date_time_s *timeStamp) {
    return buildFeature<PhaseTimeType>(
        out, "newPhaseTime",
        {textValue("phase-time-device-id", deviceId), integerValue("phase-time-type", type),
         ownedValue("phase-time-start-time", ZUNDO_KIND_DATE_TIME, startTime),
         ownedValue("phase-time-time-stamp", ZUNDO_KIND_DATE_TIME, timeStamp)});
}

ZUNDO_PLAIN_FEATURE(UsageCounter, usage_counter, USAGE_COUNTER, auditRules)
ZUNDO_FEATURE(ProcessRun, process_run, PROCESS_RUN, checkRules<auditRules>)

extern "C" zundo_status_t newProcessRun(zundo_int_object_s **out, zundo_date_time_s *end,
                                        int endStatus, zundo_date_time_s *start,
                                        zundo_date_time_s *timeStamp) {
    return buildFeature<ProcessRunType>(
        out, "newProcessRun",
        {integerValue("process-run-end-status", endStatus),
         ownedValue("process-run-end", ZUNDO_KIND_DATE_TIME, end),
         ownedValue("process-run-start", ZUNDO_KIND_DATE_TIME, start),
         ownedValue("process-run-time-stamp", ZUNDO_KIND_DATE_TIME, timeStamp)});
}
