// RenderingParams (black overprint, edge and thin-line enhancement,
// anti-aliasing and output resolution), the toner limits of Ink, the
// maximum densities of PrintCondition and the calibration type resource.
#include <cstdio>

#include "enums/value_tables.h"
#include "values/value_objects.h"
#include "write/attribute_cascade.h"
#include "write/colour_writers.h"
#include "write/jdf_attr.h"
#include "write/media_writer.h"
#include "write/number_format.h"
#include "write/resource_getters.h"
#include "xml/jdf_pools.h"
#include "xml/partitions.h"
#include "zundo_trace.h"

namespace {

const ElementValueRow kOverprintRows[] = {
    {"job-black-overprint-text", "OverPrintBlackText", kCodeValue, booleanValues},
    {"job-black-overprint-text-level", "TextBlackLevel", kRealValue, nullptr},
    {"job-black-overprint-text-threshold", "TextSizeThreshold", kIntegerValue, nullptr},
    {"job-black-overprint-line-art", "OverPrintBlackLineArt", kCodeValue, booleanValues},
    {"job-black-overprint-line-art-level", "LineArtBlackLevel", kRealValue, nullptr},
    {"job-knockout-cmyk-white", "KnockOutCMYKWhite", kCodeValue, booleanValues},
    {"job-cmyk-overprint-mode", "morvellan:CMYKOverprintMode", kCodeValue,
     jobCmykOverprintModeValues},
    {nullptr, nullptr, kTextValue, nullptr},
};

const ObjectValueRow kEnhancementRows[] = {
    {"job-edge-enhancement", "morvellan:EdgeEnhancement", booleanValues, getRenderingParams},
    {"job-thin-line-enhancement", "morvellan:ThinLineEnhancement", booleanValues,
     getRenderingParams},
    {nullptr, nullptr, nullptr, nullptr},
};

// In the order they are written, with the Separation of each partition.
const char *const kMaximumDensities[][2] = {
    {"job-maximum-c-density", "Cyan"},
    {"job-maximum-k-density", "Black"},
    {"job-maximum-m-density", "Magenta"},
    {"job-maximum-y-density", "Yellow"},
};

const zundo_enum_pair_s kAccuracyModeValues[] = {{1, "High"}, {2, "Standard"}, {-1, nullptr}};

// Written after ExtraInfo and the density conversion parameter, with the
// time stamps between the base screen and Locked.
const ElementValueRow kCalibrationRows[] = {
    {"calibration-type-product-id", "ProductID", kTextValue, nullptr},
    {"calibration-type-accuracy-mode", "AccuracyMode", kCodeValue, kAccuracyModeValues},
    {"calibration-type-tone-reproduction-curve", "ToneReproductionCurve", kTextValue, nullptr},
    {"calibration-type-base-screen", "BaseScreen", kCodeValue, baseScreenValues},
    {nullptr, nullptr, kTextValue, nullptr},
};
const ElementValueRow kCalibrationLockRows[] = {
    {"calibration-type-read-only", "Locked", kCodeValue, booleanValues},
    {"calibration-type-reference-data", "ReferenceData", kTextValue, nullptr},
    {nullptr, nullptr, kTextValue, nullptr},
};

// The first value of a value-object attribute, or null.
const void *firstValueObject(const FetchedAttribute &value) {
    zundo_int_attribute_s *values = value.attribute();
    resetIterator(values);
    return value.hasValue() ? nextValue(values) : nullptr;
}

void writeTimeStamp(xercesc::DOMElement *element, zundo_int_object_s *object, const char *attribute,
                    const char *jdfName) {
    FetchedAttribute value(object, attribute);
    const auto *time = static_cast<const zundo_date_time_s *>(firstValueObject(value));
    char text[ZUNDO_DATE_TIME_TEXT_SIZE];
    if (time != nullptr) setAttributeTraced(element, jdfName, toStringDateTime(text, time));
}

}  // namespace

void writeBlackOverprint(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeBlackOverprint\n");
    // Every written ticket has RenderingParams.
    xercesc::DOMElement *params = getRenderingParams(ctx);
    xercesc::DOMElement *overprint = params != nullptr && hasAnyElementValue(job, kOverprintRows)
                                         ? appendChildTraced(params, "AutomatedOverPrintParams")
                                         : nullptr;
    writeElementValues(overprint, job, kOverprintRows);
    zundo_trace("<< leaving writeBlackOverprint\n");
}

void writeEdgeEnhancement(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeEdgeEnhancement\n");
    writeObjectValues(ctx, job, kEnhancementRows);
    zundo_trace("<< leaving writeEdgeEnhancement\n");
}

