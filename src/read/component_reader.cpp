// Component resources of the ResourcePool and the ComponentLinks of the
// ResourceLinkPool.
#include "read/component_reader.h"

#include <cstring>
#include <new>
#include <vector>

#include "enums/value_tables.h"
#include "job/read_env.h"
#include "read/finishing_reader.h"
#include "read/partition_walk.h"
#include "read/process_table.h"
#include "read/reader_conversions.h"
#include "xml/jdf_pools.h"
#include "zundo_trace.h"

namespace {

const int kCoverApplicationBinding = 2;

int firstIntegerValue(zundo_int_object_s *object, const char *name, int none) {
    zundo_int_attribute_s *attribute = get(object, name);
    int value = hasNextValue(attribute) ? *static_cast<int *>(nextValue(attribute)) : none;
    destroyAttribute(attribute);
    return value;
}

bool hasValue(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    bool found = hasNextValue(attribute) != 0;
    destroyAttribute(attribute);
    return found;
}

// Only a cover application binding takes a Component's media; before any
// binding is read the media waits in the read environment, the last one
// replacing an earlier one. The copy is the list's media object, which was
// read from the same Media element.
void attachComponentMedia(xercesc::DOMElement *mediaRef, zundo_int_object_s *ticket,
                          IdElement **mediaList) {
    zundo_int_object_s *media = nullptr;
    replaceWithReferencedMedia(mediaRef, mediaList, &media);
    if (media == nullptr) return;
    zundo_int_object_s *binding = firstObjectValue(getJob(ticket), "job-binding");
    zundo_read_env_s *env = getReadEnv(ticket);
    if (binding != nullptr) {
        if (firstIntegerValue(binding, "binding-type", 0) != kCoverApplicationBinding ||
            setObjectAttribute(binding, "binding-media", media) != ZUNDO_OK)
            destroy(media);
    } else if (env != nullptr) {
        if (env->pendingBindingMedia != nullptr) destroy(env->pendingBindingMedia);
        env->pendingBindingMedia = media;
    } else {
        destroy(media);
    }
}

// A Component child the reader visits: a nested Component or a MediaRef.
struct ComponentPart {
    xercesc::DOMElement *element;
    bool isComponent;
};

// What a finishing process takes from its ComponentLink; null names are
// not taken.
struct FinishingProcess {
    const char *process;
    const char *jobAttribute;
    const char *referenceEdge;
    const char *outputBin;
};

const FinishingProcess kFinishingProcesses[] = {
    {"CoverApplication", "job-binding", "binding-reference-edge", "binding-output-bin-name"},
    {"Folding", "job-folding", "folding-reference-edge", "folding-output-bin-name"},
    {"HoleMaking", "job-hole-making", "hole-making-reference-edge", nullptr},
    {"RingBinding", "job-binding", "binding-reference-edge", "binding-output-bin-name"},
    {"SpineTaping", "job-binding", "binding-reference-edge", "binding-output-bin-name"},
    {"Stitching", "job-stitching", "stitching-reference-edge", nullptr},
    {"Trimming", "job-trimming", nullptr, "trimming-output-bin-name"},
    {"WireCombBinding", "job-binding", "binding-reference-edge", "binding-output-bin-name"},
};

const FinishingProcess *finishingProcess(const char *process) {
    for (const FinishingProcess &row : kFinishingProcesses)
        if (textIs(process, row.process)) return &row;
    return nullptr;
}

// The LocationName of a Location (null: none) as `name`.
void setLocationName(xercesc::DOMElement *location, zundo_int_object_s *object,
                     const char *name) {
    ElementAttribute locationName(location, "LocationName");
    if (locationName.value() != nullptr) setStringAttribute(object, name, locationName.value());
}

void setFirstLocationName(xercesc::DOMElement *element, zundo_int_object_s *object,
                          const char *name) {
    setLocationName(ChildElements(element).first("Location"), object, name);
}

void readFinishingLink(xercesc::DOMElement *link, zundo_int_object_s *job,
                       const FinishingProcess &process, int edge) {
    zundo_int_object_s *finishing = firstObjectValue(job, process.jobAttribute);
    if (finishing == nullptr) return;
    if (process.referenceEdge != nullptr && edge != 0)
        setIntegerAttribute(finishing, process.referenceEdge, edge);
    if (process.outputBin == nullptr || hasValue(finishing, process.outputBin)) return;
    xercesc::DOMElement *component = findReferencedComponent(link);
    if (component != nullptr) setFirstLocationName(component, finishing, process.outputBin);
}

// The page range of the partition's RunIndex, made when the job has none;
// null when it cannot be made.
zundo_int_object_s *pageRangeOf(xercesc::DOMElement *partition, PageRangeIndex *pageRanges) {
    ElementAttribute runIndex(partition, "RunIndex");
    zundo_int_object_s *pageRange = nullptr;
    if (runIndex.value() != nullptr) pageRanges->find(runIndex.value(), &pageRange);
    return pageRange;
}

// A partition of the printed Component: the bin of its page range, or the
// bin of unused tabs and the bin of the first page range among its own
// partitions.
void readOutputBinPartition(xercesc::DOMElement *partition, zundo_int_object_s *job,
                            PageRangeIndex *pageRanges) {
    zundo_int_object_s *pageRange = pageRangeOf(partition, pageRanges);
    if (pageRange != nullptr) {
        setFirstLocationName(partition, pageRange, "page-range-output-bin-name");
        return;
    }
    if (ElementAttribute(partition, "Condition").value() != nullptr)
        setFirstLocationName(partition, job, "job-output-bin-name-unused-tabs");
    for (ElementEntry *child : ChildElements(partition)) {
        if (std::strcmp(child->name, "Component") != 0) continue;
        pageRange = pageRangeOf(child->element, pageRanges);
        if (pageRange == nullptr) continue;
        setFirstLocationName(child->element, pageRange, "page-range-output-bin-name");
        return;
    }
}

void readPrintedComponentBins(xercesc::DOMElement *link, zundo_int_object_s *job) {
    xercesc::DOMElement *component = findReferencedComponent(link);
    if (component == nullptr) return;
    try {
        PageRangeIndex pageRanges(job);
        for (ElementEntry *child : ChildElements(component)) {
            if (std::strcmp(child->name, "Location") == 0)
                setLocationName(child->element, job, "job-output-bin-name");
            else if (std::strcmp(child->name, "Component") == 0)
                readOutputBinPartition(child->element, job, &pageRanges);
        }
    } catch (const std::bad_alloc &) {
        traceOutOfMemory("readPrintedComponentBins");
    }
}

}  // namespace

