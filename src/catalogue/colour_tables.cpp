// Attribute definition tables of the colour objects. Rows stay sorted by name in byte order:
// lookups are binary searches with strcmp.
#include "catalogue/colour_records.h"

#include <cstddef>

const zundo_attribute_info_s colorPlaneAttributes[] = {
    {"color-plane-color-black",
     offsetof(zundo_color_plane_data_s, colorBlack), ZUNDO_KIND_DOUBLE, 1, -1},
    {"color-plane-color-cyan",
     offsetof(zundo_color_plane_data_s, colorCyan), ZUNDO_KIND_DOUBLE, 1, -1},
    {"color-plane-color-magenta",
     offsetof(zundo_color_plane_data_s, colorMagenta), ZUNDO_KIND_DOUBLE, 1, -1},
    {"color-plane-color-yellow",
     offsetof(zundo_color_plane_data_s, colorYellow), ZUNDO_KIND_DOUBLE, 1, -1},
    {"color-plane-convert-to-process",
     offsetof(zundo_color_plane_data_s, convertToProcess), ZUNDO_KIND_INTEGER, 1, -1},
    {"color-plane-curve-end-y",
     offsetof(zundo_color_plane_data_s, curveEndY), ZUNDO_KIND_DOUBLE, 1, -1},
    {"color-plane-name", offsetof(zundo_color_plane_data_s, name), ZUNDO_KIND_STRING, 0, 0},
    {"color-plane-names-in-print-file",
     offsetof(zundo_color_plane_data_s, namesInPrintFile), ZUNDO_KIND_STRING, 0, 0},
    {"color-plane-object-types",
     offsetof(zundo_color_plane_data_s, objectTypes), ZUNDO_KIND_INTEGER_LIST, 1, 0},
    {"color-plane-pages", offsetof(zundo_color_plane_data_s, pages), ZUNDO_KIND_RANGE, 0, 0},
    {"color-plane-print", offsetof(zundo_color_plane_data_s, print), ZUNDO_KIND_INTEGER, 1, -1},
    {"color-plane-priority",
     offsetof(zundo_color_plane_data_s, priority), ZUNDO_KIND_INTEGER, 1, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int colorPlaneAttributeRows = sizeof colorPlaneAttributes / sizeof colorPlaneAttributes[0];

const zundo_attribute_info_s calibrationTypeAttributes[] = {
    {"calibration-type-accuracy-mode",
     offsetof(zundo_calibration_type_data_s, accuracyMode), ZUNDO_KIND_INTEGER, 1, 0},
    {"calibration-type-base-screen",
     offsetof(zundo_calibration_type_data_s, baseScreen), ZUNDO_KIND_INTEGER, 1, 0},
    {"calibration-type-created-time-stamp",
     offsetof(zundo_calibration_type_data_s, createdTimeStamp), ZUNDO_KIND_DATE_TIME, 0, 0},
    {"calibration-type-density-conversion-param",
     offsetof(zundo_calibration_type_data_s, densityConversionParam), ZUNDO_KIND_BINARY, 0, 0},
    {"calibration-type-density-conversion-param-version",
     offsetof(zundo_calibration_type_data_s, densityConversionParamVersion),
     ZUNDO_KIND_STRING, 0, 0},
    {"calibration-type-extra-info",
     offsetof(zundo_calibration_type_data_s, extraInfo), ZUNDO_KIND_STRING, 0, 0},
    {"calibration-type-last-calibration-time-stamp",
     offsetof(zundo_calibration_type_data_s, lastCalibrationTimeStamp), ZUNDO_KIND_DATE_TIME, 0, 0},
    {"calibration-type-product-id",
     offsetof(zundo_calibration_type_data_s, productId), ZUNDO_KIND_STRING, 0, 0},
    {"calibration-type-read-only",
     offsetof(zundo_calibration_type_data_s, readOnly), ZUNDO_KIND_INTEGER, 1, -1},
    {"calibration-type-reference-data",
     offsetof(zundo_calibration_type_data_s, referenceData), ZUNDO_KIND_STRING, 0, 0},
    {"calibration-type-tone-reproduction-curve",
     offsetof(zundo_calibration_type_data_s, toneReproductionCurve), ZUNDO_KIND_STRING, 0, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int calibrationTypeAttributeRows =
    sizeof calibrationTypeAttributes / sizeof calibrationTypeAttributes[0];

const zundo_attribute_info_s screeningAttributes[] = {
    {"screening-base-screens",
     offsetof(zundo_screening_data_s, baseScreens), ZUNDO_KIND_INTEGER_LIST, 1, 0},
    {"screening-family", offsetof(zundo_screening_data_s, family), ZUNDO_KIND_STRING, 0, 0},
    {"screening-frequency", offsetof(zundo_screening_data_s, frequency), ZUNDO_KIND_DOUBLE, 1, 0},
    {"screening-object-types",
     offsetof(zundo_screening_data_s, objectTypes), ZUNDO_KIND_INTEGER_LIST, 1, 0},
    {"screening-product-id", offsetof(zundo_screening_data_s, productId), ZUNDO_KIND_STRING, 0, 0},
    {"screening-read-only", offsetof(zundo_screening_data_s, readOnly), ZUNDO_KIND_INTEGER, 1, -1},
    {"screening-spot-function",
     offsetof(zundo_screening_data_s, spotFunction), ZUNDO_KIND_INTEGER, 1, 0},
    {"screening-type", offsetof(zundo_screening_data_s, type), ZUNDO_KIND_INTEGER, 1, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int screeningAttributeRows = sizeof screeningAttributes / sizeof screeningAttributes[0];

const zundo_attribute_info_s ripParamsAttributes[] = {
    {"rip-params-black-detection",
     offsetof(zundo_rip_params_data_s, blackDetection), ZUNDO_KIND_INTEGER, 0, 0},
    {"rip-params-brightness",
     offsetof(zundo_rip_params_data_s, brightness), ZUNDO_KIND_INTEGER, 1, 0},
    {"rip-params-combined-separations",
     offsetof(zundo_rip_params_data_s, combinedSeparations), ZUNDO_KIND_INTEGER, 0, 0},
    {"rip-params-create-master",
     offsetof(zundo_rip_params_data_s, createMaster), ZUNDO_KIND_INTEGER, 0, 0},
    {"rip-params-digital-press-mode",
     offsetof(zundo_rip_params_data_s, digitalPressMode), ZUNDO_KIND_INTEGER, 1, 0},
    {"rip-params-image-smooth",
     offsetof(zundo_rip_params_data_s, imageSmooth), ZUNDO_KIND_INTEGER, 1, 0},
    {"rip-params-mirror", offsetof(zundo_rip_params_data_s, mirror), ZUNDO_KIND_INTEGER, 0, 0},
    {"rip-params-negative", offsetof(zundo_rip_params_data_s, negative), ZUNDO_KIND_INTEGER, 0, 0},
    {"rip-params-print-mode",
     offsetof(zundo_rip_params_data_s, printMode), ZUNDO_KIND_INTEGER, 1, 0},
    {"rip-params-remove-white-ppt-background",
     offsetof(zundo_rip_params_data_s, removeWhitePptBackground), ZUNDO_KIND_INTEGER, 0, 0},
    {"rip-params-text-graphic-enhancement",
     offsetof(zundo_rip_params_data_s, textGraphicEnhancement), ZUNDO_KIND_INTEGER, 0, 0},
    {"rip-params-use-master",
     offsetof(zundo_rip_params_data_s, useMaster), ZUNDO_KIND_INTEGER, 0, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int ripParamsAttributeRows = sizeof ripParamsAttributes / sizeof ripParamsAttributes[0];

const zundo_attribute_info_s inkUsageAttributes[] = {
    {"ink-usage-amount", offsetof(zundo_ink_usage_data_s, amount), ZUNDO_KIND_DOUBLE, 1, -1},
    {"ink-usage-name", offsetof(zundo_ink_usage_data_s, name), ZUNDO_KIND_INTEGER, 1, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int inkUsageAttributeRows = sizeof inkUsageAttributes / sizeof inkUsageAttributes[0];
