// Recording audits and putting them in time order.
#include "write/audits.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <vector>

#include "write/resource_getters.h"
#include "xml/jdf_entries.h"
#include "zundo_trace.h"

namespace {

// An audit with its time stamp read once, so that sorting compares values.
struct AuditSortKey {
    xercesc::DOMElement *element;
    const char *name;
    zundo_date_time_s *timeStamp;  // null when missing or not a date-time
};

zundo_date_time_s *readTimeStamp(const xercesc::DOMElement *element) {
    AttributeEntry *entry = nullptr;
    getAttrByName(element, "TimeStamp", &entry);
    zundo_date_time_s *timeStamp = nullptr;
    if (entry != nullptr && newDateTimeFromString(&timeStamp, entry->value) != ZUNDO_OK)
        timeStamp = nullptr;
    freeAttrEntry(entry);
    return timeStamp;
}

bool isProcessRun(const char *name) { return std::strcmp(name, "ProcessRun") == 0; }

int compareAuditElements(const AuditSortKey &a, const AuditSortKey &b) {
    int order = compareDateTime(a.timeStamp, b.timeStamp);
    if (order != 0) return order;
    if (std::strcmp(a.name, b.name) == 0) return 0;
    if (isProcessRun(a.name)) return 1;
    if (isProcessRun(b.name)) return -1;
    return 0;
}

void appendInOrder(xercesc::DOMElement *pool, const std::vector<AuditSortKey> &keys) {
    for (const AuditSortKey &key : keys) {
        ElementEntry entry = {key.element, nullptr, nullptr, nullptr};
        zundo_result_t result = appendChildElement(pool, &entry);
        if (result.status != ZUNDO_OK) zundo_trace("parser_error %i, \n", result.status);
    }
}

}  // namespace

// The record list grows before the element is made, so an audit that
// cannot be recorded never reaches the document.
zundo_status_t addAuditPoolElement(JDFWriteContext *ctx, AuditPoolElementRecord *record) {
    if (ctx == nullptr || record == nullptr || record->name == nullptr)
        return ZUNDO_INVALID_ARGUMENT;
    record->element = nullptr;
    xercesc::DOMElement *pool = getAuditPool(ctx);
    if (pool == nullptr) return ZUNDO_ERROR;
    auto *audit = static_cast<AuditRecord *>(std::calloc(1, sizeof(AuditRecord)));
    char *name = audit != nullptr ? strdup(record->name) : nullptr;
    if (name == nullptr || !growListForAppend(&ctx->audits, ctx->auditCount)) {
        std::free(name);
        std::free(audit);
        zundo_trace("addAuditPoolElement() generated out of memory \n");
        return ZUNDO_OUT_OF_MEMORY;
    }
    ElementEntry entry = {nullptr, record->name, nullptr, nullptr};
    zundo_result_t result = createChildElement(pool, &entry);
    if (result.status != ZUNDO_OK) {
        zundo_trace("parser_error %i, \n", result.status);
        std::free(name);
        std::free(audit);
        return result.status;
    }
    audit->element = entry.element;
    audit->name = name;
    ctx->audits[ctx->auditCount++] = audit;
    ctx->audits[ctx->auditCount] = nullptr;
    record->element = entry.element;
    return ZUNDO_OK;
}

void sortAuditPool(JDFWriteContext *ctx) {
    if (ctx->auditCount == 0) return;
    std::vector<AuditSortKey> keys;
    try {
        keys.reserve(ctx->auditCount);
        for (size_t i = 0; i < ctx->auditCount; ++i)
            keys.push_back({ctx->audits[i]->element, ctx->audits[i]->name,
                            readTimeStamp(ctx->audits[i]->element)});
        std::stable_sort(keys.begin(), keys.end(),
                         [](const AuditSortKey &a, const AuditSortKey &b) {
                             return compareAuditElements(a, b) < 0;
                         });
        appendInOrder(getAuditPool(ctx), keys);
    } catch (const std::bad_alloc &) {
        // The audits stay in the order they were added.
        traceOutOfMemory("sortAuditPool");
    }
    for (const AuditSortKey &key : keys) destroyDateTime(key.timeStamp);
    releaseAuditRecords(ctx);
}
