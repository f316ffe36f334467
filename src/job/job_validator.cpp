// Rules the job applies to its own attributes before storing them.
#include <algorithm>
#include <cstring>
#include <iterator>

#include "job/job_objects.h"
#include "job/text_checks.h"
#include "zundo_trace.h"

namespace {

enum JobRule {
    kNotBlank = 1 << 0,
    kNoBlank = 1 << 1,
    kIntegerOrUnset = 1 << 2,
    kPercent = 1 << 3,
    kUnitInterval = 1 << 4,
    kDoubleOrUnset = 1 << 5,
    kNonNegativeDouble = 1 << 6,
    kNonNegativeInteger = 1 << 7,
    kBoolean = 1 << 8,
    kTonerLimit = 1 << 9,
    kCyanSubstitution = 1 << 10,
    kAtMostEightCharacters = 1 << 11,
    kNotEmpty = 1 << 12,
};

const int kTextRules = kNotBlank | kNoBlank | kAtMostEightCharacters | kNotEmpty;

struct JobRuleRow {
    const char *name;
    int rules;
};

// Sorted by name in byte order.
const JobRuleRow kJobRules[] = {
    {"job-anti-aliasing", kNotBlank | kNoBlank},
    {"job-authentication-login-name", kNotEmpty},
    {"job-authentication-password", kNotEmpty},
    {"job-black-overprint-line-art", kBoolean},
    {"job-black-overprint-line-art-level", kUnitInterval},
    {"job-black-overprint-text", kBoolean},
    {"job-black-overprint-text-level", kUnitInterval},
    {"job-black-overprint-text-threshold", kIntegerOrUnset},
    {"job-black-point-compensation", kBoolean},
    {"job-black-point-compensation-cmyk", kBoolean},
    {"job-black-point-compensation-cmyk-image", kBoolean},
    {"job-black-point-compensation-cmyk-line-art-smooth-shades-text", kBoolean},
    {"job-black-point-compensation-gray", kBoolean},
    {"job-black-point-compensation-gray-image", kBoolean},
    {"job-black-point-compensation-gray-line-art-smooth-shades-text", kBoolean},
    {"job-black-point-compensation-image", kBoolean},
    {"job-black-point-compensation-line-art-smooth-shades-text", kBoolean},
    {"job-black-point-compensation-rgb", kBoolean},
    {"job-black-point-compensation-rgb-image", kBoolean},
    {"job-black-point-compensation-rgb-line-art-smooth-shades-text", kBoolean},
    {"job-black-substitution-cyan", kCyanSubstitution},
    {"job-color-control-bar-type", kNotBlank | kNoBlank},
    {"job-convert-cmy-gray-to-black", kBoolean},
    {"job-convert-cmy-gray-to-black-threshold", kUnitInterval},
    {"job-convert-rgb-gray-to-black", kBoolean},
    {"job-convert-rgb-gray-to-black-image", kBoolean},
    {"job-convert-rgb-gray-to-black-image-threshold", kUnitInterval},
    {"job-convert-rgb-gray-to-black-line-art", kBoolean},
    {"job-convert-rgb-gray-to-black-line-art-threshold", kUnitInterval},
    {"job-convert-rgb-gray-to-black-smooth-shades", kBoolean},
    {"job-convert-rgb-gray-to-black-smooth-shades-threshold", kUnitInterval},
    {"job-convert-rgb-gray-to-black-text", kBoolean},
    {"job-convert-rgb-gray-to-black-text-threshold", kUnitInterval},
    {"job-convert-rgb-gray-to-black-threshold", kUnitInterval},
    {"job-copies", kNonNegativeInteger},
    {"job-copies-actual", kDoubleOrUnset},
    {"job-destination-connector-file-format", kNotBlank},
    {"job-destination-controller-available-functions", kNoBlank},
    {"job-destination-controller-installed-memory", kNonNegativeDouble},
    {"job-destination-controller-processor-speed", kNonNegativeDouble},
    {"job-edge-enhancement", kBoolean},
    {"job-eject-to-front-face", kBoolean},
    {"job-form-definition", kAtMostEightCharacters},
    {"job-hold", kBoolean},
    {"job-ignore-embedded-cmyk-profile", kBoolean},
    {"job-ignore-embedded-gray-profile", kBoolean},
    {"job-ignore-embedded-rgb-profile", kBoolean},
    {"job-image-shift-units", kNotBlank},
    {"job-jog-offset-amount", kNonNegativeInteger},
    {"job-knockout-cmyk-white", kBoolean},
    {"job-level-pages", kBoolean},
    {"job-max-pages-per-record", kNonNegativeInteger},
    {"job-maximum-c-density", kBoolean},
    {"job-maximum-k-density", kBoolean},
    {"job-maximum-m-density", kBoolean},
    {"job-maximum-y-density", kBoolean},
    {"job-min-pages-per-record", kNonNegativeInteger},
    {"job-number-records", kNonNegativeInteger},
    {"job-number-up-creep-units", kNotBlank},
    {"job-number-up-gutter-units", kNotBlank},
    {"job-number-up-gutter-x", kDoubleOrUnset},
    {"job-number-up-gutter-y", kDoubleOrUnset},
    {"job-number-up-scb-units", kNotBlank},
    {"job-output-resolution-x", kNonNegativeInteger},
    {"job-output-resolution-y", kNonNegativeInteger},
    {"job-page-definition", kAtMostEightCharacters},
    {"job-preserve-cmy-colors", kBoolean},
    {"job-preserve-cmy-colors-image", kBoolean},
    {"job-preserve-cmy-colors-image-secondaries", kBoolean},
    {"job-preserve-cmy-colors-line-art", kBoolean},
    {"job-preserve-cmy-colors-line-art-secondaries", kBoolean},
    {"job-preserve-cmy-colors-secondaries", kBoolean},
    {"job-preserve-cmy-colors-smooth-shades", kBoolean},
    {"job-preserve-cmy-colors-smooth-shades-secondaries", kBoolean},
    {"job-preserve-cmy-colors-text", kBoolean},
    {"job-preserve-cmy-colors-text-secondaries", kBoolean},
    {"job-preserve-k-black", kBoolean},
    {"job-preserve-k-black-image", kBoolean},
    {"job-preserve-k-black-line-art", kBoolean},
    {"job-preserve-k-black-smooth-shades", kBoolean},
    {"job-preserve-k-black-text", kBoolean},
    {"job-priority", kPercent},
    {"job-process-color-model", kNotBlank | kNoBlank},
    {"job-resolution-image-x", kNonNegativeInteger},
    {"job-resolution-image-y", kNonNegativeInteger},
    {"job-rotate-to-match-binding-edge", kBoolean},
    {"job-spot-color-matching", kBoolean},
    {"job-table-reference-chars", kBoolean},
    {"job-thin-line-enhancement", kBoolean},
    {"job-toner-limit", kTonerLimit},
    {"job-toner-limit-image", kTonerLimit},
    {"job-toner-limit-line-art", kTonerLimit},
    {"job-toner-limit-smooth-shades", kTonerLimit},
    {"job-toner-limit-text", kTonerLimit},
    {"job-trimming-units", kNotBlank},
    {"job-unstructure-allowed", kBoolean},
    {"job-use-default-font", kBoolean},
    {"job-use-pdfx-output-intent-profile", kBoolean},
    {"job-use-pdfx-output-intent-profile-as-input", kBoolean},
    {"job-use-ps-dsc-optimization", kBoolean},
    {"job-use-rip-spool", kBoolean},
    {"job-use-substitute-color-table", kBoolean},
};

int findRules(const char *name) {
    const JobRuleRow *end = std::end(kJobRules);
    const JobRuleRow *row = std::lower_bound(
        std::begin(kJobRules), end, name,
        [](const JobRuleRow &r, const char *n) { return std::strcmp(r.name, n) < 0; });
    return row != end && std::strcmp(row->name, name) == 0 ? row->rules : 0;
}

zundo_status_t checkText(int rules, const char *name, const char *text) {
    if ((rules & kNotBlank) && isBlankText(text)) {
        zundo_trace("Attempted to set %s to empty string or a string that contains only spaces.\n",
                    name);
        return ZUNDO_INVALID_ARGUMENT;
    }
    if ((rules & kNoBlank) && containsBlank(text)) {
        zundo_trace("Attempted to set %s to %s, Spaces are not allowed.\n", name, text);
        return ZUNDO_INVALID_ARGUMENT;
    }
    if ((rules & kAtMostEightCharacters) && std::strlen(text) > 8) {
        zundo_trace("Attempted to set %s to %s, value must be 8 or fewer characters.\n", name,
                    text);
        return ZUNDO_INVALID_ARGUMENT;
    }
    if ((rules & kNotEmpty) && text[0] == '\0') {
        zundo_trace("Attempted to set %s to an empty string.", name);
        return ZUNDO_INVALID_ARGUMENT;
    }
    return ZUNDO_OK;
}

zundo_status_t checkInteger(int rules, const char *name, int value) {
    if ((rules & kIntegerOrUnset) && value < 0 && value != -1) {
        zundo_trace("Attempted to set %s to %i, must be greater than or equal to 0, or -1 to unset "
                    "the attribute.\n",
                    name, value);
        return ZUNDO_INVALID_ARGUMENT;
    }
    if ((rules & kPercent) && (value < 0 || value > 100)) {
        zundo_trace("Attempted to set %s to %i, must be an integer 0-100, inclusive.\n", name,
                    value);
        return ZUNDO_INVALID_ARGUMENT;
    }
    if ((rules & kNonNegativeInteger) && value < 0) {
        zundo_trace("Attempted to set %s to %i, must be greater than 0 or 0 to unset the "
                    "attribute.\n",
                    name, value);
        return ZUNDO_INVALID_ARGUMENT;
    }
    if ((rules & kBoolean) && value != 1 && value != 0 && value != -1) {
        zundo_trace("Attempted to set boolean attribute %s to %i, must be true, false, or "
                    "not_set.\n",
                    name, value);
        return ZUNDO_INVALID_ARGUMENT;
    }
    if ((rules & kTonerLimit) && (value < -1 || value > 11)) {
        zundo_trace("Attempted to set %s to %i, must be set to a positive value between 0 and "
                    "11.\n",
                    name, value);
        return ZUNDO_INVALID_ARGUMENT;
    }
    if ((rules & kCyanSubstitution) && (value < 1 || value > 50)) {
        zundo_trace("Attempted to set %s to %i, must be set to a value between 1 and 50.\n", name,
                    value);
        return ZUNDO_INVALID_ARGUMENT;
    }
    return ZUNDO_OK;
}

zundo_status_t checkDouble(int rules, const char *name, double value) {
    if ((rules & kUnitInterval) && !(value >= 0 && value <= 1) && value != -1) {
        zundo_trace("Attempted to set %s to %e, must be a double between 0 and 1, inclusive, or -1 "
                    "to unset the attribute.\n",
                    name, value);
        return ZUNDO_INVALID_ARGUMENT;
    }
    if ((rules & kDoubleOrUnset) && !(value >= 0) && value != -1) {
        zundo_trace("Attempted to set %s to %e, must be greater than or equal to 0, or -1 to unset "
                    "the attribute.\n",
                    name, value);
        return ZUNDO_INVALID_ARGUMENT;
    }
    if ((rules & kNonNegativeDouble) && !(value >= 0)) {
        // The message shows the value as an integer, as it always has.
        zundo_trace("Attempted to set %s to %i, must be greater than 0 or 0 for not set.\n", name,
                    static_cast<int>(value));
        return ZUNDO_INVALID_ARGUMENT;
    }
    return ZUNDO_OK;
}

}  // namespace

zundo_status_t validateJobAttribute(void *, const char *name, zundo_int_attribute_s *attribute) {
    int rules = findRules(name);
    if (rules == 0 || !hasNextValue(attribute)) return ZUNDO_OK;
    if (rules & kTextRules) {
        // Every value of a multi-valued text is held to the rule.
        for (int i = 0; i < attribute->count; i++) {
            const char *text = static_cast<const char *>(valueAt(attribute, i));
            if (text == nullptr) continue;
            zundo_status_t status = checkText(rules, name, text);
            if (status != ZUNDO_OK) return status;
        }
        return ZUNDO_OK;
    }
    if (kindIs(attribute->kind, ZUNDO_KIND_INTEGER))
        return checkInteger(rules, name, *static_cast<const int *>(valueAt(attribute, 0)));
    if (kindIs(attribute->kind, ZUNDO_KIND_DOUBLE))
        return checkDouble(rules, name, *static_cast<const double *>(valueAt(attribute, 0)));
    return ZUNDO_OK;
}
