// JDF spellings of the codes that audits, usage counters and notifications
// carry, shared by their readers and writers so that both sides agree.
#ifndef ZUNDO_AUDIT_VALUE_TABLES_H
#define ZUNDO_AUDIT_VALUE_TABLES_H

#include "enums/conversion_table.h"

extern const zundo_enum_pair_s processRunEndStatusValues[];   // process-run-end-status
extern const zundo_enum_pair_s notificationAuditClassValues[];  // notification-audit-class
extern const zundo_enum_pair_s usageCounterUnitValues[];      // usage-counter-unit
extern const zundo_enum_pair_s usageCounterColorantValues[];  // usage-counter-colorants
extern const zundo_enum_pair_s usageCounterMediaSideValues[];  // usage-counter-media-sides
extern const zundo_enum_pair_s auditReasonValues[];  // usage-counter-reason

#endif
