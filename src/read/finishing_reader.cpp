// The finishing resources of the ResourcePool: the resource's own
// attributes make the job's finishing object, its RunIndex partitions
// those of the page ranges they name.
#include "read/finishing_reader.h"

#include <memory>
#include <string>

#include "enums/value_tables.h"
#include "job/read_env.h"
#include "read/component_reader.h"
#include "read/finishing_components.h"
#include "read/partition_walk.h"
#include "read/reader_conversions.h"
#include "zundo_trace.h"

namespace {

const int kBindingNone = 1;
const int kBindingCoverApplication = 2;
const int kBindingRing = 4;
const int kBindingRingAndHoleMaking = 5;
const int kBindingRingHoleMakingOnly = 6;

// The binding type each binding resource stands for.
const zundo_enum_pair_s kBindingResources[] = {{2, "CoverApplicationParams"},
                                               {3, "SpineTapingParams"},
                                               {4, "RingBindingParams"},
                                               {8, "WireCombBindingParams"},
                                               {-1, nullptr}};

struct AttrListFree {
    void operator()(AttributeEntry **list) const { freeAttrList(list); }
};
struct ElementListFree {
    void operator()(ElementEntry **list) const { freeElementList(list); }
};
using AttrList = std::unique_ptr<AttributeEntry *[], AttrListFree>;
using ElementList = std::unique_ptr<ElementEntry *[], ElementListFree>;

bool isEmpty(AttributeEntry *const *attrs) { return attrs == nullptr || attrs[0] == nullptr; }

int firstInteger(zundo_int_object_s *object, const char *name, int fallback) {
    zundo_int_attribute_s *attribute = get(object, name);
    int value = hasNextValue(attribute) ? *static_cast<int *>(nextValue(attribute)) : fallback;
    destroyAttribute(attribute);
    return value;
}

// One builder signature for all partitioned finishing; only hole making
// reads the elements.
typedef zundo_status_t (*FinishingBuilder)(zundo_int_object_s **out, AttributeEntry *const *attrs,
                                           ElementEntry *const *elements, const char *docFilter,
                                           const char *runFilter);

template <zundo_status_t (*create)(zundo_int_object_s **, AttributeEntry *const *, const char *,
                                   const char *)>
zundo_status_t withoutElements(zundo_int_object_s **out, AttributeEntry *const *attrs,
                               ElementEntry *const *, const char *docFilter,
                               const char *runFilter) {
    return create(out, attrs, docFilter, runFilter);
}

void readTrimmingUnits(const xercesc::DOMElement *resource, zundo_int_object_s *job);

struct PartitionedFinishing {
    const char *resourceName;
    const char *jobAttribute;
    const char *pageRangeAttribute;
    FinishingBuilder build;
    // A partition with elements only counts (hole lines).
    bool readsElements;
    // What the job object takes from elsewhere in the node, and what the
    // reader does once the page ranges have their objects.
    void (*completeJobObject)(zundo_int_object_s *object, const xercesc::DOMElement *resource);
    void (*afterPageRanges)(const xercesc::DOMElement *resource, zundo_int_object_s *job);
};

const PartitionedFinishing kStitching = {
    "StitchingParams", "job-stitching", "page-range-stitching",
    withoutElements<createStitchingObject>, false, nullptr, nullptr};
const PartitionedFinishing kFolding = {
    "FoldingParams", "job-folding", "page-range-folding", withoutElements<createFoldingObject>,
    false, addJobFoldingComponentType, addPageRangeFoldingComponentTypes};
const PartitionedFinishing kHoleMaking = {
    "HoleMakingParams", "job-hole-making", "page-range-hole-making", createHoleMakingObject,
    true, nullptr, nullptr};
const PartitionedFinishing kTrimming = {
    "TrimmingParams", "job-trimming", "page-range-trimming", withoutElements<createTrimmingObject>,
    false, nullptr, readTrimmingUnits};
const PartitionedFinishing kTrapping = {
    "TrappingDetails", "job-trapping", "page-range-trapping", withoutElements<createTrappingObject>,
    false, nullptr, nullptr};

// Sets the object as the single value of the attribute, or destroys it.
zundo_status_t attach(zundo_int_object_s *owner, const char *attribute,
                      zundo_int_object_s *object) {
    zundo_status_t status = setObjectAttribute(owner, attribute, object);
    if (status != ZUNDO_OK) {
        zundo_trace("call to setObjectAttribute failed for %s: internal error \n", attribute);
        destroy(object);
    }
    return status;
}

// Builds the object; an object of a builder that did not succeed is
// dropped.
zundo_status_t build(const PartitionedFinishing &kind, zundo_int_object_s **out,
                     AttributeEntry *const *attrs, ElementEntry *const *elements,
                     const char *runFilter) {
    zundo_status_t status = kind.build(out, attrs, elements, nullptr, runFilter);
    if (status != ZUNDO_OK && *out != nullptr) {
        destroy(*out);
        *out = nullptr;
    }
    return status;
}

// The level setter of the page-range walk: the walk hands it the entries
// of the partitions whose RunIndex names the page range.
template <const PartitionedFinishing &kKind>
zundo_status_t setPageRangeFinishing(zundo_int_object_s **pageRange, AttributeEntry *const *attrs,
                                     ElementEntry *const *elements, const char *,
                                     const char *runFilter, IdElement **) {
    if (isEmpty(attrs) && !kKind.readsElements) return ZUNDO_OK;
    zundo_int_object_s *object = nullptr;
    zundo_status_t status = build(kKind, &object, attrs, elements, runFilter);
    if (object == nullptr) return status;
    return attach(*pageRange, kKind.pageRangeAttribute, object);
}

// The job's object from the resource's own attributes (and elements, for
// hole making); null when they make none.
zundo_status_t buildJobObject(const PartitionedFinishing &kind, xercesc::DOMElement *resource,
                              zundo_int_object_s **out) {
    *out = nullptr;
    AttributeEntry **attrs = nullptr;
    if (getAttrs(resource, &attrs).status != ZUNDO_OK) {
        zundo_trace("call to getAttrs failed for %s: internal error \n", kind.resourceName);
        return ZUNDO_ERROR;
    }
    AttrList attrList(attrs);
    if (isEmpty(attrs)) return ZUNDO_OK;
    ElementEntry **elements = nullptr;
    if (kind.readsElements) getElements(resource, &elements);
    ElementList elementList(elements);
    zundo_status_t status = build(kind, out, attrs, elements, nullptr);
    if (status != ZUNDO_OK && kind.readsElements)
        zundo_trace("call to createHoleMakingObject failed\n");
    return status;
}

// The job level, then every page range a RunIndex partition names. Hole
// making stops when the job level fails; the others go on.
zundo_status_t readPartitioned(const PartitionedFinishing &kind, xercesc::DOMElement *resource,
                               zundo_int_object_s *ticket, LevelSetter pageRangeSetter) {
    zundo_trace(">> Entering read%sResource \n", kind.resourceName);
    zundo_int_object_s *job = getJob(ticket);
    if (job == nullptr) return ZUNDO_INVALID_ARGUMENT;
    zundo_int_object_s *object = nullptr;
    zundo_status_t status = buildJobObject(kind, resource, &object);
    if (object != nullptr) {
        if (kind.completeJobObject != nullptr) kind.completeJobObject(object, resource);
        status = attach(job, kind.jobAttribute, object);
    }
    if (status != ZUNDO_OK && kind.readsElements) return status;
    status = setLPAttrsToPageRanges(resource, job, nullptr, nullptr, pageRangeSetter);
    if (kind.afterPageRanges != nullptr) kind.afterPageRanges(resource, job);
    zundo_trace("<< Leaving read%sResource \n", kind.resourceName);
    return status;
}

// A pending cover media from a Component read before this binding.
zundo_status_t takePendingMedia(zundo_int_object_s *ticket, zundo_int_object_s *binding) {
    zundo_read_env_s *env = getReadEnv(ticket);
    if (env == nullptr) {
        zundo_trace("call to getReadEnv returned NULL \n");
        return ZUNDO_OK;
    }
    if (env->pendingBindingMedia == nullptr) return ZUNDO_OK;
    zundo_status_t status = setObjectAttribute(binding, "binding-media", env->pendingBindingMedia);
    if (status == ZUNDO_OK)
        env->pendingBindingMedia = nullptr;
    else
        zundo_trace("call to setObjectAttribute failed for %s: internal error \n", "binding-media");
    return status;
}

// A list of codes (kind "IL") from the words of the text.
void setCodeList(zundo_int_object_s *object, const char *name, const char *words,
                 const zundo_enum_pair_s *table) {
    zundo_int_attribute_s *codes = nullptr;
    if (newAttribute(&codes, name, ZUNDO_KIND_INTEGER_LIST, nullptr) != ZUNDO_OK) return;
    for (const std::string &word : splitWords(words, kBlankSeparators)) {
        int code = codeForJDFName(table, word.c_str());
        addValue(codes, &code);
    }
    setAndReleaseAttribute(object, codes);
}

// What every ScreenSelector's screening takes from ScreeningParams itself.
struct ScreeningDefaults {
    const char *productId;
    int locked;
    const char *baseScreens;
};

zundo_int_object_s *readScreenSelector(const xercesc::DOMElement *selector,
                                       const ScreeningDefaults &defaults) {
    zundo_int_object_s *screening = nullptr;
    if (newScreening(&screening, ElementAttribute(selector, "ScreeningFamily").value(), 0.0) !=
        ZUNDO_OK)
        return nullptr;
    if (defaults.productId != nullptr)
        setStringAttribute(screening, "screening-product-id", defaults.productId);
    if (defaults.locked != -1)
        setIntegerAttribute(screening, "screening-read-only", defaults.locked);
    if (defaults.baseScreens != nullptr)
        setCodeList(screening, "screening-base-screens", defaults.baseScreens, baseScreenValues);
    double frequency = 0.0;
    if (!convertStringToDouble(ElementAttribute(selector, "Frequency").value(), &frequency))
        frequency = 0.0;
    setDoubleAttribute(screening, "screening-frequency", frequency);
    ElementAttribute spotFunction(selector, "SpotFunction");
    if (spotFunction.value() != nullptr)
        setIntegerAttribute(screening, "screening-spot-function",
                            getZUNDOEnumValue("screening-spot-function", spotFunction.value()));
    ElementAttribute type(selector, "ScreeningType");
    if (type.value() != nullptr)
        setIntegerAttribute(screening, "screening-type",
                            getZUNDOEnumValue("screening-type", type.value()));
    ElementAttribute sourceObjects(selector, "SourceObjects");
    if (sourceObjects.value() != nullptr)
        setCodeList(screening, "screening-object-types", sourceObjects.value(), objectTypesValues);
    return screening;
}

// Each Comment of TrimmingParams names the units; the last one stays.
void readTrimmingUnits(const xercesc::DOMElement *resource, zundo_int_object_s *job) {
    for (ElementEntry *child : ChildElements(resource)) {
        char *text = nullptr;
        if (!textIs(child->name, "Comment") ||
            getElementText(child->element, &text).status != ZUNDO_OK)
            continue;
        setStringAttribute(job, "job-trimming-units", text);
        delete[] text;
    }
}

typedef zundo_status_t (*FinishingReader)(xercesc::DOMElement *resource,
                                          zundo_int_object_s *ticket);

struct FinishingReaderRow {
    const char *name;
    FinishingReader read;
};

const FinishingReaderRow kFinishingReaders[] = {
    {"FoldingParams", readFoldingParamsResource},
    {"HoleMakingParams", readHoleMakingParamsResource},
    {"ScreeningParams", readScreeningParamsResource},
    {"StitchingParams", readStitchingParamsResource},
    {"TrappingDetails", readTrappingDetailsResource},
    {"TrimmingParams", readTrimmingParamsResource},
};

}  // namespace

