// Attribute definition tables of the mark objects. Rows stay sorted by name in byte order: lookups
// are binary searches with strcmp.
#include "catalogue/marks_records.h"

#include <cstddef>

const zundo_attribute_info_s markAttributes[] = {
    {"mark-anchor", offsetof(zundo_mark_data_s, anchor), ZUNDO_KIND_INTEGER, 1, 0},
    {"mark-image-filename", offsetof(zundo_mark_data_s, imageFilename), ZUNDO_KIND_STRING, 0, 0},
    {"mark-image-format", offsetof(zundo_mark_data_s, imageFormat), ZUNDO_KIND_STRING, 0, 0},
    {"mark-image-height", offsetof(zundo_mark_data_s, imageHeight), ZUNDO_KIND_INTEGER, 1, 0},
    {"mark-image-width", offsetof(zundo_mark_data_s, imageWidth), ZUNDO_KIND_INTEGER, 1, 0},
    {"mark-order", offsetof(zundo_mark_data_s, order), ZUNDO_KIND_INTEGER, 1, 0},
    {"mark-placement-units", offsetof(zundo_mark_data_s, placementUnits), ZUNDO_KIND_STRING, 0, 0},
    {"mark-placement-x", offsetof(zundo_mark_data_s, placementX), ZUNDO_KIND_DOUBLE, 1, 999999},
    {"mark-placement-y", offsetof(zundo_mark_data_s, placementY), ZUNDO_KIND_DOUBLE, 1, 999999},
    {"mark-rotation", offsetof(zundo_mark_data_s, rotation), ZUNDO_KIND_INTEGER, 1, -1},
    {"mark-tab", offsetof(zundo_mark_data_s, tab), ZUNDO_KIND_INTEGER, 1, -1},
    {"mark-text-char-orientation",
     offsetof(zundo_mark_data_s, textCharOrientation), ZUNDO_KIND_INTEGER, 1, 0},
    {"mark-text-date-format",
     offsetof(zundo_mark_data_s, textDateFormat), ZUNDO_KIND_INTEGER, 1, 0},
    {"mark-text-font", offsetof(zundo_mark_data_s, textFont), ZUNDO_KIND_STRING, 0, 0},
    {"mark-text-font-color", offsetof(zundo_mark_data_s, textFontColor), ZUNDO_KIND_INTEGER, 1, 0},
    {"mark-text-font-color-rgb",
     offsetof(zundo_mark_data_s, textFontColorRgb), ZUNDO_KIND_RGB, 0, 0},
    {"mark-text-font-size", offsetof(zundo_mark_data_s, textFontSize), ZUNDO_KIND_DOUBLE, 1, 0},
    {"mark-text-font-style", offsetof(zundo_mark_data_s, textFontStyle), ZUNDO_KIND_STRING, 0, 0},
    {"mark-text-font-transparency",
     offsetof(zundo_mark_data_s, textFontTransparency), ZUNDO_KIND_INTEGER, 1, -1},
    {"mark-text-format", offsetof(zundo_mark_data_s, textFormat), ZUNDO_KIND_STRING, 0, 0},
    {"mark-text-template",
     offsetof(zundo_mark_data_s, textTemplate), ZUNDO_KIND_INTEGER_LIST, 1, 0},
    {"mark-text-time-format",
     offsetof(zundo_mark_data_s, textTimeFormat), ZUNDO_KIND_INTEGER, 1, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int markAttributeRows = sizeof markAttributes / sizeof markAttributes[0];

const zundo_attribute_info_s registerMarkAttributes[] = {
    {"register-mark-name", offsetof(zundo_register_mark_data_s, name), ZUNDO_KIND_INTEGER, 1, 0},
    {"register-mark-off", offsetof(zundo_register_mark_data_s, off), ZUNDO_KIND_INTEGER, 1, -1},
    {"register-mark-offset-units",
     offsetof(zundo_register_mark_data_s, offsetUnits), ZUNDO_KIND_STRING, 0, 0},
    {"register-mark-offset-x",
     offsetof(zundo_register_mark_data_s, offsetX), ZUNDO_KIND_DOUBLE, 1, -1},
    {"register-mark-offset-y",
     offsetof(zundo_register_mark_data_s, offsetY), ZUNDO_KIND_DOUBLE, 1, -1},
    {"register-mark-side", offsetof(zundo_register_mark_data_s, side), ZUNDO_KIND_INTEGER, 1, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int registerMarkAttributeRows =
    sizeof registerMarkAttributes / sizeof registerMarkAttributes[0];

const zundo_attribute_info_s trimBleedMarkAttributes[] = {
    {"trim-bleed-mark-height",
     offsetof(zundo_trim_bleed_mark_data_s, height), ZUNDO_KIND_DOUBLE, 1, -1},
    {"trim-bleed-mark-height-units",
     offsetof(zundo_trim_bleed_mark_data_s, heightUnits), ZUNDO_KIND_STRING, 0, 0},
    {"trim-bleed-mark-name",
     offsetof(zundo_trim_bleed_mark_data_s, name), ZUNDO_KIND_INTEGER, 1, 0},
    {"trim-bleed-mark-off", offsetof(zundo_trim_bleed_mark_data_s, off), ZUNDO_KIND_INTEGER, 1, -1},
    {"trim-bleed-mark-print-to-margin-edge",
     offsetof(zundo_trim_bleed_mark_data_s, printToMarginEdge), ZUNDO_KIND_INTEGER, 1, -1},
    {"trim-bleed-mark-side",
     offsetof(zundo_trim_bleed_mark_data_s, side), ZUNDO_KIND_INTEGER, 1, 0},
    {"trim-bleed-mark-thickness",
     offsetof(zundo_trim_bleed_mark_data_s, thickness), ZUNDO_KIND_DOUBLE, 1, -1},
    {"trim-bleed-mark-width",
     offsetof(zundo_trim_bleed_mark_data_s, width), ZUNDO_KIND_DOUBLE, 1, -1},
    {nullptr, 0, nullptr, 0, 0},
};
const int trimBleedMarkAttributeRows =
    sizeof trimBleedMarkAttributes / sizeof trimBleedMarkAttributes[0];

const zundo_attribute_info_s paginationAttributes[] = {
    {"pagination-pages", offsetof(zundo_pagination_data_s, pages), ZUNDO_KIND_RANGE, 0, 0},
    {"pagination-pages-to-paginate",
     offsetof(zundo_pagination_data_s, pagesToPaginate), ZUNDO_KIND_RANGE, 0, 0},
    {"pagination-prefix", offsetof(zundo_pagination_data_s, prefix), ZUNDO_KIND_STRING, 0, 0},
    {"pagination-print", offsetof(zundo_pagination_data_s, print), ZUNDO_KIND_INTEGER, 1, -1},
    {"pagination-start", offsetof(zundo_pagination_data_s, start), ZUNDO_KIND_STRING, 0, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int paginationAttributeRows = sizeof paginationAttributes / sizeof paginationAttributes[0];
