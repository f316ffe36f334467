// Media resources read into media objects. Every attribute and child is
// read on its own: a value that does not convert is skipped and the rest
// of the media is still read.
#include "read/media_reader.h"

#include <xercesc/dom/DOMElement.hpp>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <string>
#include <vector>

#include "enums/value_tables.h"
#include "read/reader_conversions.h"
#include "xml/jdf_pools.h"
#include "xml/link_index.h"
#include "zundo_trace.h"

namespace {

enum MediaConversion {
    kText,
    kEnumeration,
    kColourName,
    kRealPair,
    kRealOrZero,  // set even when it fails, as 0.0
    kReal,        // set only when it converts
    kRecycledPercentage,
    kInteger,
    kBoolean,        // set as read, -1 included
    kValidBoolean,   // set only for "true" and "false"
    kHoleType,
    kCustomDimension,
    kMediaType,
    kMediaTypeDetails,
    kOverrideSnapshot,
};

struct MediaAttributeRow {
    const char *jdfName;
    MediaConversion conversion;
    const char *attribute;
    const char *second;  // the y of a pair
    const zundo_enum_pair_s *values;
};

// Sorted by JDF name in byte order.
const MediaAttributeRow kMediaAttributes[] = {
    {"BackCoatings", kEnumeration, "media-back-coatings", nullptr, mediaCoatingsValues},
    {"Brand", kText, "media-brand", nullptr, nullptr},
    {"DescriptiveName", kText, "media-name", nullptr, nullptr},
    {"Dimension", kRealPair, "media-x-dimension", "media-y-dimension", nullptr},
    {"FrontCoatingDetail", kEnumeration, "media-front-coating-detail", nullptr,
     mediaFrontCoatingDetailValues},
    {"FrontCoatings", kEnumeration, "media-front-coatings", nullptr, mediaCoatingsValues},
    {"HoleType", kHoleType, "media-hole-count", nullptr, mediaHoleCountValues},
    {"ImagableSide", kEnumeration, "media-imagable-side", nullptr, mediaImagableSideValues},
    {"LabColorValue", kText, "media-lab-color", nullptr, nullptr},
    {"Locked", kBoolean, "media-read-only", nullptr, nullptr},
    {"Manufacturer", kText, "media-manufacturer", nullptr, nullptr},
    {"MediaColorName", kColourName, "media-color", nullptr, mediaColorValues},
    {"MediaColorNameDetails", kText, "media-color-details", nullptr, nullptr},
    {"MediaSetCount", kInteger, "media-set-count", nullptr, nullptr},
    {"MediaType", kMediaType, "media-type-details", nullptr, nullptr},
    {"MediaTypeDetails", kMediaTypeDetails, "media-type-details", nullptr, nullptr},
    {"MediaUnit", kEnumeration, "media-unit-format", nullptr, mediaUnitFormatValues},
    {"Opacity", kEnumeration, "media-opacity", nullptr, mediaOpacityValues},
    {"OperatorInterventionExceptions", kCustomDimension,
     "media-operator-intervention-for-custom-dimension", nullptr, nullptr},
    {"PrePrinted", kValidBoolean, "media-preprinted", nullptr, nullptr},
    {"Preprinted", kValidBoolean, "media-preprinted", nullptr, nullptr},
    {"PrintingTechnology", kText, "media-printing-technology", nullptr, nullptr},
    {"ProductID", kText, "media-product-id", nullptr, nullptr},
    {"RecycledPercentage", kRecycledPercentage, "media-recycled-percentage", nullptr, nullptr},
    {"StockType", kText, "media-stock", nullptr, nullptr},
    {"Texture", kText, "media-texture", nullptr, nullptr},
    {"Thickness", kRealOrZero, "media-thickness", nullptr, nullptr},
    {"Weight", kReal, "media-weight", nullptr, nullptr},
    {"morvellan:AutoMediaSelect", kBoolean, "media-auto-select", nullptr, nullptr},
    {"morvellan:DimensionInUnits", kRealPair, "media-x-dimension-in-units",
     "media-y-dimension-in-units", nullptr},
    {"morvellan:MediaTypeManualMode", kText, "media-type-manual-mode", nullptr, nullptr},
    {"morvellan:OverrideSnapshot", kOverrideSnapshot, "media-override-snapshot", nullptr,
     mediaOverrideSnapshotValues},
    {"morvellan:PrintRegistrationDuplexBack", kRealPair, "media-print-registration-duplex-back-x",
     "media-print-registration-duplex-back-y", nullptr},
    {"morvellan:PrintRegistrationDuplexFront", kRealPair,
     "media-print-registration-duplex-front-x", "media-print-registration-duplex-front-y",
     nullptr},
    {"morvellan:PrintRegistrationSimplex", kRealPair, "media-print-registration-simplex-x",
     "media-print-registration-simplex-y", nullptr},
    {"morvellan:PrintRegistrationTumbleBack", kRealPair, "media-print-registration-tumble-back-x",
     "media-print-registration-tumble-back-y", nullptr},
    {"morvellan:PrintRegistrationTumbleFront", kRealPair,
     "media-print-registration-tumble-front-x", "media-print-registration-tumble-front-y",
     nullptr},
    {"morvellan:RenderingIntent", kEnumeration, "media-color-rendering-intent", nullptr,
     renderingIntentValues},
    {"morvellan:RenderingIntentImage", kEnumeration, "media-color-rendering-intent-image", nullptr,
     renderingIntentValues},
    {"morvellan:RenderingIntentLineArt", kEnumeration, "media-color-rendering-intent-line-art",
     nullptr, renderingIntentValues},
    {"morvellan:RenderingIntentSmoothShades", kEnumeration,
     "media-color-rendering-intent-smooth-shades", nullptr, renderingIntentValues},
    {"morvellan:RenderingIntentText", kEnumeration, "media-color-rendering-intent-text", nullptr,
     renderingIntentValues},
    {"morvellan:SensitiveEdge", kValidBoolean, "media-sensitive-edge", nullptr, nullptr},
    {"morvellan:SensitiveSide", kValidBoolean, "media-sensitive-side", nullptr, nullptr},
};

const char kNoTime[] = "0000-00-00T00:00:00+00:00";

// The reader's colour table ends at LightViolet: White and Yellow, in all
// three shades, read as no colour.
const int kLastReadableColour = 60;

const MediaAttributeRow *findMediaAttributeRow(const char *jdfName) {
    const MediaAttributeRow *end = std::end(kMediaAttributes);
    const MediaAttributeRow *row =
        std::lower_bound(std::begin(kMediaAttributes), end, jdfName,
                         [](const MediaAttributeRow &candidate, const char *key) {
                             return std::strcmp(candidate.jdfName, key) < 0;
                         });
    return row != end && std::strcmp(row->jdfName, jdfName) == 0 ? row : nullptr;
}

// A count of holes: a generic type of the table, or any "R<n>-generic";
// -2 (no count) for anything else.
int holeCount(const char *text) {
    int count = codeForJDFName(mediaHoleCountValues, text);
    if (count != 0 || textIs(text, "None")) return count;
    return std::sscanf(text, "R%d-generic", &count) == 1 ? count : -2;
}

void readMediaAttribute(zundo_int_object_s *media, const MediaAttributeRow &row, const char *text,
                        bool *typeDetailsSeen) {
    switch (row.conversion) {
    case kText:
        setStringAttribute(media, row.attribute, text);
        break;
    case kEnumeration:
        setIntegerAttribute(media, row.attribute, codeForJDFName(row.values, text));
        break;
    case kColourName: {
        int code = codeForJDFName(row.values, text);
        setIntegerAttribute(media, row.attribute, code <= kLastReadableColour ? code : 0);
        break;
    }
    case kRealPair:
        setRealPairFromText(media, row.attribute, row.second, text);
        break;
    case kRealOrZero: {
        double value = 0.0;
        if (!convertStringToDouble(text, &value)) value = 0.0;
        setDoubleAttribute(media, row.attribute, value);
        break;
    }
    case kReal:
        setRealFromText(media, row.attribute, text);
        break;
    case kRecycledPercentage: {
        double value = 0.0;
        if (convertStringToDouble(text, &value) &&
            setDoubleAttribute(media, row.attribute, value) != ZUNDO_OK)
            zundo_trace("call to setDoubleAttribute failed for %s: internal error \n",
                        row.attribute);
        break;
    }
    case kInteger:
        setIntegerFromText(media, row.attribute, text);
        break;
    case kBoolean:
        setIntegerAttribute(media, row.attribute, convertBoolean(text));
        break;
    case kValidBoolean: {
        int value = convertBoolean(text);
        if (value != -1) setIntegerAttribute(media, row.attribute, value);
        break;
    }
    case kHoleType:
        setIntegerAttribute(media, row.attribute, holeCount(text));
        break;
    case kCustomDimension:
        if (textIs(text, "DescriptiveName Dimension")) setIntegerAttribute(media, row.attribute, 1);
        break;
    case kMediaType:
        if (!*typeDetailsSeen) setStringAttribute(media, row.attribute, text);
        break;
    case kMediaTypeDetails:
        *typeDetailsSeen = true;
        setStringAttribute(media, row.attribute, text);
        break;
    case kOverrideSnapshot: {
        // The attribute holds one code: that of the first word.
        std::vector<std::string> words = splitWords(text, kBlankSeparators);
        if (!words.empty())
            setIntegerAttribute(media, row.attribute,
                                codeForJDFName(row.values, words.front().c_str()));
        break;
    }
    }
}

void readMediaAttributes(zundo_int_object_s *media, const xercesc::DOMElement *element) {
    AttributeEntry **attributes = nullptr;
    if (getAttrs(element, &attributes).status != ZUNDO_OK) return;
    bool typeDetailsSeen = false;
    for (AttributeEntry **entry = attributes; entry != nullptr && *entry != nullptr; ++entry) {
        const MediaAttributeRow *row = findMediaAttributeRow((*entry)->name);
        if (row != nullptr) readMediaAttribute(media, *row, (*entry)->value, &typeDetailsSeen);
    }
    freeAttrList(attributes);
}

// The ResourceAudit of the media's JDF node whose MediaLink refers to the
// link's rRef, or null.
const xercesc::DOMElement *findMediaAudit(const xercesc::DOMElement *media,
                                          const xercesc::DOMElement *link) {
    xercesc::DOMNode *node = getParentElement(getParentElement(media));
    if (node == nullptr || node->getNodeType() != xercesc::DOMNode::ELEMENT_NODE) return nullptr;
    xercesc::DOMElement *auditPool =
        ChildElements(static_cast<xercesc::DOMElement *>(node)).first("AuditPool");
    return auditPool != nullptr ? findHolderOfReference(auditPool, u"ResourceAudit", u"MediaLink",
                                                        link->getAttribute(u"rRef"))
                                : nullptr;
}

void readAmountUsed(zundo_int_object_s *media, const xercesc::DOMElement *element) {
    xercesc::DOMElement *link = getElementLinkFromElement(element, "Input");
    if (link == nullptr) return;
    setRealFromText(media, "media-amount-used", ElementAttribute(link, "ActualAmount").value());
    if (!link->hasAttribute(u"rRef")) return;
    const xercesc::DOMElement *audit = findMediaAudit(element, link);
    if (audit == nullptr) return;
    // The writer stamps audits without a time with the zero time.
    ElementAttribute time(audit, "TimeStamp");
    if (!textIs(time.value(), kNoTime))
        setDateTimeFromText(media, "media-amount-used-time-stamp", time.value());
}

void setTextIfPresent(zundo_int_object_s *media, const xercesc::DOMElement *element,
                      const char *jdfName, const char *attribute) {
    ElementAttribute value(element, jdfName);
    if (value.value() != nullptr) setStringAttribute(media, attribute, value.value());
}

void setEnumerationIfPresent(zundo_int_object_s *media, const xercesc::DOMElement *element,
                             const char *jdfName, const zundo_enum_pair_s *values,
                             const char *attribute) {
    ElementAttribute value(element, jdfName);
    if (value.value() != nullptr)
        setIntegerAttribute(media, attribute, codeForJDFName(values, value.value()));
}

void setRealOrZero(zundo_int_object_s *media, const xercesc::DOMElement *element,
                   const char *jdfName, const char *attribute) {
    double value = 0.0;
    if (!convertStringToDouble(ElementAttribute(element, jdfName).value(), &value)) value = 0.0;
    setDoubleAttribute(media, attribute, value);
}

// The element's text, transcoded; empty when it has none.
std::string elementText(const xercesc::DOMElement *element) {
    char *text = nullptr;
    getElementText(element, &text);
    std::string copy = text != nullptr ? text : "";
    delete[] text;
    return copy;
}

// FormatVersion names the version of the Base64 data in the text.
void readVersionedBinary(zundo_int_object_s *media, const xercesc::DOMElement *block,
                         const char *dataAttribute, const char *versionAttribute) {
    setTextIfPresent(media, block, "FormatVersion", versionAttribute);
    setBinaryFromBase64(media, dataAttribute, elementText(block).c_str());
}

void readLocation(zundo_int_object_s *media, xercesc::DOMElement *location) {
    setTextIfPresent(media, location, "LocationName", "media-input-tray-name");
}

void readCalibrationInfo(zundo_int_object_s *media, xercesc::DOMElement *info) {
    ElementAttribute time(info, "LastCalibrationTimeStamp");
    if (time.value() != nullptr)
        setDateTimeFromText(media, "media-calibration-time-stamp", time.value());
    setTextIfPresent(media, info, "CalibrationTypeName", "media-calibration-type-name");
}

void readEngineAdjParamInfo(zundo_int_object_s *media, xercesc::DOMElement *info) {
    readVersionedBinary(media, info, "media-engine-adj-param-info",
                        "media-engine-adj-param-info-version");
}

struct EngineBlock {
    const char *name;
    const char *dataAttribute;
    const char *versionAttribute;
};

const EngineBlock kEngineBlocks[] = {
    {"Moses", "media-engine-moses", "media-engine-moses-version"},
    {"MQPRank", "media-engine-mqprank", "media-engine-mqprank-version"},
    {"SerialNumber", "media-engine-serial-number", "media-engine-serial-number-version"},
};

void readEngineMediaCatalogInfo(zundo_int_object_s *media, xercesc::DOMElement *info) {
    int state = 0;
    if (!convertStringToInt(ElementAttribute(info, "State").value(), &state)) state = 999999;
    setIntegerAttribute(media, "media-engine-state", state);
    ChildElements blocks(info);
    for (ElementEntry *block : blocks)
        for (const EngineBlock &known : kEngineBlocks)
            if (std::strcmp(block->name, known.name) == 0)
                readVersionedBinary(media, block->element, known.dataAttribute,
                                    known.versionAttribute);
}

void readPMPInfo(zundo_int_object_s *media, xercesc::DOMElement *info) {
    setEnumerationIfPresent(media, info, "PMPStatus", mediaPmpStatusValues, "media-pmp-status");
    ElementAttribute time(info, "PMPTimeStamp");
    if (time.value() != nullptr) setDateTimeFromText(media, "media-pmp-time-stamp", time.value());
}

void readHoleList(zundo_int_object_s *media, xercesc::DOMElement *element) {
    zundo_int_object_s *list = nullptr;
    if (newHoleList(&list) != ZUNDO_OK) return;
    ChildElements children(element);
    for (ElementEntry *child : children) {
        if (std::strcmp(child->name, "Hole") == 0) {
            zundo_int_object_s *hole = readHole(child->element);
            if (hole != nullptr &&
                appendAttributeValue(list, "hole-list-holes", hole) == ZUNDO_NOT_FOUND)
                destroy(hole);
        } else if (std::strcmp(child->name, "HoleLine") == 0) {
            zundo_int_object_s *line = readHoleLine(child->element);
            if (line != nullptr &&
                appendAttributeValue(list, "hole-list-hole-lines", line) == ZUNDO_NOT_FOUND)
                destroy(line);
        }
    }
    if (setObjectAttribute(media, "media-hole-list", list) != ZUNDO_OK) destroy(list);
}

// The comment's Attribute and Name say which media value its text is.
void readComment(zundo_int_object_s *media, xercesc::DOMElement *comment) {
    std::string text = elementText(comment);
    ElementAttribute name(comment, "Name");
    if (textIs(ElementAttribute(comment, "Attribute").value(), "Dimension") &&
        textIs(name.value(), "Description")) {
        setStringAttribute(media, "media-units", text.c_str());
    } else if (textIs(name.value(), "Description")) {
        setStringAttribute(media, "media-comment", text.c_str());
    } else if (textIs(name.value(), "morvellan:Favorite")) {
        setIntegerAttribute(media, "media-favorite", convertBoolean(text.c_str()));
    } else if (textIs(name.value(), "morvellan:ReadOnly")) {
        // A Locked attribute on the Media says the same and wins.
        zundo_int_attribute_s *readOnly = get(media, "media-read-only");
        bool known = hasNextValue(readOnly) != 0;
        destroyAttribute(readOnly);
        if (!known) setIntegerAttribute(media, "media-read-only", convertBoolean(text.c_str()));
    } else if (textIs(name.value(), "Orientation")) {
        setIntegerAttribute(media, "media-feed-edge",
                            codeForJDFName(mediaFeedEdgeValues, text.c_str()));
    }
}

void readGeneralId(zundo_int_object_s *media, xercesc::DOMElement *generalId) {
    setTextIfPresent(media, generalId, "IDValue", "media-id");
}

void readTabDimensions(zundo_int_object_s *media, xercesc::DOMElement *tabs) {
    setEnumerationIfPresent(media, tabs, "TabSetCollationOrder", mediaTabSetCollationOrderValues,
                            "media-tab-set-collation-order");
    setRealOrZero(media, tabs, "TabExtensionDistance", "media-tab-extension");
    setRealOrZero(media, tabs, "TabOffset", "media-tab-offset");
    setRealOrZero(media, tabs, "TabWidth", "media-tab-width");
    setRealOrZero(media, tabs, "morvellan:TabShift", "media-tab-shift");
}

typedef void (*MediaChildReader)(zundo_int_object_s *media, xercesc::DOMElement *child);

struct MediaChildRow {
    const char *name;
    MediaChildReader read;
};

const MediaChildRow kMediaChildren[] = {
    {"Comment", readComment},
    {"GeneralID", readGeneralId},
    {"HoleList", readHoleList},
    {"Location", readLocation},
    {"TabDimensions", readTabDimensions},
    {"morvellan:CalibrationInfo", readCalibrationInfo},
    {"morvellan:EngineAdjParamInfo", readEngineAdjParamInfo},
    {"morvellan:EngineMediaCatalogInfo", readEngineMediaCatalogInfo},
    {"morvellan:PMPInfo", readPMPInfo},
};

void readMediaChildren(zundo_int_object_s *media, const xercesc::DOMElement *element) {
    ChildElements children(element);
    for (ElementEntry *child : children)
        for (const MediaChildRow &row : kMediaChildren)
            if (std::strcmp(child->name, row.name) == 0) row.read(media, child->element);
}

}  // namespace

