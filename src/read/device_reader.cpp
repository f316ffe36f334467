// Device, Disposition, PDLResourceAlias, RecordInfo, FontPolicy,
// CalibrationTypeParams and InterpretingParams: settings of the job that no
// document or page range overrides.
#include "read/device_reader.h"

#include <cstdio>
#include <cstring>
#include <xercesc/dom/DOMElement.hpp>

#include "enums/value_tables.h"
#include "read/reader_conversions.h"
#include "xml/index_lists.h"
#include "xml/jdf_node.h"
#include "xml/jdf_pools.h"
#include "zundo_trace.h"

namespace {

enum ValueKind {
    kText,
    kScannedReal,  // a "%lf" scan, 0.0 when nothing scans
    kWordList,
    kDateTime,
    kBoolean,
    kEnumeration,
    kIntegerOrZero,
    kDecimal,  // leading decimal digits, 0 without any
};

struct AttributeRow {
    const char *jdf;
    ValueKind kind;
    const char *name;
    const zundo_enum_pair_s *values;  // kEnumeration only
};

int convertCode(ValueKind kind, const zundo_enum_pair_s *values, const char *text) {
    int value = 0;
    switch (kind) {
    case kBoolean: return convertBoolean(text);
    case kEnumeration: return codeForJDFName(values, text);
    case kDecimal: return convertLeadingDecimal(text);
    case kIntegerOrZero: return convertStringToInt(text, &value) ? value : 0;
    default: return 0;
    }
}

void applyRow(zundo_int_object_s *object, const AttributeRow &row, const char *text) {
    switch (row.kind) {
    case kText: setStringAttribute(object, row.name, text); break;
    case kScannedReal: setDoubleAttribute(object, row.name, scanLeadingReal(text)); break;
    case kWordList: setWordListFromText(object, row.name, text, kBlankSeparators); break;
    case kDateTime: setDateTimeFromText(object, row.name, text); break;
    default: setIntegerAttribute(object, row.name, convertCode(row.kind, row.values, text)); break;
    }
}

// The element's attributes in their order, each by the row of its name.
template <size_t N>
void applyAttributeRows(const xercesc::DOMElement *element, zundo_int_object_s *object,
                        const AttributeRow (&rows)[N]) {
    AttributeEntry **attrs = nullptr;
    getAttrs(element, &attrs);
    for (AttributeEntry **at = attrs; at != nullptr && *at != nullptr; ++at) {
        for (const AttributeRow &row : rows) {
            if (std::strcmp(row.jdf, (*at)->name) != 0) continue;
            applyRow(object, row, (*at)->value);
            break;
        }
    }
    freeAttrList(attrs);
}

const AttributeRow kDeviceRows[] = {
    {"DeviceID", kText, "job-destination-name", nullptr},
    {"Manufacturer", kText, "job-destination-manufacturer", nullptr},
    {"ModelNumber", kText, "job-destination-model", nullptr},
    {"morvellan:ProductOID", kText, "job-destination-product-oid", nullptr},
};

const AttributeRow kControllerRows[] = {
    {"AvailableFunctions", kWordList, "job-destination-controller-available-functions", nullptr},
    {"BOSVersion", kText, "job-destination-controller-bos-version", nullptr},
    {"EngineInterfaceUnitVersion", kText,
     "job-destination-controller-engine-interface-unit-version", nullptr},
    {"FirmwareVersion", kText, "job-destination-controller-firmware-version", nullptr},
    {"InstalledMemory", kScannedReal, "job-destination-controller-installed-memory", nullptr},
    {"Name", kText, "job-destination-controller-name", nullptr},
    {"ProcessorName", kText, "job-destination-controller-processor-name", nullptr},
    {"ProcessorSpeed", kScannedReal, "job-destination-controller-processor-speed", nullptr},
    {"SerialNumber", kText, "job-destination-controller-serial-number", nullptr},
    {"Version", kText, "job-destination-controller-version", nullptr},
};

const AttributeRow kConnectorRows[] = {
    {"PrintFileFormat", kText, "job-destination-connector-file-format", nullptr},
};

const AttributeRow kRecordInfoRows[] = {
    {"MaxPagesPerRecord", kIntegerOrZero, "job-max-pages-per-record", nullptr},
    {"MinPagesPerRecord", kIntegerOrZero, "job-min-pages-per-record", nullptr},
    {"NRecord", kIntegerOrZero, "job-number-records", nullptr},
    {"UnstructureAllowed", kBoolean, "job-unstructure-allowed", nullptr},
};

const AttributeRow kFontPolicyRows[] = {
    {"UseDefaultFont", kBoolean, "job-use-default-font", nullptr},
};

const zundo_enum_pair_s kAccuracyModeValues[] = {{1, "High"}, {2, "Standard"}, {-1, nullptr}};

const AttributeRow kCalibrationRows[] = {
    {"AccuracyMode", kEnumeration, "calibration-type-accuracy-mode", kAccuracyModeValues},
    {"BaseScreen", kEnumeration, "calibration-type-base-screen", baseScreenValues},
    {"CreatedTimeStamp", kDateTime, "calibration-type-created-time-stamp", nullptr},
    {"ExtraInfo", kWordList, "calibration-type-extra-info", nullptr},
    {"LastCalibrationTimeStamp", kDateTime, "calibration-type-last-calibration-time-stamp",
     nullptr},
    {"Locked", kBoolean, "calibration-type-read-only", nullptr},
    {"ProductID", kText, "calibration-type-product-id", nullptr},
    {"ReferenceData", kText, "calibration-type-reference-data", nullptr},
    {"ToneReproductionCurve", kText, "calibration-type-tone-reproduction-curve", nullptr},
};

const AttributeRow kInterpretingRows[] = {
    {"MirrorAround", kEnumeration, "job-mirror-surface", jobMirrorSurfaceValues},
};

const AttributeRow kPDFInterpretingRows[] = {
    {"morvellan:CacheXObjects", kEnumeration, "job-pdf-cache-xobjects", jobPdfCacheXobjectsValues},
};

// The RIP parameters in the order newRipParams takes them, with the value
// each has when the element does not give it.
struct RipParameter {
    const char *jdf;
    ValueKind kind;
    const zundo_enum_pair_s *values;
    int fallback;
};

const RipParameter kRipParameters[] = {
    {"BlackDetection", kBoolean, nullptr, 0},
    {"Brightness", kEnumeration, ripParamsBrightnessValues, 0},
    {"CombinedSeparations", kBoolean, nullptr, 0},
    {"CreateMaster", kDecimal, nullptr, -1},
    {"DigitalPressMode", kEnumeration, ripParamsDigitalPressModeValues, 0},
    {"ImageSmooth", kEnumeration, ripParamsImageSmoothValues, 0},
    {"Mirror", kBoolean, nullptr, 0},
    {"Negative", kBoolean, nullptr, 0},
    {"PrintMode", kEnumeration, ripParamsPrintModeValues, 0},
    {"RemoveWhitePPTBackground", kBoolean, nullptr, 0},
    {"TextGraphicEnhancement", kBoolean, nullptr, 0},
    {"UseMaster", kDecimal, nullptr, -1},
};
const size_t kRipParameterCount = sizeof(kRipParameters) / sizeof(RipParameter);

zundo_status_t readRipParams(const xercesc::DOMElement *element, zundo_int_object_s *job) {
    int values[kRipParameterCount];
    for (size_t i = 0; i < kRipParameterCount; ++i) values[i] = kRipParameters[i].fallback;
    AttributeEntry **attrs = nullptr;
    getAttrs(element, &attrs);
    for (AttributeEntry **at = attrs; at != nullptr && *at != nullptr; ++at)
        for (size_t i = 0; i < kRipParameterCount; ++i)
            if (std::strcmp(kRipParameters[i].jdf, (*at)->name) == 0)
                values[i] = convertCode(kRipParameters[i].kind, kRipParameters[i].values,
                                        (*at)->value);
    freeAttrList(attrs);
    zundo_int_object_s *rip = nullptr;
    zundo_status_t status =
        newRipParams(&rip, values[0], values[1], values[2], values[3], values[4], values[5],
                     values[6], values[7], values[8], values[9], values[10], values[11]);
    if (status != ZUNDO_OK) return status;
    zundo_int_attribute_s *list = nullptr;
    if (newAttribute(&list, "job-rip-params", ZUNDO_KIND_OBJECT, rip) != ZUNDO_OK) {
        destroy(rip);
        return status;
    }
    setAndReleaseAttribute(job, list);
    return status;
}

// Every range of the page list that converts.
void setRangeList(zundo_int_object_s *object, const char *name, const char *text) {
    zundo_int_attribute_s *ranges = nullptr;
    if (newAttribute(&ranges, name, ZUNDO_KIND_RANGE, nullptr) != ZUNDO_OK) return;
    char **tokens = nullptr;
    parsePages(text, &tokens);
    for (char **token = tokens; token != nullptr && *token != nullptr; ++token) {
        zundo_range_s *range = nullptr;
        if (newRangeFromString(&range, *token) == ZUNDO_OK && addValue(ranges, range) != ZUNDO_OK)
            destroyRange(range);
    }
    freePageTokens(tokens);
    setAndReleaseAttribute(object, ranges);
}

// 2 when the RunList is the input of the DigitalPrinting process of its
// JDF node, else 0.
int retainFormat(const xercesc::DOMElement *runList) {
    xercesc::DOMNode *node = getParentElement(getParentElement(runList));
    if (node == nullptr || node->getNodeType() != xercesc::DOMNode::ELEMENT_NODE) return 0;
    char position[16];
    std::snprintf(position, sizeof position, "%d",
                  getProcessPosition(static_cast<xercesc::DOMElement *>(node), "DigitalPrinting"));
    xercesc::DOMElement *link = getElementLinkFromElement(runList, "Input");
    return textIs(ElementAttribute(link, "CombinedProcessIndex").value(), position) ? 2 : 0;
}

enum RetainAction { kExtraDuration = 1, kDispositionAction = 2, kMinDuration = 3, kUntil = 4 };

// A retain of the action in place of *retain.
void makeRetain(zundo_int_object_s **retain, int action, zundo_status_t *status) {
    if (*retain != nullptr) destroy(*retain);
    *retain = nullptr;
    *status = newRetain(retain, action);
}

}  // namespace

