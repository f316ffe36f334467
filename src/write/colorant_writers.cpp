// ColorantControl: the process colour model of the job and its page
// ranges, spot colour matching, the substitute colour table and the colour
// planes with the separations they add.
#include <cstdio>
#include <cstring>

#include "enums/value_tables.h"
#include "write/attribute_cascade.h"
#include "write/colour_writers.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/resource_getters.h"
#include "xml/partitions.h"
#include "zundo_trace.h"

namespace {

const ObjectValueRow kSpotColorMatchingRows[] = {
    {"job-spot-color-matching", "morvellan:SpotColorMatching", booleanValues, getColorantControl},
    {nullptr, nullptr, nullptr, nullptr},
};

bool textEquals(const char *text, const char *expected) {
    return text != nullptr && std::strcmp(text, expected) == 0;
}

// A DeviceN model also needs its colour space and colours.
void writeProcessColorModel(xercesc::DOMElement *element, const char *model) {
    setAttributeTraced(element, "ProcessColorModel", model);
    if (!textEquals(model, "DeviceN")) return;
    appendChildTraced(element, "DeviceNSpace");
    appendChildTraced(element, "ColorPool");
}

// The page range's pages as a RunIndex; the empty text without pages.
const char *runIndexOf(zundo_int_object_s *pageRange, char *buffer) {
    FetchedAttribute pages(pageRange, "page-range-pages");
    zundo_int_attribute_s *ranges = pages.attribute();
    resetIterator(ranges);
    return toStringRange(buffer, static_cast<const zundo_range_s *>(
                                     hasNextValue(ranges) ? nextValue(ranges) : nullptr));
}

// The children of ColorantControl that all planes share, each found or
// appended when first needed.
struct PlaneParents {
    xercesc::DOMElement *colorantControl;
    xercesc::DOMElement *order;  // null unless some plane says whether it prints
    xercesc::DOMElement *params;
    xercesc::DOMElement *pool;
    xercesc::DOMElement *convert;
    const char *processColorModel;
    bool pagesPerPlane;  // some plane has pages
};

xercesc::DOMElement *sharedChild(xercesc::DOMElement *parent, const char *name,
                                 xercesc::DOMElement **cached) {
    if (*cached != nullptr) return *cached;
    ElementEntry **children = nullptr;
    if (succeededTraced(findChildElements(parent, &children).status)) {
        for (ElementEntry **child = children; *child != nullptr && *cached == nullptr; ++child)
            if (hasTagName((*child)->element, name)) *cached = (*child)->element;
    }
    freeElementList(children);
    if (*cached == nullptr) *cached = appendChildTraced(parent, name);
    return *cached;
}

void appendSeparation(xercesc::DOMElement *parent, const char *name) {
    xercesc::DOMElement *separation =
        parent != nullptr ? appendChildTraced(parent, "SeparationSpec") : nullptr;
    if (separation != nullptr) setAttributeTraced(separation, "Name", name);
}

// Colorants the process colour model already has need no ColorantParams.
bool isProcessColorant(const char *model, const char *name) {
    static const char *const kCMYK[] = {"Black", "Cyan", "Magenta", "Yellow"};
    if (textEquals(model, "DeviceGray")) return textEquals(name, "Black");
    if (!textEquals(model, "DeviceCMYK")) return false;
    for (const char *colorant : kCMYK)
        if (textEquals(name, colorant)) return true;
    return false;
}

void writePlaneColor(xercesc::DOMElement *pool, zundo_int_object_s *plane, const char *name,
                     const std::string &pages) {
    xercesc::DOMElement *color = pool != nullptr ? appendChildTraced(pool, "Color") : nullptr;
    if (color == nullptr) return;
    setAttributeTraced(color, "Name", name);
    if (!textEquals(name, "Vesko Other")) {
        char cmyk[kRectangleTextSize];
        setAttributeTraced(
            color, "CMYK",
            formatRealRectangle(
                cmyk, sizeof cmyk,
                FetchedAttribute(plane, "color-plane-color-cyan").firstDouble(0.0),
                FetchedAttribute(plane, "color-plane-color-magenta").firstDouble(0.0),
                FetchedAttribute(plane, "color-plane-color-yellow").firstDouble(0.0),
                FetchedAttribute(plane, "color-plane-color-black").firstDouble(0.0)));
    }
    if (!pages.empty()) setAttributeTraced(color, "morvellan:RunIndexToSave", pages.c_str());
    writeElementValue(color, plane, "color-plane-priority", "morvellan:SpecialNamedPlanePriority",
                      kCodeValue, colorPlanePriorityValues);
    FetchedAttribute endY(plane, "color-plane-curve-end-y");
    xercesc::DOMElement *curve =
        endY.hasValue() ? appendChildTraced(color, "TransferCurve") : nullptr;
    if (curve != nullptr) {
        char number[kNumberTextSize];
        char points[kNumberTextSize + 8];
        std::snprintf(points, sizeof points, "0 0 1 %s",
                      formatReal(number, sizeof number, endY.firstDouble(0.0)));
        setAttributeTraced(curve, "Curve", points);
        setAttributeTraced(curve, "Separation", name);
    }
    setAttributeTraced(color, "MappingSelection", "UseProcessColorValues");
}

void writeNamesInPrintFile(xercesc::DOMElement *colorantControl, zundo_int_object_s *plane,
                           const char *name) {
    FetchedAttribute names(plane, "color-plane-names-in-print-file");
    xercesc::DOMElement *alias =
        names.hasValue() ? appendChildTraced(colorantControl, "ColorantAlias") : nullptr;
    if (alias == nullptr) return;
    setAttributeTraced(alias, "ReplacementColorantName", name);
    zundo_int_attribute_s *values = names.attribute();
    resetIterator(values);
    while (hasNextValue(values))
        appendSeparation(alias, static_cast<const char *>(nextValue(values)));
}

// The object kinds a separation prints on, as an operation of its own.
void writeObjectTypes(JDFWriteContext *ctx, zundo_int_object_s *plane, const char *name) {
    std::string kinds;
    if (!joinValues(
            plane, "color-plane-object-types",
            [](void *code) { return jdfNameForCode(objectTypesValues, *static_cast<int *>(code)); },
            &kinds)) {
        traceOutOfMemory("writeObjectTypes");
        return;
    }
    xercesc::DOMElement *params = kinds.empty() ? nullptr : getColorSpaceConversionParams(ctx);
    xercesc::DOMElement *op =
        params != nullptr ? appendColorConversionOp(params, kinds.c_str(), "Separation") : nullptr;
    appendSeparation(op, name);
}

void writePlane(JDFWriteContext *ctx, PlaneParents *parents, zundo_int_object_s *plane) {
    FetchedAttribute planeName(plane, "color-plane-name");
    const char *name = planeName.firstString();
    if (name == nullptr) return;
    xercesc::DOMElement *colorantControl = parents->colorantControl;
    bool prints = FetchedAttribute(plane, "color-plane-print").firstInt(1) != 0;
    if (prints) appendSeparation(parents->order, name);
    if (!isProcessColorant(parents->processColorModel, name))
        appendSeparation(sharedChild(colorantControl, "ColorantParams", &parents->params), name);
    std::string pages;
    char range[ZUNDO_RANGE_TEXT_SIZE];
    if (!joinValues(
            plane, "color-plane-pages",
            [&range](void *value) {
                return toStringRange(range, static_cast<const zundo_range_s *>(value));
            },
            &pages))
        traceOutOfMemory("writePages");
    writePlaneColor(sharedChild(colorantControl, "ColorPool", &parents->pool), plane, name, pages);
    // Only a plane that says so is converted; not set counts as no.
    if (FetchedAttribute(plane, "color-plane-convert-to-process").firstInt(0) != 0)
        appendSeparation(sharedChild(colorantControl, "ColorantConvertProcess", &parents->convert),
                         name);
    writeNamesInPrintFile(colorantControl, plane, name);
    writeObjectTypes(ctx, plane, name);
    xercesc::DOMElement *link = ctx->resourceLinks[kColorantControl];
    xercesc::DOMElement *part = parents->pagesPerPlane && prints && link != nullptr
                                    ? appendChildTraced(link, "Part")
                                    : nullptr;
    if (part == nullptr) return;
    setAttributeTraced(part, "Separation", name);
    // A printing plane without pages of its own prints on all of them.
    if (!pages.empty()) setAttributeTraced(part, "RunIndex", pages.c_str());
}

}  // namespace

