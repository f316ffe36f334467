// Data records and attribute definition tables of what a job reports and
// whom it tells: notifications, notification audits, phase times, process
// runs, usage counters and contact information.
//
// A record has one field per attribute, named after the attribute without
// its type's prefix; the table maps each attribute name onto its field.
#ifndef ZUNDO_AUDIT_RECORDS_H
#define ZUNDO_AUDIT_RECORDS_H

#include "zundo_object.h"

struct zundo_notification_data_s {
    char **comment;
    int deliveryType;
    char **events;
    char **language;
    char **sendTo;
};

extern const zundo_attribute_info_s notificationAttributes[];
extern const int notificationAttributeRows;

struct zundo_notification_audit_data_s {
    int auditClass;  // "notification-audit-class"; class is a keyword
    char **errorId;
    char **jobId;
    char **jobPartId;
    char **language;
    char **queueEntryId;
    char **text;
    zundo_date_time_s **timeStamp;
};

extern const zundo_attribute_info_s notificationAuditAttributes[];
extern const int notificationAuditAttributeRows;

struct zundo_phase_time_data_s {
    char **deviceId;
    zundo_date_time_s **endTime;
    zundo_date_time_s **startTime;
    zundo_date_time_s **timeStamp;
    int type;
};

extern const zundo_attribute_info_s phaseTimeAttributes[];
extern const int phaseTimeAttributeRows;

struct zundo_process_run_data_s {
    zundo_time_period_s **duration;
    zundo_date_time_s **end;
    int endStatus;
    zundo_date_time_s **start;
    zundo_date_time_s **submissionTime;
    zundo_date_time_s **timeStamp;
};

extern const zundo_attribute_info_s processRunAttributes[];
extern const int processRunAttributeRows;

struct zundo_usage_counter_data_s {
    double actualAmount;
    int **colorants;
    char **id;
    int **mediaSides;
    int reason;
    zundo_date_time_s **timeStamp;
    int unit;
};

extern const zundo_attribute_info_s usageCounterAttributes[];
extern const int usageCounterAttributeRows;

struct zundo_contact_info_data_s {
    char **company;
    int **types;
};

extern const zundo_attribute_info_s contactInfoAttributes[];
extern const int contactInfoAttributeRows;

#endif
