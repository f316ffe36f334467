// ColorantControl and the colour planes it describes. A plane of a
// ColorPool takes further settings from the ColorantControl's other
// children and from the ColorSpaceConversionParams of the same pool; those
// are indexed once per pool, so that many planes cost no more than one
// pass each.
#include "read/colorant_reader.h"

#include <cstdio>
#include <functional>
#include <map>
#include <new>
#include <set>
#include <string>
#include <xercesc/dom/DOMElement.hpp>

#include "enums/value_tables.h"
#include "read/colour_conversion_reader.h"
#include "read/partition_walk.h"
#include "read/reader_conversions.h"
#include "xml/index_lists.h"
#include "zundo_trace.h"

namespace {

typedef std::set<std::string, std::less<>> NameSet;
typedef std::map<std::string, const xercesc::DOMElement *, std::less<>> ElementByName;

// What a ColorPool's planes take from outside the pool.
struct PlaneSources {
    NameSet converted;                 // the first ColorantConvertProcess
    const xercesc::DOMElement *order;  // the last ColorantOrder, or null
    NameSet ordered;                   // its separations
    ElementByName aliases;             // the first ColorantAlias per replaced name
    ElementByName objectOps;           // the last op per separation
};

// The element of `name` (with that ID when id is given) among the
// siblings of `resource` in its ResourcePool.
const xercesc::DOMElement *poolResource(const xercesc::DOMElement *resource, const char *name,
                                        const char *id) {
    auto *pool = static_cast<const xercesc::DOMElement *>(getParentElement(resource));
    for (ElementEntry *sibling : ChildElements(pool))
        if (textIs(sibling->name, name) &&
            (id == nullptr || textIs(ElementAttribute(sibling->element, "ID").value(), id)))
            return sibling->element;
    return nullptr;
}

template <typename Visit>
void forEachSeparation(const xercesc::DOMElement *parent, Visit visit) {
    for (ElementEntry *child : ChildElements(parent)) {
        if (!textIs(child->name, "SeparationSpec")) continue;
        ElementAttribute name(child->element, "Name");
        if (name.value() != nullptr) visit(name.value());
    }
}

void collectPlaneSources(const xercesc::DOMElement *colorantControl, const ChildElements &children,
                         PlaneSources *sources) {
    const xercesc::DOMElement *convert = children.first("ColorantConvertProcess");
    forEachSeparation(convert, [&](const char *name) { sources->converted.emplace(name); });
    for (ElementEntry *child : children) {
        if (textIs(child->name, "ColorantOrder")) {
            sources->order = child->element;
        } else if (textIs(child->name, "ColorantAlias")) {
            ElementAttribute replaced(child->element, "ReplacementColorantName");
            if (replaced.value() != nullptr)
                sources->aliases.emplace(replaced.value(), child->element);
        }
    }
    forEachSeparation(sources->order, [&](const char *name) { sources->ordered.emplace(name); });
    const xercesc::DOMElement *conversion =
        poolResource(colorantControl, "ColorSpaceConversionParams", nullptr);
    for (ElementEntry *op : ChildElements(conversion)) {
        if (!textIs(op->name, "ColorSpaceConversionOp") ||
            ElementAttribute(op->element, "SourceObjects").value() == nullptr)
            continue;
        forEachSeparation(op->element,
                          [&](const char *name) { sources->objectOps[name] = op->element; });
    }
}

// The values of the Color element, each set only while the ones before
// were accepted.
zundo_status_t readPlaneColor(const xercesc::DOMElement *color, zundo_int_object_s *plane) {
    static const char *const kComponents[] = {"color-plane-color-cyan", "color-plane-color-magenta",
                                              "color-plane-color-yellow",
                                              "color-plane-color-black"};
    zundo_status_t status = ZUNDO_OK;
    ElementAttribute cmyk(color, "CMYK");
    if (cmyk.value() != nullptr) {
        double values[4] = {-1.0, -1.0, -1.0, -1.0};
        std::sscanf(cmyk.value(), "%lf %lf %lf %lf", &values[0], &values[1], &values[2],
                    &values[3]);
        for (int i = 0; i < 4 && status == ZUNDO_OK; ++i)
            status = setDoubleAttribute(plane, kComponents[i], values[i]);
    }
    ElementAttribute priority(color, "morvellan:SpecialNamedPlanePriority");
    if (status == ZUNDO_OK && priority.value() != nullptr)
        status = setIntegerAttribute(plane, "color-plane-priority",
                                     codeForJDFName(colorPlanePriorityValues, priority.value()));
    ElementAttribute pages(color, "morvellan:RunIndexToSave");
    if (status == ZUNDO_OK && pages.value() != nullptr)
        status = readAndSetMultiplePageRangesAttribute(&plane, "color-plane-pages", pages.value());
    xercesc::DOMElement *curve = ChildElements(color).first("TransferCurve");
    if (status == ZUNDO_OK && curve != nullptr) {
        ElementAttribute points(curve, "Curve");
        double endY = -1.0;
        if (points.value() == nullptr || std::sscanf(points.value(), "0 0 1 %lf", &endY) != 1)
            endY = -1.0;
        status = setDoubleAttribute(plane, "color-plane-curve-end-y", endY);
    }
    return status;
}

zundo_status_t setNamesInPrintFile(const xercesc::DOMElement *alias, zundo_int_object_s *plane) {
    zundo_int_attribute_s *names = nullptr;
    zundo_status_t status =
        newAttribute(&names, "color-plane-names-in-print-file", ZUNDO_KIND_STRING, nullptr);
    if (status != ZUNDO_OK) return status;
    forEachSeparation(alias, [&](const char *name) { addValue(names, name); });
    return setAndReleaseAttribute(plane, names);
}

zundo_status_t setObjectTypes(const xercesc::DOMElement *op, zundo_int_object_s *plane) {
    zundo_int_attribute_s *codes = nullptr;
    zundo_status_t status =
        newAttribute(&codes, "color-plane-object-types", ZUNDO_KIND_INTEGER_LIST, nullptr);
    if (status != ZUNDO_OK) return status;
    ElementAttribute objects(op, "SourceObjects");
    for (const std::string &word : splitWords(objects.value(), kBlankSeparators)) {
        int code = codeForJDFName(objectTypesValues, word.c_str());
        addValue(codes, &code);
    }
    return setAndReleaseAttribute(plane, codes);
}

zundo_status_t readPlaneSources(const PlaneSources &sources, const char *name,
                                zundo_int_object_s *plane) {
    zundo_status_t status = ZUNDO_OK;
    if (sources.converted.count(name) != 0)
        status = setIntegerAttribute(plane, "color-plane-convert-to-process", 1);
    if (status == ZUNDO_OK && sources.order != nullptr)
        status = setIntegerAttribute(plane, "color-plane-print", sources.ordered.count(name) != 0);
    auto alias = sources.aliases.find(name);
    if (status == ZUNDO_OK && alias != sources.aliases.end())
        status = setNamesInPrintFile(alias->second, plane);
    auto op = sources.objectOps.find(name);
    if (status == ZUNDO_OK && op != sources.objectOps.end())
        status = setObjectTypes(op->second, plane);
    return status;
}

void readColorPool(const xercesc::DOMElement *pool, const PlaneSources &sources,
                   zundo_int_attribute_s *planes) {
    for (ElementEntry *color : ChildElements(pool)) {
        ElementAttribute name(color->element, "Name");
        zundo_int_object_s *plane = nullptr;
        if (!textIs(color->name, "Color") || name.value() == nullptr ||
            newColorPlane(&plane, name.value()) != ZUNDO_OK)
            continue;
        if (readPlaneColor(color->element, plane) == ZUNDO_OK)
            readPlaneSources(sources, name.value(), plane);
        if (addValue(planes, plane) != ZUNDO_OK) destroy(plane);
    }
}

zundo_status_t readPoolPlanes(const xercesc::DOMElement *colorantControl,
                              const ChildElements &children, zundo_int_object_s *job) {
    zundo_int_attribute_s *planes = nullptr;
    zundo_status_t status = newAttribute(&planes, "job-color-planes", ZUNDO_KIND_OBJECT, nullptr);
    if (status != ZUNDO_OK) return status;
    const xercesc::DOMElement *pool = children.first("ColorPool");
    xercesc::DOMElement *ref = children.first("ColorPoolRef");
    if (pool == nullptr && ref != nullptr)
        pool = poolResource(colorantControl, "ColorPool", ElementAttribute(ref, "rRef").value());
    if (pool != nullptr) {
        PlaneSources sources = {};
        try {
            collectPlaneSources(colorantControl, children, &sources);
        } catch (const std::bad_alloc &) {
            // The planes are still read, without what was not indexed.
            traceOutOfMemory("readColorPlanes");
        }
        readColorPool(pool, sources, planes);
    }
    setAndReleaseAttribute(job, planes);
    return ZUNDO_OK;
}

// Each RunIndex partition's colour model goes to the page ranges it names,
// made when the job has none yet: the colour pass runs before the
// resources that make page ranges.
void readPageRangeColorModels(const ChildElements &children, zundo_int_object_s *job) {
    PageRangeIndex pageRanges(job);
    for (ElementEntry *child : children) {
        ElementAttribute model(child->element, "ProcessColorModel");
        ElementAttribute runIndex(child->element, "RunIndex");
        if (!textIs(child->name, "ColorantControl") || model.value() == nullptr ||
            runIndex.value() == nullptr)
            continue;
        char **tokens = nullptr;
        parsePages(runIndex.value(), &tokens);
        for (char **token = tokens; token != nullptr && *token != nullptr; ++token) {
            zundo_int_object_s *pageRange = nullptr;
            if (pageRanges.find(*token, &pageRange) == ZUNDO_OK && pageRange != nullptr)
                setStringAttribute(pageRange, "page-range-process-color-model", model.value());
        }
        freePageTokens(tokens);
    }
}

void readSubstituteColorTable(const ChildElements &children, zundo_int_object_s *job) {
    const xercesc::DOMElement *substitute = nullptr;
    for (ElementEntry *child : children)
        if (textIs(child->name, "ColorSpaceSubstitute")) substitute = child->element;
    for (ElementEntry *alias : ChildElements(substitute)) {
        if (!textIs(alias->name, "PDLResourceAlias")) continue;
        ElementAttribute type(alias->element, "ResourceType");
        if (textIs(type.value(), "NoSubstituteColorTable"))
            setIntegerAttribute(job, "job-use-substitute-color-table", 0);
        else if (textIs(type.value(), "SubstituteColorTable"))
            setIntegerAttribute(job, "job-use-substitute-color-table", 1);
    }
}

}  // namespace