void writeSpotColorMatching(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeSpotColorMatching\n");
    writeObjectValues(ctx, job, kSpotColorMatchingRows);
    zundo_trace("<< leaving writeSpotColorMatching\n");
}

void writeColorantControl(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeColorantControl\n");
    forEachObject(job, "job-page-ranges", [ctx](zundo_int_object_s *pageRange) {
        FetchedAttribute model(pageRange, "page-range-process-color-model");
        xercesc::DOMElement *colorantControl = model.hasValue() ? getColorantControl(ctx) : nullptr;
        if (colorantControl == nullptr) return;
        char runIndex[ZUNDO_RANGE_TEXT_SIZE];
        xercesc::DOMElement *partition =
            appendPartition(colorantControl, "RunIndex", runIndexOf(pageRange, runIndex));
        setAttributeTraced(colorantControl, "PartIDKeys", "RunIndex");
        if (partition != nullptr) writeProcessColorModel(partition, model.firstString());
    });
    FetchedAttribute model(job, "job-process-color-model");
    xercesc::DOMElement *colorantControl = model.hasValue() ? getColorantControl(ctx) : nullptr;
    if (colorantControl != nullptr) writeProcessColorModel(colorantControl, model.firstString());
    zundo_trace("<< leaving writeColorantControl\n");
}

