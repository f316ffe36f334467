// Data records and attribute definition tables of the marks printed on a
// sheet: marks, register marks, trim and bleed marks, and pagination.
//
// A record has one field per attribute, named after the attribute without
// its type's prefix; the table maps each attribute name onto its field.
#ifndef ZUNDO_MARKS_RECORDS_H
#define ZUNDO_MARKS_RECORDS_H

#include "zundo_object.h"

struct zundo_mark_data_s {
    int anchor;
    char **imageFilename;
    char **imageFormat;
    int imageHeight;
    int imageWidth;
    int order;
    char **placementUnits;
    double placementX;
    double placementY;
    int rotation;
    int tab;
    int textCharOrientation;
    int textDateFormat;
    char **textFont;
    int textFontColor;
    zundo_rgb_s **textFontColorRgb;
    double textFontSize;
    char **textFontStyle;
    int textFontTransparency;
    char **textFormat;
    int **textTemplate;
    int textTimeFormat;
};

extern const zundo_attribute_info_s markAttributes[];
extern const int markAttributeRows;

struct zundo_register_mark_data_s {
    int name;
    int off;
    char **offsetUnits;
    double offsetX;
    double offsetY;
    int side;
};

extern const zundo_attribute_info_s registerMarkAttributes[];
extern const int registerMarkAttributeRows;

struct zundo_trim_bleed_mark_data_s {
    double height;
    char **heightUnits;
    int name;
    int off;
    int printToMarginEdge;
    int side;
    double thickness;
    double width;
};

extern const zundo_attribute_info_s trimBleedMarkAttributes[];
extern const int trimBleedMarkAttributeRows;

struct zundo_pagination_data_s {
    zundo_range_s **pages;
    zundo_range_s **pagesToPaginate;
    char **prefix;
    int print;
    char **start;
};

extern const zundo_attribute_info_s paginationAttributes[];
extern const int paginationAttributeRows;

#endif