zundo_status_t readDeviceResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readDeviceResource \n");
    zundo_int_object_s *job = getJob(ticket);
    applyAttributeRows(resource, job, kDeviceRows);
    for (ElementEntry *child : ChildElements(resource)) {
        if (std::strcmp(child->name, "morvellan:ControllerInfo") == 0)
            applyAttributeRows(child->element, job, kControllerRows);
        else if (std::strcmp(child->name, "morvellan:ConnectorInfo") == 0)
            applyAttributeRows(child->element, job, kConnectorRows);
    }
    zundo_trace("<< Leaving readDeviceResource \n");
    return ZUNDO_OK;
}

zundo_status_t readDispositionElement(xercesc::DOMElement *runList,
                                      xercesc::DOMElement *disposition, zundo_int_object_s *job) {
    zundo_trace(">> Entering readDispositionElement \n");
    int format = retainFormat(runList);
    zundo_status_t status = ZUNDO_OK;
    zundo_int_object_s *retain = nullptr;
    ElementAttribute until(disposition, "Until");
    if (until.value() != nullptr) {
        makeRetain(&retain, kUntil, &status);
        if (retain != nullptr) setDateTimeFromText(retain, "retain-until", until.value());
    }
    // A minimum duration wins over a date.
    ElementAttribute minDuration(disposition, "MinDuration");
    if (minDuration.value() != nullptr) {
        makeRetain(&retain, kMinDuration, &status);
        if (retain != nullptr)
            setTimePeriodFromText(retain, "retain-time-period", minDuration.value());
    }
    if (retain == nullptr && ElementAttribute(disposition, "ExtraDuration").value() != nullptr)
        makeRetain(&retain, kExtraDuration, &status);
    if (retain == nullptr && ElementAttribute(disposition, "DispositionAction").value() != nullptr)
        makeRetain(&retain, kDispositionAction, &status);
    if (retain != nullptr) {
        ElementAttribute priority(disposition, "Priority");
        int value = -1;  // kept when the priority is not an integer
        if (priority.value() != nullptr) {
            convertStringToInt(priority.value(), &value);
            setIntegerAttribute(retain, "retain-priority", value);
        }
        setIntegerAttribute(retain, "retain-format", format);
        status = setObjectAttribute(job, "job-retain", retain);
        if (status != ZUNDO_OK) destroy(retain);
    }
    zundo_trace("<< Leaving readDispositionElement \n");
    return status;
}

