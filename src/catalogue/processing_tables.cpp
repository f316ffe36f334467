// Attribute definition tables of the processing options. Rows stay sorted by name in byte order:
// lookups are binary searches with strcmp.
#include "catalogue/processing_records.h"

#include <cstddef>

const zundo_attribute_info_s retainAttributes[] = {
    {"retain-action", offsetof(zundo_retain_data_s, action), ZUNDO_KIND_INTEGER, 1, 0},
    {"retain-format", offsetof(zundo_retain_data_s, format), ZUNDO_KIND_INTEGER, 1, 0},
    {"retain-print-first", offsetof(zundo_retain_data_s, printFirst), ZUNDO_KIND_INTEGER, 1, -1},
    {"retain-priority", offsetof(zundo_retain_data_s, priority), ZUNDO_KIND_INTEGER, 1, -1},
    {"retain-time-period", offsetof(zundo_retain_data_s, timePeriod), ZUNDO_KIND_TIME_PERIOD, 0, 0},
    {"retain-until", offsetof(zundo_retain_data_s, until), ZUNDO_KIND_DATE_TIME, 0, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int retainAttributeRows = sizeof retainAttributes / sizeof retainAttributes[0];

const zundo_attribute_info_s proofPrintAttributes[] = {
    {"proof-print-copies", offsetof(zundo_proof_print_data_s, copies), ZUNDO_KIND_INTEGER, 1, -1},
    {nullptr, 0, nullptr, 0, 0},
};
const int proofPrintAttributeRows = sizeof proofPrintAttributes / sizeof proofPrintAttributes[0];

const zundo_attribute_info_s namedFeatureAttributes[] = {
    {"named-feature-name", offsetof(zundo_named_feature_data_s, name), ZUNDO_KIND_STRING, 0, 0},
    {"named-feature-name-display",
     offsetof(zundo_named_feature_data_s, nameDisplay), ZUNDO_KIND_STRING, 0, 0},
    {"named-feature-values", offsetof(zundo_named_feature_data_s, values), ZUNDO_KIND_OBJECT, 0, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int namedFeatureAttributeRows =
    sizeof namedFeatureAttributes / sizeof namedFeatureAttributes[0];

const zundo_attribute_info_s namedFeatureValueAttributes[] = {
    {"named-feature-value-value",
     offsetof(zundo_named_feature_value_data_s, value), ZUNDO_KIND_STRING, 0, 0},
    {"named-feature-value-value-display",
     offsetof(zundo_named_feature_value_data_s, valueDisplay), ZUNDO_KIND_STRING, 0, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int namedFeatureValueAttributeRows =
    sizeof namedFeatureValueAttributes / sizeof namedFeatureValueAttributes[0];
