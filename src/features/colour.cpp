// Colour: calibration types, colour planes, ink usage, screening and RIP
// parameters.
#include "catalogue/colour_records.h"
#include "features/feature_object.h"

namespace {

const zundo_rule_s colourRules[] = {
    {{"calibration-type-product-id", "color-plane-name", "ink-usage-name"},
     ZUNDO_RULE_REQUIRED},
    {{"calibration-type-product-id", "color-plane-name"}, ZUNDO_RULE_NON_BLANK},
    {{"calibration-type-read-only"}, ZUNDO_RULE_BOOLEAN, kBooleanAttributeText},
    {{"calibration-type-extra-info"}, ZUNDO_RULE_NO_BLANKS,
     "Attempted to set %s to %s, spaces are not allowed.\n"},
    {{"color-plane-color-black", "color-plane-color-cyan", "color-plane-color-magenta",
      "color-plane-color-yellow", "color-plane-curve-end-y"},
     ZUNDO_RULE_BETWEEN,
     "Attempted to set %s to %g, must be in the range [0.0, 1.0] or equal to -1.\n", 0, 1},
    {{"ink-usage-amount"}, ZUNDO_RULE_AT_LEAST, kAtLeastZeroIntegerText, 0},
    {{"screening-frequency"}, ZUNDO_RULE_AT_LEAST, "%s must be set >= 0.", 0},
    {{"screening-read-only"}, ZUNDO_RULE_BOOLEAN, kTabbedTrueFalseText},
    {},
};

}  // namespace

ZUNDO_TEXT_FEATURE(CalibrationType, calibration_type, CALIBRATION_TYPE, colourRules,
                   "calibration-type-product-id")
ZUNDO_CODE_FEATURE(InkUsage, ink_usage, INK_USAGE, colourRules, "ink-usage-name")
ZUNDO_FEATURE(Screening, screening, SCREENING, checkRules<colourRules>)

extern "C" zundo_status_t newScreening(zundo_int_object_s **out, const char *family,
                                       double frequency) {
    return buildFeature<ScreeningType>(out, "newScreening",
                                       {textValue("screening-family", family),
                                        realValue("screening-frequency", frequency)});
}

extern "C" zundo_status_t newScreeningEmpty(zundo_int_object_s **out) {
    return buildFeature<ScreeningType>(out, "newScreeningEmpty", {});
}

ZUNDO_TEXT_FEATURE(ColorPlane, color_plane, COLOR_PLANE, colourRules, "color-plane-name")
ZUNDO_FEATURE_TYPE(RipParams, rip_params, RIP_PARAMS, nullptr, nullptr, nullptr,
                   compareRipParamsAttrValue)

extern "C" zundo_status_t newRipParams(zundo_int_object_s **out, int blackDetection,
                                       int brightness, int combinedSeparations, int createMaster,
                                       int digitalPressMode, int imageSmooth, int mirror,
                                       int negative, int printMode, int removeWhitePptBackground,
                                       int textGraphicEnhancement, int useMaster) {
    return buildFeature<RipParamsType>(
        out, "newRipParams",
        {integerValue("rip-params-black-detection", blackDetection),
         integerValue("rip-params-brightness", brightness),
         integerValue("rip-params-combined-separations", combinedSeparations),
         integerValue("rip-params-create-master", createMaster),
         integerValue("rip-params-digital-press-mode", digitalPressMode),
         integerValue("rip-params-image-smooth", imageSmooth),
         integerValue("rip-params-mirror", mirror), integerValue("rip-params-negative", negative),
         integerValue("rip-params-print-mode", printMode),
         integerValue("rip-params-remove-white-ppt-background", removeWhitePptBackground),
         integerValue("rip-params-text-graphic-enhancement", textGraphicEnhancement),
         integerValue("rip-params-use-master", useMaster)});
}
