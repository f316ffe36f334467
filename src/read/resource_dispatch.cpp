// The reader dispatch tables. A resource reader joins the read by taking
// its row here.
#include "read/resource_dispatch.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

#include "read/audit_pool_reader.h"
#include "read/colorant_reader.h"
#include "read/colour_conversion_reader.h"
#include "read/component_reader.h"
#include "read/customer_info_reader.h"
#include "read/device_reader.h"
#include "read/digital_printing_reader.h"
#include "read/finishing_reader.h"
#include "read/job_node_readers.h"
#include "read/layout_element_reader.h"
#include "read/layout_preparation_reader.h"
#include "read/marks_reader.h"
#include "read/media_reader.h"
#include "read/rendering_reader.h"
#include "read/run_list_reader.h"
#include "zundo_trace.h"

namespace {

zundo_status_t collectFileSpec(xercesc::DOMElement *resource, const char *,
                               ResourceReadContext *context) {
    return addIdElementToList(resource, &context->fileList, nullptr);
}

// Each entry carries the Media element and the media object made of it.
zundo_status_t collectMedia(xercesc::DOMElement *resource, const char *,
                            ResourceReadContext *context) {
    return addIdElementToList(resource, &context->mediaList, createMediaObject);
}

zundo_status_t readNodeInfo(xercesc::DOMElement *resource, const char *,
                            ResourceReadContext *context) {
    return readNodeInfoResource(resource, context->ticket);
}

zundo_status_t readAuditPool(xercesc::DOMElement *pool, const char *,
                             ResourceReadContext *context) {
    return getAuditPoolElement(pool, context->ticket, context->mediaList);
}

zundo_status_t readLayoutElement(xercesc::DOMElement *resource, const char *,
                                 ResourceReadContext *context) {
    return readLayoutElementResource(resource, context->ticket, &context->layoutElements,
                                     context->fileList);
}

zundo_status_t readRunListDocuments(xercesc::DOMElement *resource, const char *,
                                    ResourceReadContext *context) {
    return readRunListLayoutElements(resource, context->ticket, &context->layoutElements,
                                     context->fileList);
}

zundo_status_t readLayoutPreparationParams(xercesc::DOMElement *resource, const char *,
                                           ResourceReadContext *context) {
    return readLayoutPreparationParamsResource(resource, context->ticket, context->mediaList);
}

zundo_status_t readComponent(xercesc::DOMElement *resource, const char *,
                             ResourceReadContext *context) {
    return readComponentResource(resource, context->ticket, context->mediaList);
}

zundo_status_t readDigitalPrintingParams(xercesc::DOMElement *resource, const char *,
                                         ResourceReadContext *context) {
    return readDigitalPrintingParamsResource(resource, context->ticket, context->mediaList);
}

zundo_status_t readCalibrationTypeParams(xercesc::DOMElement *resource, const char *,
                                         ResourceReadContext *context) {
    return readCalibrationTypeParamsResource(resource, getJob(context->ticket));
}

zundo_status_t readUsageCounter(xercesc::DOMElement *resource, const char *,
                                ResourceReadContext *context) {
    return context->usageCounters != nullptr
               ? readUsageCounterResource(resource, context->usageCounters)
               : ZUNDO_OK;
}

// The job-level readers that take only the ticket.
template <zundo_status_t (*reader)(xercesc::DOMElement *, zundo_int_object_s *)>
zundo_status_t readForTicket(xercesc::DOMElement *resource, const char *,
                             ResourceReadContext *context) {
    return reader(resource, context->ticket);
}

template <typename Row>
const Row *findRow(const Row *table, size_t rows, const char *name) {
    if (table == nullptr || name == nullptr) return nullptr;
    const Row *end = table + rows;
    const Row *row = std::lower_bound(table, end, name, [](const Row &candidate, const char *key) {
        return std::strcmp(candidate.name, key) < 0;
    });
    return row != end && std::strcmp(row->name, name) == 0 ? row : nullptr;
}

}  // namespace

const ResourceReaderRow kFileSpecPassReaders[] = {
    {"FileSpec", collectFileSpec, false},
};
const size_t kFileSpecPassReaderCount = sizeof(kFileSpecPassReaders) / sizeof(ResourceReaderRow);