zundo_status_t readPDLResourceAliasResource(xercesc::DOMElement *resource,
                                            zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readPDLResourceAliasResource \n");
    ElementAttribute type(resource, "ResourceType");
    ElementAttribute source(resource, "SourceName");
    if (source.value() != nullptr) {
        if (textIs(type.value(), "FormDefinition"))
            setStringAttribute(getJob(ticket), "job-form-definition", source.value());
        else if (textIs(type.value(), "PageDefinition"))
            setStringAttribute(getJob(ticket), "job-page-definition", source.value());
    }
    zundo_trace("<< Leaving readPDLResourceAliasResource \n");
    return ZUNDO_OK;
}

zundo_status_t readRecordInfoResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readRecordInfoResource \n");
    zundo_int_object_s *job = getJob(ticket);
    applyAttributeRows(resource, job, kRecordInfoRows);
    ElementAttribute recordIndex(resource, "RecordIndex");
    if (recordIndex.value() != nullptr)
        setRangeList(job, "job-process-records", recordIndex.value());
    zundo_trace("<< Leaving readRecordInfoResource \n");
    return ZUNDO_OK;
}

zundo_status_t readFontPolicyResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readFontPolicyResource \n");
    applyAttributeRows(resource, getJob(ticket), kFontPolicyRows);
    zundo_trace("<< Leaving readFontPolicyResource \n");
    return ZUNDO_OK;
}

