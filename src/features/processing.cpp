// Processing options: retention, proof prints and named device features
// with their values.
#include "catalogue/processing_records.h"
#include "features/feature_object.h"

namespace {

const char kNullValueText[] = "Attempted to set %s to invalid value: NULL.\n";
const char kFeatureNameText[] =
    "Attempted to set %s to %s. Spaces or empty strings are not allowed.\n";
const char kFeatureValueText[] =
    "Attempted to set <%s> to <%s>. Spaces or empty strings are not allowed.\n";

const zundo_rule_s processingRules[] = {
    {{"retain-action", "proof-print-copies"}, ZUNDO_RULE_REQUIRED},
    {{"retain-print-first"}, ZUNDO_RULE_BOOLEAN, kTrueFalseText},
    {{"retain-priority"}, ZUNDO_RULE_BETWEEN, kPercentText, -1, 100},
    {{"proof-print-copies"}, ZUNDO_RULE_AT_LEAST, kAboveZeroIntegerText, 0},
    {{"named-feature-name", "named-feature-values", "named-feature-value-value"},
     ZUNDO_RULE_REQUIRED, kNullValueText},
    {{"named-feature-name"}, ZUNDO_RULE_NON_BLANK, kFeatureNameText},
    {{"named-feature-name"}, ZUNDO_RULE_NO_BLANKS, kFeatureNameText},
    {{"named-feature-value-value"}, ZUNDO_RULE_NON_BLANK, kFeatureValueText},
    {{"named-feature-value-value"}, ZUNDO_RULE_NO_BLANKS, kFeatureValueText},
    {},
};

}  // namespace

ZUNDO_CODE_FEATURE(Retain, retain, RETAIN, processingRules, "retain-action")
ZUNDO_TEXT_FEATURE(NamedFeatureValue, named_feature_value, NAMED_FEATURE_VALUE, processingRules,
                   "named-feature-value-value")
ZUNDO_FEATURE(NamedFeature, named_feature, NAMED_FEATURE, checkRules<processingRules>)

// The feature's one value is made from `value`.
extern "C" zundo_status_t newNamedFeature(zundo_int_object_s **out, const char *name,
                                          const char *value) {
    zundo_int_object_s *featureValue = nullptr;
    zundo_status_t status = newNamedFeatureValue(&featureValue, value);
    if (status != ZUNDO_OK) {
        if (out != nullptr) *out = nullptr;
        return status;
    }
    return buildFeature<NamedFeatureType>(
        out, "newNamedFeature",
        {textValue("named-feature-name", name),
         ownedValue("named-feature-values", ZUNDO_KIND_OBJECT, featureValue)});
}

ZUNDO_CODE_FEATURE(ProofPrint, proof_print, PROOF_PRINT, processingRules, "proof-print-copies")