const ResourceReaderRow kLayoutPassReaders[] = {
    {"LayoutElement", readLayoutElement, false},
    {"Media", collectMedia, false},
    {"RunList", readRunListDocuments, false},
};
const size_t kLayoutPassReaderCount = sizeof(kLayoutPassReaders) / sizeof(ResourceReaderRow);

const ResourceReaderRow kColourPassReaders[] = {
    {"ColorSpaceConversionParams", readColorSpaceConversionResource, false},
    {"ColorantControl", readForTicket<readColorantControl>, false},
};
const size_t kColourPassReaderCount = sizeof(kColourPassReaders) / sizeof(ResourceReaderRow);

const ResourceReaderRow kParameterPassReaders[] = {
    {"Component", readComponent, false},
    {"CoverApplicationParams", readFinishingResource, false},
    {"CustomerInfo", readForTicket<getCustomerInfoElement>, false},
    {"Device", readForTicket<readDeviceResource>, true},
    {"DigitalPrintingParams", readDigitalPrintingParams, false},
    {"FoldingParams", readFinishingResource, false},
    {"FontPolicy", readForTicket<readFontPolicyResource>, false},
    {"HoleMakingParams", readFinishingResource, false},
    {"Ink", readForTicket<readInkResource>, false},
    {"InterpretingParams", readForTicket<readMorvellanInterpretingParamsResource>, false},
    {"Layout", readForTicket<readLayoutResource>, false},
    {"LayoutPreparationParams", readLayoutPreparationParams, false},
    {"NodeInfo", readNodeInfo, false},
    {"PDLResourceAlias", readForTicket<readPDLResourceAliasResource>, false},
    {"PrintCondition", readForTicket<readPrintConditionResource>, false},
    {"RenderingParams", readForTicket<readRenderingParamsResource>, false},
    {"RingBindingParams", readFinishingResource, false},
    {"RunList", readRunListResource, false},
    {"ScreeningParams", readFinishingResource, false},
    {"SpineTapingParams", readFinishingResource, false},
    {"StitchingParams", readFinishingResource, false},
    {"TrappingDetails", readFinishingResource, false},
    {"TrimmingParams", readFinishingResource, false},
    {"UsageCounter", readUsageCounter, false},
    {"WireCombBindingParams", readFinishingResource, false},
    {"morvellan:CalibrationTypeParams", readCalibrationTypeParams, false},
    {"morvellan:RecordInfo", readForTicket<readRecordInfoResource>, false},
    {"morvellan:StrippingParams", readForTicket<readStrippingParamsResource>, false},
};
const size_t kParameterPassReaderCount = sizeof(kParameterPassReaders) / sizeof(ResourceReaderRow);

const ResourceReaderRow kNodePoolReaders[] = {
    {"AuditPool", readAuditPool, false},
};
const size_t kNodePoolReaderCount = sizeof(kNodePoolReaders) / sizeof(ResourceReaderRow);

const LinkReaderRow kLinkReaders[] = {
    {"ComponentLink", readComponentLinkElement},
    {"RunListLink", readRunListLinkElement},
};
const size_t kLinkReaderCount = sizeof(kLinkReaders) / sizeof(LinkReaderRow);

void freeLayoutElementList(LayoutElementPair **list) {
    if (list == nullptr) return;
    for (LayoutElementPair **pair = list; *pair != nullptr; ++pair) {
        delete[](*pair)->id;
        std::free(*pair);
    }
    std::free(list);
}

const ResourceReaderRow *findResourceReaderRow(const ResourceReaderRow *table, size_t rows,
                                               const char *name) {
    return findRow(table, rows, name);
}

const LinkReaderRow *findLinkReaderRow(const LinkReaderRow *table, size_t rows, const char *name) {
    return findRow(table, rows, name);
}

void runResourcePass(ElementEntry *const *resources, const ResourceReaderRow *table, size_t rows,
                     ResourceReadContext *context) {
    std::unique_ptr<bool[]> read(new (std::nothrow) bool[rows]());
    if (read == nullptr) {
        traceOutOfMemory("runResourcePass");
        return;
    }
    for (ElementEntry *const *entry = resources; entry != nullptr && *entry != nullptr; ++entry) {
        const ResourceReaderRow *row = findRow(table, rows, (*entry)->name);
        if (row == nullptr || row->reader == nullptr) continue;
        bool &rowRead = read[row - table];
        if (row->firstOfPoolOnly && rowRead) continue;
        rowRead = true;
        row->reader((*entry)->element, (*entry)->name, context);
    }
}