zundo_status_t readColorPlanes(const xercesc::DOMElement *colorantControl,
                               zundo_int_object_s *job) {
    ChildElements children(colorantControl);
    const xercesc::DOMElement *order = nullptr;
    bool pooled = false;
    for (ElementEntry *child : children) {
        if (textIs(child->name, "ColorantOrder")) order = child->element;
        pooled = pooled || textIs(child->name, "ColorPool") || textIs(child->name, "ColorPoolRef");
    }
    ChildElements separations(order);
    zundo_int_attribute_s *planes = nullptr;
    if (separations.begin() != separations.end() &&
        newAttribute(&planes, "job-color-planes", ZUNDO_KIND_OBJECT, nullptr) == ZUNDO_OK) {
        forEachSeparation(order, [&](const char *name) {
            zundo_int_object_s *plane = nullptr;
            if (newColorPlane(&plane, name) == ZUNDO_OK && addValue(planes, plane) != ZUNDO_OK)
                destroy(plane);
        });
        setAndReleaseAttribute(job, planes);
    }
    return pooled ? readPoolPlanes(colorantControl, children, job) : ZUNDO_OK;
}

zundo_status_t readColorantControl(xercesc::DOMElement *resource, zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readColorantControl \n");
    zundo_int_object_s *job = getJob(ticket);
    ElementAttribute model(resource, "ProcessColorModel");
    if (model.value() != nullptr) setStringAttribute(job, "job-process-color-model", model.value());
    setBooleanIfPresent(job, "job-spot-color-matching", resource, "morvellan:SpotColorMatching");
    ChildElements children(resource);
    if (ElementAttribute(resource, "PartIDKeys").value() != nullptr)
        readPageRangeColorModels(children, job);
    readColorPlanes(resource, job);
    readSubstituteColorTable(children, job);
    zundo_trace("<< Leaving readColorantControl \n");
    return ZUNDO_OK;
}