zundo_status_t readComponentResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket,
                                     IdElement **mediaList) {
    zundo_trace(">> Entering readComponentResource \n");
    zundo_int_object_s *job = getJob(ticket);
    // Nested Components are visited depth first in document order from a
    // stack of their own: partitions may nest deeper than calls can.
    try {
        std::vector<ComponentPart> pending{{resource, true}};
        while (!pending.empty()) {
            ComponentPart part = pending.back();
            pending.pop_back();
            if (!part.isComponent) {
                attachComponentMedia(part.element, ticket, mediaList);
                continue;
            }
            ElementAttribute pin(part.element, "morvellan:PIN");
            if (pin.value() != nullptr) setStringAttribute(job, "job-pin", pin.value());
            ChildElements children(part.element);
            for (ElementEntry *const *child = children.end(); child != children.begin();) {
                --child;
                bool isComponent = std::strcmp((*child)->name, "Component") == 0;
                if (isComponent || std::strcmp((*child)->name, "MediaRef") == 0)
                    pending.push_back({(*child)->element, isComponent});
            }
        }
    } catch (const std::bad_alloc &) {
        traceOutOfMemory("readComponentResource");
    }
    zundo_trace("<< Leaving readComponentResource \n");
    return ZUNDO_OK;
}

zundo_status_t readComponentLinkElement(xercesc::DOMElement *link, zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readComponentLinkElement \n");
    zundo_int_object_s *job = getJob(ticket);
    int index = 0;
    const char *process =
        convertStringToInt(ElementAttribute(link, "CombinedProcessIndex").value(), &index)
            ? findProcessName(getReadEnv(ticket), index)
            : nullptr;
    int edge = codeForJDFName(referenceEdgeValues, ElementAttribute(link, "Orientation").value());
    // Every process the process table names takes the link's amounts, as
    // does a link that names none.
    setIntegerFromText(job, "job-copies", ElementAttribute(link, "Amount").value());
    setRealFromText(job, "job-copies-actual", ElementAttribute(link, "ActualAmount").value());
    const FinishingProcess *finishing = finishingProcess(process);
    if (finishing != nullptr)
        readFinishingLink(link, job, *finishing, edge);
    else if (textIs(process, "DigitalPrinting"))
        readPrintedComponentBins(link, job);
    if (process != nullptr) readFinishingAmounts(link, job, process);
    zundo_trace("<< Leaving readComponentLinkElement \n");
    return ZUNDO_OK;
}