// A hole object, or null when none can be made.
zundo_int_object_s *readHole(const xercesc::DOMElement *element) {
    zundo_int_object_s *hole = nullptr;
    if (newHoleEmpty(&hole) != ZUNDO_OK) return nullptr;
    setRealPairFromText(hole, "hole-center-x", "hole-center-y",
                        ElementAttribute(element, "Center").value());
    setRealPairFromText(hole, "hole-extent-x", "hole-extent-y",
                        ElementAttribute(element, "Extent").value());
    ElementAttribute shape(element, "Shape");
    if (shape.value() != nullptr)
        setIntegerAttribute(hole, "hole-shape", codeForJDFName(holeShapeValues, shape.value()));
    return hole;
}

zundo_int_object_s *readHoleLine(const xercesc::DOMElement *element) {
    zundo_int_object_s *line = nullptr;
    if (newHoleLineEmpty(&line) != ZUNDO_OK) return nullptr;
    zundo_int_object_s *hole = nullptr;
    ChildElements children(element);
    for (ElementEntry *child : children)
        if (hole == nullptr && std::strcmp(child->name, "Hole") == 0) hole = readHole(child->element);
    if (hole != nullptr && setObjectAttribute(line, "hole-line-hole", hole) != ZUNDO_OK)
        destroy(hole);
    double pitch = 0.0;
    if (!convertStringToDouble(ElementAttribute(element, "Pitch").value(), &pitch)) pitch = 0.0;
    setDoubleAttribute(line, "hole-line-pitch", pitch);
    return line;
}

zundo_status_t createMediaObject(zundo_int_object_s **out, xercesc::DOMElement *element) {
    zundo_trace(">> Entering createMediaObject \n");
    zundo_status_t status = newMedia(out, nullptr);
    if (status != ZUNDO_OK) return status;
    readAmountUsed(*out, element);
    readMediaAttributes(*out, element);
    readMediaChildren(*out, element);
    // No media extension reader is registered, so the extension step
    // always succeeds.
    zundo_trace("<< Leaving readMediaExtensions\n");
    zundo_trace("<< Leaving createMediaObject \n");
    return ZUNDO_OK;
}
