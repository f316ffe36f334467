// Data records and attribute definition tables of the processing options:
// retention, proof prints and named device features with their values.
//
// A record has one field per attribute, named after the attribute without
// its type's prefix; the table maps each attribute name onto its field.
#ifndef ZUNDO_PROCESSING_RECORDS_H
#define ZUNDO_PROCESSING_RECORDS_H

#include "zundo_object.h"

struct zundo_retain_data_s {
    int action;
    int format;
    int printFirst;
    int priority;
    zundo_time_period_s **timePeriod;
    zundo_date_time_s **until;
};

extern const zundo_attribute_info_s retainAttributes[];
extern const int retainAttributeRows;

struct zundo_proof_print_data_s {
    int copies;
};

extern const zundo_attribute_info_s proofPrintAttributes[];
extern const int proofPrintAttributeRows;

struct zundo_named_feature_data_s {
    char **name;
    char **nameDisplay;
    zundo_int_object_s **values;
};

extern const zundo_attribute_info_s namedFeatureAttributes[];
extern const int namedFeatureAttributeRows;

struct zundo_named_feature_value_data_s {
    char **value;
    char **valueDisplay;
};

extern const zundo_attribute_info_s namedFeatureValueAttributes[];
extern const int namedFeatureValueAttributeRows;

#endif
