// Code tables of the audit objects.
#include "enums/audit_value_tables.h"

const zundo_enum_pair_s processRunEndStatusValues[] = {
    {1, "Aborted"}, {2, "Completed"}, {3, "Ready"}, {-1, nullptr}};

const zundo_enum_pair_s notificationAuditClassValues[] = {
    {1, "Fatal"}, {2, "Warning"}, {3, "Error"}, {4, "Event"}, {5, "Information"}, {-1, nullptr}};

const zundo_enum_pair_s usageCounterUnitValues[] = {
    {1, "Clicks"}, {2, "Impressions"}, {3, "pt"}, {-1, nullptr}};

const zundo_enum_pair_s usageCounterColorantValues[] = {
    {1, "Black"}, {2, "Blank"}, {3, "Color"}, {4, "HighlightColor"}, {5, "Varnish"},
    {-1, nullptr}};

const zundo_enum_pair_s usageCounterMediaSideValues[] = {
    {1, "Insert"}, {2, "InsertPrefuser"}, {3, "OneSided"}, {4, "TwoSided"}, {-1, nullptr}};

const zundo_enum_pair_s auditReasonValues[] = {{1, "ProcessResult"}, {-1, nullptr}};