zundo_status_t readFinishingResource(xercesc::DOMElement *resource, const char *name,
                                     ResourceReadContext *context) {
    if (codeForJDFName(kBindingResources, name) != 0)
        return readBindingResource(resource, context->ticket, name);
    for (const FinishingReaderRow &row : kFinishingReaders)
        if (textIs(name, row.name)) return row.read(resource, context->ticket);
    return ZUNDO_NOT_FOUND;
}

zundo_status_t readBindingResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket,
                                   const char *elementName) {
    zundo_trace(">> Entering readBindingResource \n");
    zundo_int_object_s *job = getJob(ticket);
    if (job == nullptr) return ZUNDO_INVALID_ARGUMENT;
    int resourceType = codeForJDFName(kBindingResources, elementName);
    if (resourceType == 0) resourceType = kBindingNone;
    AttributeEntry **attrs = nullptr;
    if (getAttrs(resource, &attrs).status != ZUNDO_OK) {
        zundo_trace("call to getAttrs failed for %s: internal error \n", elementName);
        return ZUNDO_ERROR;
    }
    AttrList attrList(attrs);
    zundo_int_object_s *binding = nullptr;
    zundo_status_t status =
        isEmpty(attrs) ? ZUNDO_OK
                       : createBindingObject(&binding, attrs, nullptr, nullptr, resourceType);
    if (binding != nullptr && resourceType == kBindingRing) {
        // Holes punched with the rings; IgnoreNoOp punches them even when
        // the binding itself is a NoOp.
        xercesc::DOMElement *holeMaking = ChildElements(resource).first("HoleMakingParams");
        if (holeMaking != nullptr)
            setIntegerAttribute(
                binding, "binding-type",
                ElementAttribute(holeMaking, "morvellan:IgnoreNoOp").value() != nullptr
                    ? kBindingRingHoleMakingOnly
                    : kBindingRingAndHoleMaking);
    }
    if (binding != nullptr) {
        int type = firstInteger(binding, "binding-type", 0);
        // A None binding never replaces a real one.
        zundo_int_object_s *current = firstObjectValue(job, "job-binding");
        bool keepBack = type == kBindingNone && current != nullptr &&
                        firstInteger(current, "binding-type", 0) != kBindingNone;
        if (type == kBindingCoverApplication) status = takePendingMedia(ticket, binding);
        if (keepBack)
            destroy(binding);
        else
            attach(job, "job-binding", binding);
    }
    zundo_trace("<< Leaving readBindingResource \n");
    return status;
}

