// Data records and attribute definition tables of the finishing objects:
// binding, stitching, folding, hole making with its hole lists, hole lines
// and holes, trimming and trapping.
//
// A record has one field per attribute, named after the attribute without
// its type's prefix; the table maps each attribute name onto its field.
#ifndef ZUNDO_FINISHING_RECORDS_H
#define ZUNDO_FINISHING_RECORDS_H

#include "zundo_object.h"

struct zundo_binding_data_s {
    double coverImageShiftX;
    double coverImageShiftY;
    int coverSide;
    int coverSource;
    zundo_int_object_s **media;
    char **outputBinName;
    int referenceEdge;
    int type;
};

extern const zundo_attribute_info_s bindingAttributes[];
extern const int bindingAttributeRows;

struct zundo_stitching_data_s {
    int angle;
    int count;
    int referenceEdge;
    int type;
    int withInsertsAfter;
    int withInsertsBefore;
};

extern const zundo_attribute_info_s stitchingAttributes[];
extern const int stitchingAttributeRows;

struct zundo_folding_data_s {
    int componentType;
    char **outputBinName;
    int referenceEdge;
    char **type;
    int withInsertsAfter;
    int withInsertsBefore;
};

extern const zundo_attribute_info_s foldingAttributes[];
extern const int foldingAttributeRows;

struct zundo_hole_making_data_s {
    int count;
    zundo_int_object_s **holeLines;
    int referenceEdge;
    int spacing;
    int withInsertsAfter;
    int withInsertsBefore;
};

extern const zundo_attribute_info_s holeMakingAttributes[];
extern const int holeMakingAttributeRows;

struct zundo_hole_list_data_s {
    zundo_int_object_s **holeLines;
    zundo_int_object_s **holes;
};

extern const zundo_attribute_info_s holeListAttributes[];
extern const int holeListAttributeRows;

struct zundo_hole_line_data_s {
    zundo_int_object_s **hole;
    double pitch;
};

extern const zundo_attribute_info_s holeLineAttributes[];
extern const int holeLineAttributeRows;

struct zundo_hole_data_s {
    double centerX;
    double centerY;
    double extentX;
    double extentY;
    int shape;
};

extern const zundo_attribute_info_s holeAttributes[];
extern const int holeAttributeRows;

struct zundo_trimming_data_s {
    double height;
    double offset;
    double offsetHeight;
    double offsetWidth;
    char **outputBinName;
    int type;
    double width;
};

extern const zundo_attribute_info_s trimmingAttributes[];
extern const int trimmingAttributeRows;

struct zundo_trapping_data_s {
    int type;
};

extern const zundo_attribute_info_s trappingAttributes[];
extern const int trappingAttributeRows;

#endif
