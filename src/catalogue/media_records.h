// Data records and attribute definition tables of the media and of the
// objects that place sheets or files into a job: insert, banner and separator
// sheets and layout-element containers.
//
// A record has one field per attribute, named after the attribute without
// its type's prefix; the table maps each attribute name onto its field.
#ifndef ZUNDO_MEDIA_RECORDS_H
#define ZUNDO_MEDIA_RECORDS_H

#include "zundo_object.h"

struct zundo_media_data_s {
    double amountUsed;
    zundo_date_time_s **amountUsedTimeStamp;
    int autoSelect;
    int backCoatings;
    char **brand;
    zundo_date_time_s **calibrationTimeStamp;
    char **calibrationTypeName;
    int catalogMaxEntries;
    int color;
    char **colorDetails;
    char **colorProfileInputCmyk;
    char **colorProfileInputCmykImage;
    char **colorProfileInputCmykLineArt;
    char **colorProfileInputCmykSmoothShades;
    char **colorProfileInputCmykText;
    char **colorProfileInputGray;
    char **colorProfileInputGrayImage;
    char **colorProfileInputGrayLineArt;
    char **colorProfileInputGraySmoothShades;
    char **colorProfileInputGrayText;
    char **colorProfileInputRgb;
    char **colorProfileInputRgbImage;
    char **colorProfileInputRgbLineArt;
    char **colorProfileInputRgbSmoothShades;
    char **colorProfileInputRgbText;
    char **colorProfileOutputBack;
    char **colorProfileOutputFront;
    char **colorProfileOutputImageBack;
    char **colorProfileOutputImageFront;
    char **colorProfileOutputLineArtBack;
    char **colorProfileOutputLineArtFront;
    char **colorProfileOutputSmoothShadesBack;
    char **colorProfileOutputSmoothShadesFront;
    char **colorProfileOutputTextBack;
    char **colorProfileOutputTextFront;
    int colorRenderingIntent;
    int colorRenderingIntentImage;
    int colorRenderingIntentLineArt;
    int colorRenderingIntentSmoothShades;
    int colorRenderingIntentText;
    char **comment;
    zundo_binary_object_s **engineAdjParamInfo;
    char **engineAdjParamInfoVersion;
    zundo_binary_object_s **engineMoses;
    char **engineMosesVersion;
    zundo_binary_object_s **engineMqprank;
    char **engineMqprankVersion;
    zundo_binary_object_s **engineSerialNumber;
    char **engineSerialNumberVersion;
    int engineState;
    int favorite;
    int feedEdge;
    int frontCoatingDetail;
    int frontCoatings;
    int holeCount;
    zundo_int_object_s **holeList;
    char **id;
    int imagableSide;
    char **inputTrayName;
    char **labColor;
    char **manufacturer;
    char **name;
    int opacity;
    int operatorInterventionForCustomDimension;
    int overrideSnapshot;
    int pmpStatus;
    zundo_date_time_s **pmpTimeStamp;
    int preprinted;
    double printRegistrationDuplexBackX;
    double printRegistrationDuplexBackY;
    double printRegistrationDuplexFrontX;
    double printRegistrationDuplexFrontY;
    double printRegistrationSimplexX;
    double printRegistrationSimplexY;
    double printRegistrationTumbleBackX;
    double printRegistrationTumbleBackY;
    double printRegistrationTumbleFrontX;
    double printRegistrationTumbleFrontY;
    char **printingTechnology;
    char **productId;
    int readOnly;
    double recycledPercentage;
    int sensitiveEdge;
    int sensitiveSide;
    int setCount;
    char **stock;
    double tabExtension;
    double tabOffset;
    int tabSetCollationOrder;
    double tabShift;
    double tabWidth;
    char **texture;
    double thickness;
    char **typeDetails;
    char **typeManualMode;
    int unitFormat;
    char **units;
    double weight;
    double xDimension;
    double xDimensionInUnits;
    double yDimension;
    double yDimensionInUnits;
};

extern const zundo_attribute_info_s mediaAttributes[];
extern const int mediaAttributeRows;

struct zundo_insert_sheet_data_s {
    int content;
    int copies;
    zundo_int_object_s **folding;
    zundo_int_object_s **marks;
    zundo_int_object_s **media;
    zundo_range_s **pages;
    int position;
    zundo_range_s **sheets;
};

extern const zundo_attribute_info_s insertSheetAttributes[];
extern const int insertSheetAttributeRows;

struct zundo_banner_sheet_data_s {
    zundo_int_object_s **media;
    char **text;
    int type;
};

extern const zundo_attribute_info_s bannerSheetAttributes[];
extern const int bannerSheetAttributeRows;

struct zundo_separator_sheet_data_s {
    int amount;
    zundo_int_object_s **media;
    int type;
};

extern const zundo_attribute_info_s separatorSheetAttributes[];
extern const int separatorSheetAttributeRows;

struct zundo_container_data_s {
    char **filename;
    char **format;
};

extern const zundo_attribute_info_s containerAttributes[];
extern const int containerAttributeRows;

#endif
