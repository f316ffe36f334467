// Attribute definition tables of the audit and notification objects. Rows stay sorted by name in
// byte order: lookups are binary searches with strcmp.
#include "catalogue/audit_records.h"

#include <cstddef>

const zundo_attribute_info_s notificationAttributes[] = {
    {"notification-comment", offsetof(zundo_notification_data_s, comment), ZUNDO_KIND_STRING, 0, 0},
    {"notification-delivery-type",
     offsetof(zundo_notification_data_s, deliveryType), ZUNDO_KIND_INTEGER, 1, 0},
    {"notification-events", offsetof(zundo_notification_data_s, events), ZUNDO_KIND_STRING, 0, 0},
    {"notification-language",
     offsetof(zundo_notification_data_s, language), ZUNDO_KIND_STRING, 0, 0},
    {"notification-send-to", offsetof(zundo_notification_data_s, sendTo), ZUNDO_KIND_STRING, 0, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int notificationAttributeRows =
    sizeof notificationAttributes / sizeof notificationAttributes[0];

const zundo_attribute_info_s notificationAuditAttributes[] = {
    {"notification-audit-class",
     offsetof(zundo_notification_audit_data_s, auditClass), ZUNDO_KIND_INTEGER, 1, 0},
    {"notification-audit-error-id",
     offsetof(zundo_notification_audit_data_s, errorId), ZUNDO_KIND_STRING, 0, 0},
    {"notification-audit-job-id",
     offsetof(zundo_notification_audit_data_s, jobId), ZUNDO_KIND_STRING, 0, 0},
    {"notification-audit-job-part-id",
     offsetof(zundo_notification_audit_data_s, jobPartId), ZUNDO_KIND_STRING, 0, 0},
    {"notification-audit-language",
     offsetof(zundo_notification_audit_data_s, language), ZUNDO_KIND_STRING, 0, 0},
    {"notification-audit-queue-entry-id",
     offsetof(zundo_notification_audit_data_s, queueEntryId), ZUNDO_KIND_STRING, 0, 0},
    {"notification-audit-text",
     offsetof(zundo_notification_audit_data_s, text), ZUNDO_KIND_STRING, 0, 0},
    {"notification-audit-time-stamp",
     offsetof(zundo_notification_audit_data_s, timeStamp), ZUNDO_KIND_DATE_TIME, 0, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int notificationAuditAttributeRows =
    sizeof notificationAuditAttributes / sizeof notificationAuditAttributes[0];

const zundo_attribute_info_s phaseTimeAttributes[] = {
    {"phase-time-device-id", offsetof(zundo_phase_time_data_s, deviceId), ZUNDO_KIND_STRING, 0, 0},
    {"phase-time-end-time", offsetof(zundo_phase_time_data_s, endTime), ZUNDO_KIND_DATE_TIME, 0, 0},
    {"phase-time-start-time",
     offsetof(zundo_phase_time_data_s, startTime), ZUNDO_KIND_DATE_TIME, 0, 0},
    {"phase-time-time-stamp",
     offsetof(zundo_phase_time_data_s, timeStamp), ZUNDO_KIND_DATE_TIME, 0, 0},
    {"phase-time-type", offsetof(zundo_phase_time_data_s, type), ZUNDO_KIND_INTEGER, 1, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int phaseTimeAttributeRows = sizeof phaseTimeAttributes / sizeof phaseTimeAttributes[0];

const zundo_attribute_info_s processRunAttributes[] = {
    {"process-run-duration",
     offsetof(zundo_process_run_data_s, duration), ZUNDO_KIND_TIME_PERIOD, 0, 0},
    {"process-run-end", offsetof(zundo_process_run_data_s, end), ZUNDO_KIND_DATE_TIME, 0, 0},
    {"process-run-end-status",
     offsetof(zundo_process_run_data_s, endStatus), ZUNDO_KIND_INTEGER, 1, 0},
    {"process-run-start", offsetof(zundo_process_run_data_s, start), ZUNDO_KIND_DATE_TIME, 0, 0},
    {"process-run-submission-time",
     offsetof(zundo_process_run_data_s, submissionTime), ZUNDO_KIND_DATE_TIME, 0, 0},
    {"process-run-time-stamp",
     offsetof(zundo_process_run_data_s, timeStamp), ZUNDO_KIND_DATE_TIME, 0, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int processRunAttributeRows = sizeof processRunAttributes / sizeof processRunAttributes[0];

const zundo_attribute_info_s usageCounterAttributes[] = {
    {"usage-counter-actual-amount",
     offsetof(zundo_usage_counter_data_s, actualAmount), ZUNDO_KIND_DOUBLE, 1, -1},
    {"usage-counter-colorants",
     offsetof(zundo_usage_counter_data_s, colorants), ZUNDO_KIND_INTEGER_LIST, 1, 0},
    {"usage-counter-id", offsetof(zundo_usage_counter_data_s, id), ZUNDO_KIND_STRING, 0, 0},
    {"usage-counter-media-sides",
     offsetof(zundo_usage_counter_data_s, mediaSides), ZUNDO_KIND_INTEGER_LIST, 1, 0},
    {"usage-counter-reason",
     offsetof(zundo_usage_counter_data_s, reason), ZUNDO_KIND_INTEGER, 1, 0},
    {"usage-counter-time-stamp",
     offsetof(zundo_usage_counter_data_s, timeStamp), ZUNDO_KIND_DATE_TIME, 0, 0},
    {"usage-counter-unit", offsetof(zundo_usage_counter_data_s, unit), ZUNDO_KIND_INTEGER, 1, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int usageCounterAttributeRows =
    sizeof usageCounterAttributes / sizeof usageCounterAttributes[0];

const zundo_attribute_info_s contactInfoAttributes[] = {
    {"contact-info-company", offsetof(zundo_contact_info_data_s, company), ZUNDO_KIND_STRING, 0, 0},
    {"contact-info-types",
     offsetof(zundo_contact_info_data_s, types), ZUNDO_KIND_INTEGER_LIST, 1, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int contactInfoAttributeRows = sizeof contactInfoAttributes / sizeof contactInfoAttributes[0];