zundo_status_t readStitchingParamsResource(xercesc::DOMElement *resource,
                                           zundo_int_object_s *ticket) {
    return readPartitioned(kStitching, resource, ticket, setPageRangeFinishing<kStitching>);
}

zundo_status_t readFoldingParamsResource(xercesc::DOMElement *resource,
                                         zundo_int_object_s *ticket) {
    return readPartitioned(kFolding, resource, ticket, setPageRangeFinishing<kFolding>);
}

zundo_status_t readHoleMakingParamsResource(xercesc::DOMElement *resource,
                                            zundo_int_object_s *ticket) {
    return readPartitioned(kHoleMaking, resource, ticket, setPageRangeFinishing<kHoleMaking>);
}

zundo_status_t readTrimmingParamsResource(xercesc::DOMElement *resource,
                                          zundo_int_object_s *ticket) {
    return readPartitioned(kTrimming, resource, ticket, setPageRangeFinishing<kTrimming>);
}

zundo_status_t readTrappingDetailsResource(xercesc::DOMElement *resource,
                                           zundo_int_object_s *ticket) {
    return readPartitioned(kTrapping, resource, ticket, setPageRangeFinishing<kTrapping>);
}

zundo_status_t readScreeningParamsResource(xercesc::DOMElement *resource,
                                           zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readScreeningParamsResource \n");
    zundo_int_object_s *job = getJob(ticket);
    if (job == nullptr) return ZUNDO_INVALID_ARGUMENT;
    ChildElements children(resource);
    if (children.entries() == nullptr) {
        zundo_trace("call to getElements failed for %s: internal error \n", "ScreeningParams");
        return ZUNDO_ERROR;
    }
    zundo_int_attribute_s *screenings = nullptr;
    zundo_status_t status = newAttribute(&screenings, "job-screenings", ZUNDO_KIND_OBJECT, nullptr);
    if (status != ZUNDO_OK) return status;
    ElementAttribute productId(resource, "ProductID");
    ElementAttribute locked(resource, "Locked");
    ElementAttribute baseScreens(resource, "morvellan:BaseScreens");
    const ScreeningDefaults defaults = {productId.value(), convertBoolean(locked.value()),
                                        baseScreens.value()};
    for (ElementEntry *child : children) {
        if (!textIs(child->name, "ScreenSelector")) continue;
        zundo_int_object_s *screening = readScreenSelector(child->element, defaults);
        if (screening == nullptr) continue;
        status = addValue(screenings, screening);
        if (status != ZUNDO_OK) destroy(screening);
    }
    setAndReleaseAttribute(job, screenings);
    zundo_trace("<< Leaving readScreeningParamsResource \n");
    return status;
}
