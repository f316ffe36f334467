// Rules the job applies to its own attributes before storing them.
#include "job/job_objects.h"
#include "validation_rules.h"

namespace {

// Unset values (-1, or 0 where that is the not-set value) pass unchecked.
const zundo_rule_s kJobRules[] = {
    {{"job-anti-aliasing", "job-color-control-bar-type", "job-destination-connector-file-format",
      "job-image-shift-units", "job-number-up-creep-units", "job-number-up-gutter-units",
      "job-number-up-scb-units", "job-process-color-model", "job-trimming-units"},
     ZUNDO_RULE_NON_BLANK},
    {{"job-anti-aliasing", "job-color-control-bar-type",
      "job-destination-controller-available-functions", "job-process-color-model"},
     ZUNDO_RULE_NO_BLANKS, kSpacesText},
    {{"job-form-definition", "job-page-definition"}, ZUNDO_RULE_LENGTH,
     "Attempted to set %s to %s, value must be 8 or fewer characters.\n", 0, 8},
    {{"job-authentication-login-name", "job-authentication-password"}, ZUNDO_RULE_NOT_EMPTY,
     "Attempted to set %s to an empty string."},
    {{"job-black-overprint-text-threshold"}, ZUNDO_RULE_AT_LEAST,
     "Attempted to set %s to %i, must be greater than or equal to 0, or -1 to unset the "
     "attribute.\n",
     0},
    {{"job-priority"}, ZUNDO_RULE_BETWEEN,
     "Attempted to set %s to %i, must be an integer 0-100, inclusive.\n", 0, 100},
    {{"job-copies", "job-jog-offset-amount", "job-max-pages-per-record",
      "job-min-pages-per-record", "job-number-records", "job-output-resolution-x",
      "job-output-resolution-y", "job-resolution-image-x", "job-resolution-image-y"},
     ZUNDO_RULE_AT_LEAST,
     "Attempted to set %s to %i, must be greater than 0 or 0 to unset the attribute.\n", 0},
    {{"job-toner-limit", "job-toner-limit-image", "job-toner-limit-line-art",
      "job-toner-limit-smooth-shades", "job-toner-limit-text"},
     ZUNDO_RULE_BETWEEN,
     "Attempted to set %s to %i, must be set to a positive value between 0 and 11.\n", 0, 11},
    {{"job-black-substitution-cyan"}, ZUNDO_RULE_BETWEEN,
     "Attempted to set %s to %i, must be set to a value between 1 and 50.\n", 1, 50},
    {{"job-black-overprint-line-art-level", "job-black-overprint-text-level",
      "job-convert-cmy-gray-to-black-threshold", "job-convert-rgb-gray-to-black-image-threshold",
      "job-convert-rgb-gray-to-black-line-art-threshold",
      "job-convert-rgb-gray-to-black-smooth-shades-threshold",
      "job-convert-rgb-gray-to-black-text-threshold", "job-convert-rgb-gray-to-black-threshold"},
     ZUNDO_RULE_BETWEEN,
     "Attempted to set %s to %e, must be a double between 0 and 1, inclusive, or -1 to unset "
     "the attribute.\n",
     0, 1},
    {{"job-copies-actual", "job-number-up-gutter-x", "job-number-up-gutter-y"},
     ZUNDO_RULE_AT_LEAST,
     "Attempted to set %s to %e, must be greater than or equal to 0, or -1 to unset the "
     "attribute.\n",
     0},
    // The message shows the value as an integer, as it always has.
    {{"job-destination-controller-installed-memory", "job-destination-controller-processor-speed"},
     ZUNDO_RULE_AT_LEAST, "Attempted to set %s to %i, must be greater than 0 or 0 for not set.\n",
     0},
    {{"job-black-overprint-line-art", "job-black-overprint-text", "job-black-point-compensation",
      "job-black-point-compensation-cmyk", "job-black-point-compensation-cmyk-image",
      "job-black-point-compensation-cmyk-line-art-smooth-shades-text",
      "job-black-point-compensation-gray", "job-black-point-compensation-gray-image",
      "job-black-point-compensation-gray-line-art-smooth-shades-text"},
     ZUNDO_RULE_BOOLEAN, kBooleanAttributeText},
    {{"job-black-point-compensation-image",
      "job-black-point-compensation-line-art-smooth-shades-text",
      "job-black-point-compensation-rgb", "job-black-point-compensation-rgb-image",
      "job-black-point-compensation-rgb-line-art-smooth-shades-text",
      "job-convert-cmy-gray-to-black", "job-convert-rgb-gray-to-black",
      "job-convert-rgb-gray-to-black-image", "job-convert-rgb-gray-to-black-line-art"},
     ZUNDO_RULE_BOOLEAN, kBooleanAttributeText},
    {{"job-convert-rgb-gray-to-black-smooth-shades", "job-convert-rgb-gray-to-black-text",
      "job-edge-enhancement", "job-eject-to-front-face", "job-hold",
      "job-ignore-embedded-cmyk-profile", "job-ignore-embedded-gray-profile",
      "job-ignore-embedded-rgb-profile", "job-knockout-cmyk-white"},
     ZUNDO_RULE_BOOLEAN, kBooleanAttributeText},
    {{"job-level-pages", "job-maximum-c-density", "job-maximum-k-density",
      "job-maximum-m-density", "job-maximum-y-density", "job-preserve-cmy-colors",
      "job-preserve-cmy-colors-image", "job-preserve-cmy-colors-image-secondaries",
      "job-preserve-cmy-colors-line-art"},
     ZUNDO_RULE_BOOLEAN, kBooleanAttributeText},
    {{"job-preserve-cmy-colors-line-art-secondaries", "job-preserve-cmy-colors-secondaries",
      "job-preserve-cmy-colors-smooth-shades", "job-preserve-cmy-colors-smooth-shades-secondaries",
      "job-preserve-cmy-colors-text", "job-preserve-cmy-colors-text-secondaries",
      "job-preserve-k-black", "job-preserve-k-black-image", "job-preserve-k-black-line-art"},
     ZUNDO_RULE_BOOLEAN, kBooleanAttributeText},
    {{"job-preserve-k-black-smooth-shades", "job-preserve-k-black-text",
      "job-rotate-to-match-binding-edge", "job-spot-color-matching", "job-table-reference-chars",
      "job-thin-line-enhancement", "job-unstructure-allowed", "job-use-default-font",
      "job-use-pdfx-output-intent-profile"},
     ZUNDO_RULE_BOOLEAN, kBooleanAttributeText},
    {{"job-use-pdfx-output-intent-profile-as-input", "job-use-ps-dsc-optimization",
      "job-use-rip-spool", "job-use-substitute-color-table"},
     ZUNDO_RULE_BOOLEAN, kBooleanAttributeText},
    {},
};

}  // namespace

zundo_status_t validateJobAttribute(void *, const char *name, zundo_int_attribute_s *attribute) {
    return applyRules(kJobRules, name, attribute);
}
