// Marks printed on a sheet: text and image marks, register marks, trim and
// bleed marks, and pagination.
#include "catalogue/marks_records.h"
#include "features/feature_object.h"

namespace {

const zundo_rule_s markRules[] = {
    {{"mark-text-format", "register-mark-name", "trim-bleed-mark-name"}, ZUNDO_RULE_REQUIRED},
    {{"mark-placement-units", "mark-text-font", "mark-text-font-style",
      "register-mark-offset-units", "trim-bleed-mark-height-units"},
     ZUNDO_RULE_NON_BLANK},
    {{"mark-text-font", "mark-text-font-style"}, ZUNDO_RULE_NO_BLANKS, kSpacesText},
    {{"mark-tab", "register-mark-off", "trim-bleed-mark-off",
      "trim-bleed-mark-print-to-margin-edge", "pagination-print"},
     ZUNDO_RULE_BOOLEAN, kTrueFalseText},
    {{"mark-text-font-size"}, ZUNDO_RULE_AT_LEAST,
     "Attempted to set %s to %e, must be greater than or equal to 1.\n", 1},
    {{"mark-image-height", "mark-image-width"}, ZUNDO_RULE_AT_LEAST,
     "Attempted to set %s to %d, must be greater than or equal to 1.\n", 1},
    {{"mark-text-font-transparency"}, ZUNDO_RULE_BETWEEN, kPercentText, -1, 100},
    {{"mark-rotation"}, ZUNDO_RULE_BETWEEN,
     "Attempted to set %s to %i, must be a value between 0 and 359.\n", 0, 359},
    {{"register-mark-offset-x", "register-mark-offset-y", "trim-bleed-mark-height",
      "trim-bleed-mark-thickness", "trim-bleed-mark-width"},
     ZUNDO_RULE_AT_LEAST, kAtLeastZeroRealText, 0},
    {},
};

}  // namespace

ZUNDO_FEATURE(Mark, mark, MARK, checkRules<markRules>)

extern "C" zundo_status_t newMark(zundo_int_object_s **out, const char *textFormat, int rotation,
                                  double placementX, double placementY) {
    return buildFeature<MarkType>(out, "newMark",
                                  {textValue("mark-text-format", textFormat),
                                   integerValue("mark-rotation", rotation),
                                   realValue("mark-placement-x", placementX),
                                   realValue("mark-placement-y", placementY)});
}

ZUNDO_CODE_FEATURE(RegisterMark, register_mark, REGISTER_MARK, markRules, "register-mark-name")
ZUNDO_PLAIN_FEATURE(Pagination, pagination, PAGINATION, markRules)
ZUNDO_CODE_FEATURE(TrimBleedMark, trim_bleed_mark, TRIM_BLEED_MARK, markRules,
                   "trim-bleed-mark-name")