zundo_status_t readCalibrationTypeParamsResource(xercesc::DOMElement *resource,
                                                 zundo_int_object_s *job) {
    zundo_trace(">> Entering readCalibrationTypeParamsResource \n");
    zundo_int_object_s *calibration = nullptr;
    if (newCalibrationType(&calibration, "defaultID") == ZUNDO_OK) {
        applyAttributeRows(resource, calibration, kCalibrationRows);
        xercesc::DOMElement *density = ChildElements(resource).first("DensityConversionParameter");
        if (density != nullptr) {
            ElementAttribute version(density, "FormatVersion");
            if (version.value() != nullptr)
                setStringAttribute(calibration, "calibration-type-density-conversion-param-version",
                                   version.value());
            char *text = nullptr;
            if (getElementText(density, &text).status == ZUNDO_OK)
                setBinaryFromBase64(calibration, "calibration-type-density-conversion-param", text);
            delete[] text;
        }
        if (setObjectAttribute(job, "job-calibration-type", calibration) != ZUNDO_OK)
            destroy(calibration);
    }
    zundo_trace("<< Leaving readCalibrationTypeParamsResource \n");
    return ZUNDO_OK;
}

zundo_status_t readMorvellanInterpretingParamsResource(xercesc::DOMElement *resource,
                                                       zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readMorvellanInterpretingParamsResource \n");
    zundo_int_object_s *job = getJob(ticket);
    applyAttributeRows(resource, job, kInterpretingRows);
    xercesc::DOMElement *vendorParams = nullptr;
    for (ElementEntry *child : ChildElements(resource)) {
        if (std::strcmp(child->name, "morvellan:MorvellanInterpretingParams") == 0)
            vendorParams = child->element;
        else if (std::strcmp(child->name, "ObjectResolution") == 0)
            setIntegerPairFromText(job, "job-resolution-image-x", "job-resolution-image-y",
                                   ElementAttribute(child->element, "Resolution").value());
        else if (std::strcmp(child->name, "PDFInterpretingParams") == 0)
            applyAttributeRows(child->element, job, kPDFInterpretingRows);
    }
    zundo_status_t status = ZUNDO_ERROR;
    if (vendorParams != nullptr)
        status = readRipParams(vendorParams, job);
    else
        zundo_trace("No morvellan:MorvellanInterpretingParams element exists");
    zundo_trace("<< Leaving readMorvellanInterpretingParamsResource \n");
    return status;
}
