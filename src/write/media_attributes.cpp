// The content of a Media resource: its attributes, the sub-elements for
// holes, engine, calibration, PMP, tabs, comments and IDs, and the
// amount-used audit of its link. A value is written only when the media
// has one; a value without a JDF spelling is left out.
#include <cstddef>
#include <cstring>

#include "enums/value_tables.h"
#include "values/value_objects.h"
#include "write/audits.h"
#include "write/colour_writers.h"
#include "write/comments.h"
#include "write/jdf_attr.h"
#include "write/media_writer.h"
#include "write/number_format.h"
#include "write/object_values.h"

namespace {

typedef void (*MediaValueWriter)(xercesc::DOMElement *resource, zundo_int_object_s *media);

enum MediaOutput {
    kText,
    kCode,
    kReal,
    kInteger,
    kBothOfPair,    // written only when x and y both have values
    kEitherOfPair,  // written when either has one, the other then 0
    kCommentCode,   // a Comment named jdfName holding the code's spelling
    kCustom,
};

struct MediaOutputRow {
    MediaOutput output;
    const char *attribute;
    const char *jdfName;
    const char *second;  // the y of a pair
    const zundo_enum_pair_s *values;
    MediaValueWriter write;  // kCustom
};

constexpr MediaOutputRow text(const char *attribute, const char *jdfName) {
    return {kText, attribute, jdfName, nullptr, nullptr, nullptr};
}
constexpr MediaOutputRow code(const char *attribute, const char *jdfName,
                              const zundo_enum_pair_s *values) {
    return {kCode, attribute, jdfName, nullptr, values, nullptr};
}
constexpr MediaOutputRow real(const char *attribute, const char *jdfName) {
    return {kReal, attribute, jdfName, nullptr, nullptr, nullptr};
}
constexpr MediaOutputRow integer(const char *attribute, const char *jdfName) {
    return {kInteger, attribute, jdfName, nullptr, nullptr, nullptr};
}
constexpr MediaOutputRow bothOfPair(const char *x, const char *y, const char *jdfName) {
    return {kBothOfPair, x, jdfName, y, nullptr, nullptr};
}
constexpr MediaOutputRow eitherOfPair(const char *x, const char *y, const char *jdfName) {
    return {kEitherOfPair, x, jdfName, y, nullptr, nullptr};
}
constexpr MediaOutputRow commentCode(const char *attribute, const char *commentName,
                                     const zundo_enum_pair_s *values) {
    return {kCommentCode, attribute, commentName, nullptr, values, nullptr};
}
constexpr MediaOutputRow custom(MediaValueWriter write) {
    return {kCustom, nullptr, nullptr, nullptr, nullptr, write};
}

// The first value of a value-object attribute (date-time, binary), or null.
const void *firstValueObject(const FetchedAttribute &value) {
    zundo_int_attribute_s *attribute = value.attribute();
    resetIterator(attribute);
    return hasNextValue(attribute) ? nextValue(attribute) : nullptr;
}

// The first date-time as text in buffer, or null.
const char *dateTimeText(char *buffer, zundo_int_object_s *media, const char *attribute) {
    FetchedAttribute value(media, attribute);
    const auto *dateTime = static_cast<const zundo_date_time_s *>(firstValueObject(value));
    return dateTime != nullptr ? toStringDateTime(buffer, dateTime) : nullptr;
}

void setDateTimeIfPresent(xercesc::DOMElement *element, const char *jdfName,
                          zundo_int_object_s *media, const char *attribute) {
    char text[ZUNDO_DATE_TIME_TEXT_SIZE];
    if (dateTimeText(text, media, attribute) != nullptr) setAttributeTraced(element, jdfName, text);
}

void setTextIfPresent(xercesc::DOMElement *element, const char *jdfName,
                      zundo_int_object_s *media, const char *attribute) {
    FetchedAttribute value(media, attribute);
    if (value.hasValue()) setAttributeTraced(element, jdfName, value.firstString());
}

void writePair(xercesc::DOMElement *element, zundo_int_object_s *object, const MediaOutputRow &row) {
    FetchedAttribute x(object, row.attribute);
    FetchedAttribute y(object, row.second);
    bool written = row.output == kBothOfPair ? x.hasValue() && y.hasValue()
                                             : x.hasValue() || y.hasValue();
    if (!written) return;
    char pair[kPairTextSize];
    setAttributeTraced(element, row.jdfName,
                       formatRealPair(pair, sizeof pair, x.firstDouble(0.0), y.firstDouble(0.0)));
}

void writeRow(xercesc::DOMElement *element, zundo_int_object_s *object, const MediaOutputRow &row) {
    if (row.output == kCustom) {
        row.write(element, object);
        return;
    }
    if (row.output == kBothOfPair || row.output == kEitherOfPair) {
        writePair(element, object, row);
        return;
    }
    FetchedAttribute value(object, row.attribute);
    if (!value.hasValue()) return;
    char number[kNumberTextSize];
    const char *spelling = nullptr;
    switch (row.output) {
    case kText:
        setAttributeTraced(element, row.jdfName, value.firstString());
        break;
    case kCode:
        spelling = jdfNameForCode(row.values, value.firstInt(0));
        if (spelling != nullptr) setAttributeTraced(element, row.jdfName, spelling);
        break;
    case kReal:
        setAttributeTraced(element, row.jdfName,
                           formatReal(number, sizeof number, value.firstDouble(0.0)));
        break;
    case kInteger:
        setAttributeTraced(element, row.jdfName,
                           formatInteger(number, sizeof number, value.firstInt(0)));
        break;
    case kCommentCode:
        spelling = jdfNameForCode(row.values, value.firstInt(0));
        if (spelling != nullptr) addComment(element, spelling, nullptr, row.jdfName);
        break;
    default:  // pairs and custom rows are written above
        break;
    }
}

template <size_t N>
void writeRows(xercesc::DOMElement *element, zundo_int_object_s *object,
               const MediaOutputRow (&rows)[N]) {
    for (const MediaOutputRow &row : rows) writeRow(element, object, row);
}

const MediaOutputRow kHoleRows[] = {
    bothOfPair("hole-center-x", "hole-center-y", "Center"),
    bothOfPair("hole-extent-x", "hole-extent-y", "Extent"),
    code("hole-shape", "Shape", holeShapeValues),
};

void writeHole(xercesc::DOMElement *parent, zundo_int_object_s *hole) {
    xercesc::DOMElement *element = appendChildTraced(parent, "Hole");
    if (element != nullptr) writeRows(element, hole, kHoleRows);
}

void writeHoleLine(xercesc::DOMElement *parent, zundo_int_object_s *line) {
    xercesc::DOMElement *element = appendChildTraced(parent, "HoleLine");
    if (element != nullptr) writeHoleLineContent(element, line);
}

void writeEachObject(xercesc::DOMElement *parent, zundo_int_object_s *owner, const char *name,
                     void (*write)(xercesc::DOMElement *, zundo_int_object_s *)) {
    FetchedAttribute objects(owner, name);
    zundo_int_attribute_s *values = objects.attribute();
    resetIterator(values);
    while (hasNextValue(values)) {
        auto *object = static_cast<zundo_int_object_s *>(nextValue(values));
        if (object != nullptr) write(parent, object);
    }
}

// A count of holes stands for the holes themselves.
void writeHoleList(xercesc::DOMElement *resource, zundo_int_object_s *media) {
    zundo_int_object_s *list = FetchedAttribute(media, "media-hole-list").firstObject();
    if (objectHasValue(media, "media-hole-count") || list == nullptr) return;
    xercesc::DOMElement *element = appendChildTraced(resource, "HoleList");
    if (element == nullptr) return;
    writeEachObject(element, list, "hole-list-holes", writeHole);
    writeEachObject(element, list, "hole-list-hole-lines", writeHoleLine);
}

void writeCalibrationInfo(xercesc::DOMElement *resource, zundo_int_object_s *media) {
    if (!objectHasValue(media, "media-calibration-time-stamp") &&
        !objectHasValue(media, "media-calibration-type-name"))
        return;
    xercesc::DOMElement *info = appendChildTraced(resource, "morvellan:CalibrationInfo");
    if (info == nullptr) return;
    setDateTimeIfPresent(info, "LastCalibrationTimeStamp", media, "media-calibration-time-stamp");
    setTextIfPresent(info, "CalibrationTypeName", media, "media-calibration-type-name");
}

const char *const kEngineCatalogAttributes[] = {
    "media-engine-state",          "media-engine-moses",
    "media-engine-moses-version",  "media-engine-mqprank",
    "media-engine-mqprank-version", "media-engine-serial-number",
    "media-engine-serial-number-version",
};

void writeEngineMediaCatalogInfo(xercesc::DOMElement *resource, zundo_int_object_s *media) {
    bool any = false;
    for (const char *attribute : kEngineCatalogAttributes)
        any = any || objectHasValue(media, attribute);
    if (!any) return;
    xercesc::DOMElement *info = appendChildTraced(resource, "morvellan:EngineMediaCatalogInfo");
    if (info == nullptr) return;
    writeRow(info, media, integer("media-engine-state", "State"));
    writeVersionedBinary(info, "Moses", media, "media-engine-moses", "media-engine-moses-version");
    writeVersionedBinary(info, "MQPRank", media, "media-engine-mqprank",
                         "media-engine-mqprank-version");
    writeVersionedBinary(info, "SerialNumber", media, "media-engine-serial-number",
                         "media-engine-serial-number-version");
}

// A ResourceAudit recording the amount used, with a copy of the link.
void writeAmountUsed(JDFWriteContext *ctx, xercesc::DOMElement *link, zundo_int_object_s *media,
                     bool auditOnly) {
    FetchedAttribute amount(media, "media-amount-used");
    if (!amount.hasValue() || link == nullptr) return;
    AuditPoolElementRecord record = {"ResourceAudit", nullptr};
    if (addAuditPoolElement(ctx, &record) != ZUNDO_OK || record.element == nullptr) return;
    setAttributeTraced(record.element, "NodeStatus", "InProgress");
    setAttributeTraced(record.element, "Reason", "ProcessResult");
    char number[kNumberTextSize];
    setAttributeTraced(link, "ActualAmount",
                       formatReal(number, sizeof number, amount.firstDouble(0.0)));
    if (auditOnly) setAttributeTraced(link, "morvellan:AuditOnly", "true");
    char time[ZUNDO_DATE_TIME_TEXT_SIZE];
    const char *timeStamp = dateTimeText(time, media, "media-amount-used-time-stamp");
    setAttributeTraced(record.element, "TimeStamp",
                       timeStamp != nullptr ? timeStamp : kMissingTimeStamp);
    xercesc::DOMElement *copy = appendChildTraced(record.element, "MediaLink");
    if (copy != nullptr) copyElementTree(link, copy);
}

void writePMPInfo(xercesc::DOMElement *resource, zundo_int_object_s *media) {
    if (!objectHasValue(media, "media-pmp-time-stamp") &&
        !objectHasValue(media, "media-pmp-status"))
        return;
    xercesc::DOMElement *info = appendChildTraced(resource, "morvellan:PMPInfo");
    if (info == nullptr) return;
    setDateTimeIfPresent(info, "PMPTimeStamp", media, "media-pmp-time-stamp");
    writeRow(info, media, code("media-pmp-status", "PMPStatus", mediaPmpStatusValues));
}

void writeHoleType(xercesc::DOMElement *resource, zundo_int_object_s *media) {
    FetchedAttribute count(media, "media-hole-count");
    if (!count.hasValue()) return;
    const char *spelling = jdfNameForCode(mediaHoleCountValues, count.firstInt(0));
    char generic[kNumberTextSize];
    if (spelling == nullptr)
        spelling = formatValueText(generic, sizeof generic, "R%d-generic", count.firstInt(0));
    setAttributeTraced(resource, "HoleType", spelling);
}

void writeCustomDimension(xercesc::DOMElement *resource, zundo_int_object_s *media) {
    if (FetchedAttribute(media, "media-operator-intervention-for-custom-dimension").firstInt(-1) ==
        1)
        setAttributeTraced(resource, "OperatorInterventionExceptions",
                           "DescriptiveName Dimension");
}

void writeTrayName(xercesc::DOMElement *resource, zundo_int_object_s *media) {
    FetchedAttribute tray(media, "media-input-tray-name");
    if (!tray.hasValue()) return;
    xercesc::DOMElement *location = appendChildTraced(resource, "Location");
    if (location != nullptr) setAttributeTraced(location, "LocationName", tray.firstString());
}

void writeDescription(xercesc::DOMElement *resource, zundo_int_object_s *media) {
    FetchedAttribute comment(media, "media-comment");
    if (comment.hasValue() && comment.firstString()[0] != '\0')
        addComment(resource, comment.firstString(), nullptr, "Description");
}

void writeReadOnly(xercesc::DOMElement *resource, zundo_int_object_s *media) {
    const char *spelling =
        jdfNameForCode(booleanValues, FetchedAttribute(media, "media-read-only").firstInt(-1));
    if (spelling == nullptr) return;
    addComment(resource, spelling, nullptr, "morvellan:ReadOnly");
    setAttributeTraced(resource, "Locked", spelling);
}

void writeUnits(xercesc::DOMElement *resource, zundo_int_object_s *media) {
    FetchedAttribute units(media, "media-units");
    if (units.hasValue()) addDescriptionComment(resource, units.firstString(), "Dimension");
}

// A measure at its not-set value counts as not given: the model cannot
// tell a width of 0 from no width.
const MediaOutputRow kTabRows[] = {
    code("media-tab-set-collation-order", "TabSetCollationOrder", mediaTabSetCollationOrderValues),
    real("media-tab-extension", "TabExtensionDistance"),
    real("media-tab-offset", "TabOffset"),
    real("media-tab-width", "TabWidth"),
    real("media-tab-shift", "morvellan:TabShift"),
};

void writeTabDimensions(xercesc::DOMElement *resource, zundo_int_object_s *media) {
    bool any = false;
    for (const MediaOutputRow &row : kTabRows) any = any || objectHasValue(media, row.attribute);
    if (!any) return;
    xercesc::DOMElement *tabs = appendChildTraced(resource, "TabDimensions");
    if (tabs != nullptr) writeRows(tabs, media, kTabRows);
}

// "Paper" and "Transparency" are media types of their own; the plastic
// folder is a kind of transparency and anything else a kind of paper.
void writeTypeDetails(xercesc::DOMElement *resource, zundo_int_object_s *media) {
    FetchedAttribute details(media, "media-type-details");
    if (!details.hasValue()) return;
    const char *type = details.firstString();
    if (std::strcmp(type, "Transparency") == 0 || std::strcmp(type, "Paper") == 0) {
        setAttributeTraced(resource, "MediaType", type);
        return;
    }
    bool folder = std::strcmp(type, "morvellan:PlasticFolder") == 0;
    setAttributeTraced(resource, "MediaType", folder ? "Transparency" : "Paper");
    setAttributeTraced(resource, "MediaTypeDetails", type);
}

void writeGeneralId(xercesc::DOMElement *resource, zundo_int_object_s *media) {
    FetchedAttribute id(media, "media-id");
    if (!id.hasValue() || id.firstString()[0] == '\0') return;
    xercesc::DOMElement *generalId = appendChildTraced(resource, "GeneralID");
    if (generalId == nullptr) return;
    setAttributeTraced(generalId, "DataType", "string");
    setAttributeTraced(generalId, "IDUsage", "DeviceProductID");
    setAttributeTraced(generalId, "IDValue", id.firstString());
}

const MediaOutputRow kMediaRows[] = {
    text("media-name", "DescriptiveName"),
    text("media-type-manual-mode", "morvellan:MediaTypeManualMode"),
    code("media-color", "MediaColorName", mediaColorValues),
    text("media-color-details", "MediaColorNameDetails"),
    custom(writeHoleType),
    code("media-imagable-side", "ImagableSide", mediaImagableSideValues),
    custom(writeCustomDimension),
    custom(writeTrayName),
    custom(writeDescription),
    commentCode("media-favorite", "morvellan:Favorite", booleanValues),
    custom(writeReadOnly),
    commentCode("media-feed-edge", "Orientation", mediaFeedEdgeValues),
    custom(writeUnits),
    custom(writeTabDimensions),
    text("media-lab-color", "LabColorValue"),
    code("media-opacity", "Opacity", mediaOpacityValues),
    code("media-color-rendering-intent", "morvellan:RenderingIntent", renderingIntentValues),
    code("media-color-rendering-intent-image", "morvellan:RenderingIntentImage",
         renderingIntentValues),
    code("media-color-rendering-intent-line-art", "morvellan:RenderingIntentLineArt",
         renderingIntentValues),
    text("media-brand", "Brand"),
    text("media-manufacturer", "Manufacturer"),
    code("media-color-rendering-intent-smooth-shades", "morvellan:RenderingIntentSmoothShades",
         renderingIntentValues),
    code("media-color-rendering-intent-text", "morvellan:RenderingIntentText",
         renderingIntentValues),
    code("media-preprinted", "PrePrinted", booleanValues),
    real("media-recycled-percentage", "RecycledPercentage"),
    integer("media-set-count", "MediaSetCount"),
    text("media-stock", "StockType"),
    text("media-texture", "Texture"),
    custom(writeTypeDetails),
    real("media-weight", "Weight"),
    code("media-front-coating-detail", "FrontCoatingDetail", mediaFrontCoatingDetailValues),
    code("media-front-coatings", "FrontCoatings", mediaCoatingsValues),
    code("media-back-coatings", "BackCoatings", mediaCoatingsValues),
    text("media-printing-technology", "PrintingTechnology"),
    real("media-thickness", "Thickness"),
    code("media-unit-format", "MediaUnit", mediaUnitFormatValues),
    bothOfPair("media-x-dimension", "media-y-dimension", "Dimension"),
    eitherOfPair("media-x-dimension-in-units", "media-y-dimension-in-units",
                 "morvellan:DimensionInUnits"),
    custom(writeGeneralId),
    text("media-product-id", "ProductID"),
    code("media-auto-select", "morvellan:AutoMediaSelect", booleanValues),
    code("media-sensitive-edge", "morvellan:SensitiveEdge", booleanValues),
    code("media-sensitive-side", "morvellan:SensitiveSide", booleanValues),
    eitherOfPair("media-print-registration-simplex-x", "media-print-registration-simplex-y",
                 "morvellan:PrintRegistrationSimplex"),
    eitherOfPair("media-print-registration-duplex-back-x", "media-print-registration-duplex-back-y",
                 "morvellan:PrintRegistrationDuplexBack"),
    eitherOfPair("media-print-registration-duplex-front-x",
                 "media-print-registration-duplex-front-y",
                 "morvellan:PrintRegistrationDuplexFront"),
    eitherOfPair("media-print-registration-tumble-back-x", "media-print-registration-tumble-back-y",
                 "morvellan:PrintRegistrationTumbleBack"),
    eitherOfPair("media-print-registration-tumble-front-x",
                 "media-print-registration-tumble-front-y",
                 "morvellan:PrintRegistrationTumbleFront"),
    code("media-override-snapshot", "morvellan:OverrideSnapshot", mediaOverrideSnapshotValues),
};

}  // namespace