void writeAntiAliasingAndResolution(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeAntiAliasingAndResolution\n");
    FetchedAttribute antiAliasing(job, "job-anti-aliasing");
    FetchedAttribute x(job, "job-output-resolution-x");
    FetchedAttribute y(job, "job-output-resolution-y");
    bool resolution = x.hasValue() && y.hasValue();
    xercesc::DOMElement *params =
        antiAliasing.hasValue() || resolution ? getRenderingParams(ctx) : nullptr;
    xercesc::DOMElement *element =
        params != nullptr ? appendChildTraced(params, "ObjectResolution") : nullptr;
    if (element != nullptr) {
        if (antiAliasing.hasValue())
            setAttributeTraced(element, "AntiAliasing", antiAliasing.firstString());
        char text[kPairTextSize];
        if (resolution)
            setAttributeTraced(
                element, "Resolution",
                formatValueText(text, sizeof text, "%i %i", x.firstInt(0), y.firstInt(0)));
    }
    zundo_trace("<< leaving writeAntiAliasingAndResolution\n");
}

void writeTonerLimit(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeTonerLimit\n");
    const char *mode =
        jdfNameForCode(jobTonerLimitPrintModeValues,
                       FetchedAttribute(job, "job-toner-limit-print-mode").firstInt(0));
    bool written = false;
    for (const ObjectKindName &kind : kObjectKindNames) {
        char name[64];
        std::snprintf(name, sizeof name, "job-toner-limit%s", kind.suffix);
        xercesc::DOMElement *ink = objectHasValue(job, name) ? getInk(ctx) : nullptr;
        xercesc::DOMElement *details =
            ink != nullptr ? appendChildTraced(ink, "morvellan:TonerDetails") : nullptr;
        if (details == nullptr) continue;
        writeElementValue(details, job, name, "TonerLimit", kIntegerValue, nullptr);
        setAttributeTraced(details, "SourceObjects", kind.jdf);
        if (mode != nullptr) setAttributeTraced(details, "SpecialTonerPrintMode", mode);
        written = true;
    }
    xercesc::DOMElement *ink = !written && mode != nullptr ? getInk(ctx) : nullptr;
    xercesc::DOMElement *details =
        ink != nullptr ? appendChildTraced(ink, "morvellan:TonerDetails") : nullptr;
    if (details != nullptr) setAttributeTraced(details, "SpecialTonerPrintMode", mode);
    zundo_trace("<< leaving writeTonerLimit\n");
}

void writeMaximumDensities(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeMaximumDensities\n");
    xercesc::DOMElement *condition = nullptr;
    for (const auto &density : kMaximumDensities) {
        FetchedAttribute value(job, density[0]);
        if (!value.hasValue()) continue;
        if (condition == nullptr) {
            condition = getPrintCondition(ctx);
            if (condition == nullptr) break;
            setAttributeTraced(condition, "PartIDKeys", "Separation");
            setAttributeTraced(condition, "Name", "MaxDensity");
        }
        xercesc::DOMElement *partition = appendPartition(condition, "Separation", density[1]);
        writeElementValue(partition, job, density[0], "morvellan:MaxColorPlaneDensity", kCodeValue,
                          booleanValues);
    }
    zundo_trace("<< leaving writeMaximumDensities\n");
}

void writeCalibrationType(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeCalibrationType\n");
    zundo_int_object_s *calibration = FetchedAttribute(job, "job-calibration-type").firstObject();
    xercesc::DOMElement *pool = calibration != nullptr ? getResourcePool(ctx) : nullptr;
    // Read by nothing in the node, so it has no link.
    ResourceInfo info = {nullptr, nullptr,     "morvellan:CalibrationTypeParams",
                         "CTP0",  "Parameter", "Available",
                         nullptr, nullptr};
    if (pool != nullptr && succeededTraced(addResourceToPools(pool, nullptr, &info).status)) {
        std::string extraInfo;
        if (!joinValues(
                calibration, "calibration-type-extra-info",
                [](void *word) { return static_cast<const char *>(word); }, &extraInfo)) {
            traceOutOfMemory("writeCalibrationType");
            return;
        }
        if (!extraInfo.empty()) setAttributeTraced(info.resource, "ExtraInfo", extraInfo.c_str());
        writeVersionedBinary(info.resource, "DensityConversionParameter", calibration,
                             "calibration-type-density-conversion-param",
                             "calibration-type-density-conversion-param-version");
        writeElementValues(info.resource, calibration, kCalibrationRows);
        writeTimeStamp(info.resource, calibration, "calibration-type-created-time-stamp",
                       "CreatedTimeStamp");
        writeTimeStamp(info.resource, calibration, "calibration-type-last-calibration-time-stamp",
                       "LastCalibrationTimeStamp");
        writeElementValues(info.resource, calibration, kCalibrationLockRows);
    }
    zundo_trace("<< leaving writeCalibrationType\n");
}
