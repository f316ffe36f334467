// Data records and attribute definition tables of the colour objects: colour
// planes, calibration, screening, RIP parameters and ink usage.
//
// A record has one field per attribute, named after the attribute without
// its type's prefix; the table maps each attribute name onto its field.
#ifndef ZUNDO_COLOUR_RECORDS_H
#define ZUNDO_COLOUR_RECORDS_H

#include "zundo_object.h"

struct zundo_color_plane_data_s {
    double colorBlack;
    double colorCyan;
    double colorMagenta;
    double colorYellow;
    int convertToProcess;
    double curveEndY;
    char **name;
    char **namesInPrintFile;
    int **objectTypes;
    zundo_range_s **pages;
    int print;
    int priority;
};

extern const zundo_attribute_info_s colorPlaneAttributes[];
extern const int colorPlaneAttributeRows;

struct zundo_calibration_type_data_s {
    int accuracyMode;
    int baseScreen;
    zundo_date_time_s **createdTimeStamp;
    zundo_binary_object_s **densityConversionParam;
    char **densityConversionParamVersion;
    char **extraInfo;
    zundo_date_time_s **lastCalibrationTimeStamp;
    char **productId;
    int readOnly;
    char **referenceData;
    char **toneReproductionCurve;
};

extern const zundo_attribute_info_s calibrationTypeAttributes[];
extern const int calibrationTypeAttributeRows;

struct zundo_screening_data_s {
    int **baseScreens;
    char **family;
    double frequency;
    int **objectTypes;
    char **productId;
    int readOnly;
    int spotFunction;
    int type;
};

extern const zundo_attribute_info_s screeningAttributes[];
extern const int screeningAttributeRows;

struct zundo_rip_params_data_s {
    int blackDetection;
    int brightness;
    int combinedSeparations;
    int createMaster;
    int digitalPressMode;
    int imageSmooth;
    int mirror;
    int negative;
    int printMode;
    int removeWhitePptBackground;
    int textGraphicEnhancement;
    int useMaster;
};

extern const zundo_attribute_info_s ripParamsAttributes[];
extern const int ripParamsAttributeRows;

struct zundo_ink_usage_data_s {
    double amount;
    int name;
};

extern const zundo_attribute_info_s inkUsageAttributes[];
extern const int inkUsageAttributeRows;

#endif