void writeVersionedBinary(xercesc::DOMElement *parent, const char *name, zundo_int_object_s *object,
                          const char *dataAttribute, const char *versionAttribute) {
    FetchedAttribute data(object, dataAttribute);
    if (!data.hasValue() && !objectHasValue(object, versionAttribute)) return;
    xercesc::DOMElement *block = appendChildTraced(parent, name);
    if (block == nullptr) return;
    setTextIfPresent(block, "FormatVersion", object, versionAttribute);
    const auto *binary = static_cast<const zundo_binary_object_s *>(firstValueObject(data));
    unsigned char *encoded = nullptr;
    if (binary == nullptr ||
        !succeededTraced(encodeBase64(getBinaryData(binary),
                                      static_cast<unsigned long>(getBinaryDataLength(binary)),
                                      &encoded)) ||
        encoded == nullptr)
        return;
    succeededTraced(appendTextNode(block, reinterpret_cast<char *>(encoded)).status);
    releaseXMLString(reinterpret_cast<char *>(encoded));
}

void writeHoleLineContent(xercesc::DOMElement *holeLine, zundo_int_object_s *line) {
    zundo_int_object_s *hole = FetchedAttribute(line, "hole-line-hole").firstObject();
    if (hole != nullptr) writeHole(holeLine, hole);
    writeRow(holeLine, line, real("hole-line-pitch", "Pitch"));
}

void writeMediaContent(JDFWriteContext *ctx, xercesc::DOMElement *resource,
                       xercesc::DOMElement *link, zundo_int_object_s *media, bool auditOnly) {
    writeHoleList(resource, media);
    writeCalibrationInfo(resource, media);
    writeVersionedBinary(resource, "morvellan:EngineAdjParamInfo", media,
                         "media-engine-adj-param-info", "media-engine-adj-param-info-version");
    writeEngineMediaCatalogInfo(resource, media);
    writeAmountUsed(ctx, link, media, auditOnly);
    writePMPInfo(resource, media);
    writeRows(resource, media, kMediaRows);
    writeMediaColorProfiles(ctx, media);
}
