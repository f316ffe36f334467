// Media resources, the numbers that identify them and the MediaRefs that
// point at them.
#include "write/media_writer.h"

#include <cstdlib>

#include "values/value_objects.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/object_values.h"
#include "write/process_types.h"
#include "write/resource_getters.h"
#include "xml/jdf_pools.h"
#include "xml/partitions.h"
#include "zundo_trace.h"

namespace {

// Numbers of media that cannot be recorded.
const int kRecordNotMade = -99;
const int kListNotGrown = -105;

const size_t kMediaIdSize = 32;

char *formatMediaId(char *buffer, int number) {
    return formatValueText(buffer, kMediaIdSize, "Media%i", number);
}

int addMediaToMediaReferences(JDFWriteContext *ctx, zundo_int_object_s *media) {
    auto *record = static_cast<MediaReference *>(std::calloc(1, sizeof(MediaReference)));
    if (record == nullptr) {
        traceOutOfMemory("addMediaToMediaReferences");
        return kRecordNotMade;
    }
    if (!growListForAppend(&ctx->mediaReferences, ctx->mediaReferenceCount)) {
        std::free(record);
        traceOutOfMemory("addMediaToMediaReferences");
        return kListNotGrown;
    }
    record->number = static_cast<int>(ctx->mediaReferenceCount);
    record->media = media;
    ctx->mediaReferences[ctx->mediaReferenceCount++] = record;
    ctx->mediaReferences[ctx->mediaReferenceCount] = nullptr;
    return record->number;
}

void writeMediaResource(JDFWriteContext *ctx, zundo_int_object_s *media, int number,
                        bool auditOnly) {
    char id[kMediaIdSize];
    char processIndex[kNumberTextSize];
    formatInteger(processIndex, sizeof processIndex,
                  getCombinedProcessIndex(ctx, "DigitalPrinting"));
    xercesc::DOMElement *linkPool = getResourceLinkPool(ctx);
    xercesc::DOMElement *resourcePool = getResourcePool(ctx);
    ResourceInfo info = {nullptr,      nullptr,     "Media", formatMediaId(id, number),
                         "Consumable", "Available", "Input", processIndex};
    if (succeededTraced(addResourceToPools(resourcePool, linkPool, &info).status))
        writeMediaContent(ctx, info.resource, info.link, media, auditOnly);
}

// A MediaRef in parent itself or in its RunIndex, DocIndex or
// DocIndex/DocRunIndex partition.
void writeMediaRef(xercesc::DOMElement *parent, const char *mediaId, const char *documentIndex,
                   const char *runRange) {
    ElementEntry entry = {nullptr, "MediaRef", documentIndex, runRange};
    zundo_result_t result;
    if (runRange == nullptr && documentIndex == nullptr)
        result = createChildElement(parent, &entry);
    else if (documentIndex == nullptr)
        result = createSubPartitionElement(parent, &entry, "Run", "RunIndex", "RunIndex");
    else if (runRange == nullptr)
        result = createDocIndexPartitionElement(parent, &entry);
    else
        result = createDocRunIndexPartitionElement(parent, &entry);
    if (succeededTraced(result.status)) setAttributeTraced(entry.element, "rRef", mediaId);
}

// Job-level page ranges of one media share the RunIndex partition made for
// the first of them; each further range is added to its RunIndex.
zundo_status_t addJobLevelRunRange(MediaReference *record, xercesc::DOMElement *params,
                                   const char *mediaId, const char *runRange) {
    if (record->dppPartition == nullptr) {
        xercesc::DOMElement *partition =
            findOrCreateSubPartition(params, nullptr, nullptr, "RunIndex", runRange, "RunIndex");
        if (partition == nullptr) {
            zundo_trace("parser_error %i, \n", ZUNDO_INTERNAL_ERROR);
            return ZUNDO_OK;
        }
        xercesc::DOMElement *reference = appendChildTraced(partition, "MediaRef");
        if (reference != nullptr) setAttributeTraced(reference, "rRef", mediaId);
        record->dppPartition = partition;
        return ZUNDO_OK;
    }
    succeededTraced(appendToPartitionKey(record->dppPartition, "RunIndex", runRange));
    return ZUNDO_OK;
}

}  // namespace

int generateMediaId(JDFWriteContext *ctx, zundo_int_object_s *media, bool auditOnly) {
    for (size_t i = 0; i < ctx->mediaReferenceCount; ++i)
        if (mediaEquals(ctx->mediaReferences[i]->media, media) == 1)
            return ctx->mediaReferences[i]->number;
    int number = addMediaToMediaReferences(ctx, media);
    if (number >= 0) writeMediaResource(ctx, media, number, auditOnly);
    return number;
}

zundo_status_t writeMediaForDPP(JDFWriteContext *ctx, zundo_int_object_s *media,
                                const char *runRange, const char *documentIndex) {
    zundo_trace(">> entering writeMediaForDPP\n");
    if (media == nullptr) return ZUNDO_INVALID_ARGUMENT;
    xercesc::DOMElement *params = getDigitalPrintingParams(ctx);
    int number = generateMediaId(ctx, media, false);
    if (number < 0) {
        zundo_trace("negative media id returned from generateMediaId\n");
        return ZUNDO_ERROR;
    }
    if (params == nullptr) return ZUNDO_ERROR;
    char id[kMediaIdSize];
    formatMediaId(id, number);
    if (runRange == nullptr || documentIndex != nullptr) {
        writeMediaRef(params, id, documentIndex, runRange);
    } else {
        zundo_status_t status =
            addJobLevelRunRange(ctx->mediaReferences[number], params, id, runRange);
        if (status != ZUNDO_OK) return status;
    }
    zundo_trace(">> leaving writeMediaForDPP\n");
    return ZUNDO_OK;
}

zundo_status_t writeMedia(JDFWriteContext *ctx, zundo_int_object_s *media,
                          xercesc::DOMElement *const *elements, const char *runRange,
                          const char *documentIndex) {
    zundo_trace(">> entering writeMedia\n");
    zundo_status_t status = ZUNDO_OK;
    if (media != nullptr) {
        int number = generateMediaId(ctx, media, elements == nullptr);
        if (number < 0) {
            zundo_trace("negative media id returned from generateMediaId\n");
            status = ZUNDO_ERROR;
        } else {
            char id[kMediaIdSize];
            formatMediaId(id, number);
            for (xercesc::DOMElement *const *element = elements;
                 element != nullptr && *element != nullptr; ++element)
                writeMediaRef(*element, id, documentIndex, runRange);
        }
    }
    zundo_trace(">> leaving writeMedia\n");
    return status;
}

void writeAuditMedia(JDFWriteContext *ctx, zundo_int_object_s *job) {
    FetchedAttribute medias(job, "job-audit-medias");
    zundo_int_attribute_s *values = medias.attribute();
    resetIterator(values);
    while (hasNextValue(values)) {
        auto *media = static_cast<zundo_int_object_s *>(nextValue(values));
        if (media != nullptr && objectHasValue(media, "media-amount-used"))
            writeMedia(ctx, media, nullptr, nullptr, nullptr);
    }
}
