// Attribute definition tables of the finishing objects. Rows stay sorted by name in byte order:
// lookups are binary searches with strcmp.
#include "catalogue/finishing_records.h"

#include <cstddef>

const zundo_attribute_info_s bindingAttributes[] = {
    {"binding-cover-image-shift-x",
     offsetof(zundo_binding_data_s, coverImageShiftX), ZUNDO_KIND_DOUBLE, 1, 999999},
    {"binding-cover-image-shift-y",
     offsetof(zundo_binding_data_s, coverImageShiftY), ZUNDO_KIND_DOUBLE, 1, 999999},
    {"binding-cover-side", offsetof(zundo_binding_data_s, coverSide), ZUNDO_KIND_INTEGER, 1, 0},
    {"binding-cover-source", offsetof(zundo_binding_data_s, coverSource), ZUNDO_KIND_INTEGER, 1, 0},
    {"binding-media", offsetof(zundo_binding_data_s, media), ZUNDO_KIND_OBJECT, 0, 0},
    {"binding-output-bin-name",
     offsetof(zundo_binding_data_s, outputBinName), ZUNDO_KIND_STRING, 0, 0},
    {"binding-reference-edge",
     offsetof(zundo_binding_data_s, referenceEdge), ZUNDO_KIND_INTEGER, 1, 0},
    {"binding-type", offsetof(zundo_binding_data_s, type), ZUNDO_KIND_INTEGER, 1, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int bindingAttributeRows = sizeof bindingAttributes / sizeof bindingAttributes[0];

const zundo_attribute_info_s stitchingAttributes[] = {
    {"stitching-angle", offsetof(zundo_stitching_data_s, angle), ZUNDO_KIND_INTEGER, 1, -1},
    {"stitching-count", offsetof(zundo_stitching_data_s, count), ZUNDO_KIND_INTEGER, 1, -1},
    {"stitching-reference-edge",
     offsetof(zundo_stitching_data_s, referenceEdge), ZUNDO_KIND_INTEGER, 1, 0},
    {"stitching-type", offsetof(zundo_stitching_data_s, type), ZUNDO_KIND_INTEGER, 1, 0},
    {"stitching-with-inserts-after",
     offsetof(zundo_stitching_data_s, withInsertsAfter), ZUNDO_KIND_INTEGER, 1, 999999},
    {"stitching-with-inserts-before",
     offsetof(zundo_stitching_data_s, withInsertsBefore), ZUNDO_KIND_INTEGER, 1, 999999},
    {nullptr, 0, nullptr, 0, 0},
};
const int stitchingAttributeRows = sizeof stitchingAttributes / sizeof stitchingAttributes[0];

const zundo_attribute_info_s foldingAttributes[] = {
    {"folding-component-type",
     offsetof(zundo_folding_data_s, componentType), ZUNDO_KIND_INTEGER, 1, 0},
    {"folding-output-bin-name",
     offsetof(zundo_folding_data_s, outputBinName), ZUNDO_KIND_STRING, 0, 0},
    {"folding-reference-edge",
     offsetof(zundo_folding_data_s, referenceEdge), ZUNDO_KIND_INTEGER, 1, 0},
    {"folding-type", offsetof(zundo_folding_data_s, type), ZUNDO_KIND_STRING, 0, 0},
    {"folding-with-inserts-after",
     offsetof(zundo_folding_data_s, withInsertsAfter), ZUNDO_KIND_INTEGER, 1, 999999},
    {"folding-with-inserts-before",
     offsetof(zundo_folding_data_s, withInsertsBefore), ZUNDO_KIND_INTEGER, 1, 999999},
    {nullptr, 0, nullptr, 0, 0},
};
const int foldingAttributeRows = sizeof foldingAttributes / sizeof foldingAttributes[0];

const zundo_attribute_info_s holeMakingAttributes[] = {
    {"hole-making-count", offsetof(zundo_hole_making_data_s, count), ZUNDO_KIND_INTEGER, 1, -2},
    {"hole-making-hole-lines",
     offsetof(zundo_hole_making_data_s, holeLines), ZUNDO_KIND_OBJECT, 0, 0},
    {"hole-making-reference-edge",
     offsetof(zundo_hole_making_data_s, referenceEdge), ZUNDO_KIND_INTEGER, 1, 0},
    {"hole-making-spacing", offsetof(zundo_hole_making_data_s, spacing), ZUNDO_KIND_INTEGER, 1, 0},
    {"hole-making-with-inserts-after",
     offsetof(zundo_hole_making_data_s, withInsertsAfter), ZUNDO_KIND_INTEGER, 1, 999999},
    {"hole-making-with-inserts-before",
     offsetof(zundo_hole_making_data_s, withInsertsBefore), ZUNDO_KIND_INTEGER, 1, 999999},
    {nullptr, 0, nullptr, 0, 0},
};
const int holeMakingAttributeRows = sizeof holeMakingAttributes / sizeof holeMakingAttributes[0];

const zundo_attribute_info_s holeListAttributes[] = {
    {"hole-list-hole-lines", offsetof(zundo_hole_list_data_s, holeLines), ZUNDO_KIND_OBJECT, 0, 0},
    {"hole-list-holes", offsetof(zundo_hole_list_data_s, holes), ZUNDO_KIND_OBJECT, 0, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int holeListAttributeRows = sizeof holeListAttributes / sizeof holeListAttributes[0];

const zundo_attribute_info_s holeLineAttributes[] = {
    {"hole-line-hole", offsetof(zundo_hole_line_data_s, hole), ZUNDO_KIND_OBJECT, 0, 0},
    {"hole-line-pitch", offsetof(zundo_hole_line_data_s, pitch), ZUNDO_KIND_DOUBLE, 0, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int holeLineAttributeRows = sizeof holeLineAttributes / sizeof holeLineAttributes[0];

const zundo_attribute_info_s holeAttributes[] = {
    {"hole-center-x", offsetof(zundo_hole_data_s, centerX), ZUNDO_KIND_DOUBLE, 1, -1},
    {"hole-center-y", offsetof(zundo_hole_data_s, centerY), ZUNDO_KIND_DOUBLE, 1, -1},
    {"hole-extent-x", offsetof(zundo_hole_data_s, extentX), ZUNDO_KIND_DOUBLE, 1, -1},
    {"hole-extent-y", offsetof(zundo_hole_data_s, extentY), ZUNDO_KIND_DOUBLE, 1, -1},
    {"hole-shape", offsetof(zundo_hole_data_s, shape), ZUNDO_KIND_INTEGER, 1, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int holeAttributeRows = sizeof holeAttributes / sizeof holeAttributes[0];

const zundo_attribute_info_s trimmingAttributes[] = {
    {"trimming-height", offsetof(zundo_trimming_data_s, height), ZUNDO_KIND_DOUBLE, 1, 0},
    {"trimming-offset", offsetof(zundo_trimming_data_s, offset), ZUNDO_KIND_DOUBLE, 1, -1},
    {"trimming-offset-height",
     offsetof(zundo_trimming_data_s, offsetHeight), ZUNDO_KIND_DOUBLE, 1, -1},
    {"trimming-offset-width",
     offsetof(zundo_trimming_data_s, offsetWidth), ZUNDO_KIND_DOUBLE, 1, -1},
    {"trimming-output-bin-name",
     offsetof(zundo_trimming_data_s, outputBinName), ZUNDO_KIND_STRING, 0, 0},
    {"trimming-type", offsetof(zundo_trimming_data_s, type), ZUNDO_KIND_INTEGER, 1, 0},
    {"trimming-width", offsetof(zundo_trimming_data_s, width), ZUNDO_KIND_DOUBLE, 1, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int trimmingAttributeRows = sizeof trimmingAttributes / sizeof trimmingAttributes[0];

const zundo_attribute_info_s trappingAttributes[] = {
    {"trapping-type", offsetof(zundo_trapping_data_s, type), ZUNDO_KIND_INTEGER, 1, 0},
    {nullptr, 0, nullptr, 0, 0},
};
const int trappingAttributeRows = sizeof trappingAttributes / sizeof trappingAttributes[0];