void writeColorPlanes(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeColorPlanes\n");
    bool anyPlane = false, anyPrint = false, anyPages = false;
    forEachObject(job, "job-color-planes", [&](zundo_int_object_s *plane) {
        anyPlane = true;
        anyPrint = anyPrint || objectHasValue(plane, "color-plane-print");
        anyPages = anyPages || objectHasValue(plane, "color-plane-pages");
    });
    xercesc::DOMElement *colorantControl = anyPlane ? getColorantControl(ctx) : nullptr;
    if (colorantControl != nullptr) {
        AttributeEntry *model = nullptr;
        getAttrByName(colorantControl, "ProcessColorModel", &model);
        PlaneParents parents = {
            colorantControl,
            anyPrint ? appendChildTraced(colorantControl, "ColorantOrder") : nullptr,
            nullptr,
            nullptr,
            nullptr,
            model != nullptr ? model->value : nullptr,
            anyPages};
        forEachObject(job, "job-color-planes",
                      [&](zundo_int_object_s *plane) { writePlane(ctx, &parents, plane); });
        freeAttrEntry(model);
    }
    zundo_trace("<< leaving writeColorPlanes\n");
}

void writeSubstituteColorTable(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeSubstituteColorTable\n");
    FetchedAttribute use(job, "job-use-substitute-color-table");
    xercesc::DOMElement *colorantControl = use.hasValue() ? getColorantControl(ctx) : nullptr;
    xercesc::DOMElement *substitute =
        colorantControl != nullptr ? appendChildTraced(colorantControl, "ColorSpaceSubstitute")
                                   : nullptr;
    xercesc::DOMElement *alias =
        substitute != nullptr ? appendChildTraced(substitute, "PDLResourceAlias") : nullptr;
    if (alias != nullptr) {
        setAttributeTraced(
            alias, "ResourceType",
            use.firstInt(0) != 0 ? "SubstituteColorTable" : "NoSubstituteColorTable");
        appendChildTraced(substitute, "SeparationSpec");
    }
    zundo_trace("<< leaving writeSubstituteColorTable\n");
}
