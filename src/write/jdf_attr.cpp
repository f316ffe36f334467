// Attributes on resources and their partitions.
#include "write/jdf_attr.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <vector>

#include "write/resource_getters.h"
#include "xml/partitions.h"
#include "zundo_trace.h"

namespace {

const char kLayoutPreparationParams[] = "LayoutPreparationParams";

typedef std::vector<xercesc::DOMElement *> ElementVector;

bool hasAttributeValue(const xercesc::DOMElement *element, const char *name, const char *value) {
    AttributeEntry *entry = nullptr;
    getAttrByName(element, name, &entry);
    bool matches = entry != nullptr && (value == nullptr || std::strcmp(entry->value, value) == 0);
    freeAttrEntry(entry);
    return matches;
}

// Appends the child partitions of parent that carry key (with that value
// when one is given).
void collectPartitions(xercesc::DOMElement *parent, const char *key, const char *value,
                       ElementVector *out) {
    ElementEntry **children = nullptr;
    if (findChildElements(parent, &children).status != ZUNDO_OK) return;
    for (ElementEntry **child = children; *child != nullptr; ++child) {
        if (hasTagName((*child)->element, kLayoutPreparationParams) &&
            hasAttributeValue((*child)->element, key, value))
            out->push_back((*child)->element);
    }
    freeElementList(children);
}

// The CellIndex children, the Side grandchildren under them, or the Side
// children, whichever partition structure the page cells made.
void collectCellLevelLeaves(const JDFWriteContext *ctx, xercesc::DOMElement *resource,
                            ElementVector *leaves) {
    bool sides = ctx->lppFrontSidePartitions || ctx->lppBackSidePartitions;
    if (!ctx->lppCellPartitions) {
        collectPartitions(resource, "Side", nullptr, leaves);
        return;
    }
    if (!sides) {
        collectPartitions(resource, "CellIndex", nullptr, leaves);
        return;
    }
    ElementVector cells;
    collectPartitions(resource, "CellIndex", nullptr, &cells);
    for (xercesc::DOMElement *cell : cells) collectPartitions(cell, "Side", nullptr, leaves);
}

bool isCellLevelTarget(const JDFWriteContext *ctx, const xercesc::DOMElement *element,
                       int cellLevel, const char *runRange) {
    return cellLevel == 1 && runRange != nullptr &&
           hasTagName(element, kLayoutPreparationParams) &&
           (ctx->lppCellPartitions || ctx->lppFrontSidePartitions || ctx->lppBackSidePartitions);
}

zundo_status_t writeCellLevelAttr(const JDFWriteContext *ctx, xercesc::DOMElement *resource,
                                  const char *name, const char *value, const char *runRange) {
    if (value == nullptr) return ZUNDO_OK;
    try {
        ElementVector leaves;
        collectCellLevelLeaves(ctx, resource, &leaves);
        for (xercesc::DOMElement *leaf : leaves) {
            ElementVector runs;
            collectPartitions(leaf, "RunIndex", runRange, &runs);
            if (runs.empty()) continue;
            zundo_status_t status = setNamedAttribute(runs.front(), name, value);
            if (status != ZUNDO_OK) zundo_trace("parser_error %i, \n", status);
        }
    } catch (const std::bad_alloc &) {
        traceOutOfMemory("writeJDFAttr");
        return ZUNDO_OUT_OF_MEMORY;
    }
    return ZUNDO_OK;
}

zundo_status_t setOnElementOrPartition(xercesc::DOMElement *element, const char *name,
                                       const char *value, const char *runRange,
                                       const char *documentIndex) {
    const AttributeEntry entry = {name, value, documentIndex, runRange};
    if (runRange == nullptr && documentIndex == nullptr)
        return setElementAttribute(element, &entry).status;
    if (documentIndex == nullptr)
        return setSubPartitionAttr(element, &entry, "Run", "RunIndex", "RunIndex").status;
    if (runRange == nullptr) return setDocIndexPartitionAttr(element, &entry).status;
    return setDocRunIndexPartitionAttr(element, &entry).status;
}

// The RunIndex partition of a cell-level leaf, made when missing.
xercesc::DOMElement *leafRunPartition(xercesc::DOMElement *leaf, const char *runRange) {
    ElementVector runs;
    collectPartitions(leaf, "RunIndex", runRange, &runs);
    if (!runs.empty()) return runs.front();
    xercesc::DOMElement *run = appendPartition(leaf, "RunIndex", runRange);
    if (run == nullptr) zundo_trace("parser_error %i, \n", ZUNDO_INTERNAL_ERROR);
    return run;
}

bool appendToList(ElementEntry ***list, size_t *count, xercesc::DOMElement *element) {
    if (!growListForAppend(list, *count)) return false;
    auto *entry = static_cast<ElementEntry *>(std::calloc(1, sizeof(ElementEntry)));
    if (entry == nullptr) return false;
    entry->element = element;
    (*list)[(*count)++] = entry;
    return true;
}

// The partitions that receive the new elements: every cell-level leaf's
// RunIndex partition, the RunIndex partition of the resource, or the
// resource itself.
void collectLPPTargets(const JDFWriteContext *ctx, xercesc::DOMElement *resource,
                       const char *runRange, int cellLevel, ElementVector *targets) {
    if (isCellLevelTarget(ctx, resource, cellLevel, runRange)) {
        ElementVector leaves;
        collectCellLevelLeaves(ctx, resource, &leaves);
        for (xercesc::DOMElement *leaf : leaves)
            if (xercesc::DOMElement *run = leafRunPartition(leaf, runRange))
                targets->push_back(run);
        return;
    }
    if (runRange == nullptr) {
        targets->push_back(resource);
        return;
    }
    xercesc::DOMElement *run =
        findOrCreateSubPartition(resource, "Run", nullptr, "RunIndex", runRange, "RunIndex");
    if (run != nullptr) targets->push_back(run);
    else zundo_trace("parser_error %i, \n", ZUNDO_INTERNAL_ERROR);
}

}  // namespace

zundo_status_t addLPPRunIndexElement(JDFWriteContext *ctx, const char *elementName,
                                     const char *runRange, int cellLevel, ElementEntry ***list) {
    if (ctx == nullptr || elementName == nullptr || list == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *list = nullptr;
    xercesc::DOMElement *resource = getLayoutPreparationParams(ctx);
    if (resource == nullptr) return ZUNDO_ERROR;
    size_t count = 0;
    zundo_status_t status = ZUNDO_OK;
    try {
        ElementVector targets;
        collectLPPTargets(ctx, resource, runRange, cellLevel, &targets);
        for (xercesc::DOMElement *target : targets) {
            xercesc::DOMElement *element = appendChildTraced(target, elementName);
            if (element == nullptr) continue;
            if (!appendToList(list, &count, element)) {
                status = ZUNDO_OUT_OF_MEMORY;
                break;
            }
        }
    } catch (const std::bad_alloc &) {
        status = ZUNDO_OUT_OF_MEMORY;
    }
    bool terminated = terminateElementList(list, count);
    if (status == ZUNDO_OUT_OF_MEMORY || !terminated) traceOutOfMemory("addLPPRunIndexElement");
    return terminated ? status : ZUNDO_OUT_OF_MEMORY;
}

zundo_status_t writeJDFAttr(JDFWriteContext *ctx, const char *name, const char *value,
                            int cellLevel, const char *runRange, const char *documentIndex,
                            ElementGetter getter) {
    if (ctx == nullptr || name == nullptr || getter == nullptr) return ZUNDO_INVALID_ARGUMENT;
    xercesc::DOMElement *element = getter(ctx);
    if (element == nullptr) return ZUNDO_ERROR;
    if (isCellLevelTarget(ctx, element, cellLevel, runRange))
        return writeCellLevelAttr(ctx, element, name, value, runRange);
    zundo_trace(">> entering writeJDFAttr %s \n", name);
    zundo_status_t status = ZUNDO_OK;
    if (value != nullptr) {
        status = setOnElementOrPartition(element, name, value, runRange, documentIndex);
        if (status != ZUNDO_OK) zundo_trace("parser_error %i, \n", status);
    }
    zundo_trace("<< leaving writeJDFAttr\n");
    return status;
}

void setAttributeTraced(xercesc::DOMElement *element, const char *name, const char *value) {
    succeededTraced(setNamedAttribute(element, name, value));
}

bool succeededTraced(zundo_status_t status) {
    if (status == ZUNDO_OK) return true;
    zundo_trace("parser_error %i, \n", status);
    return false;
}

xercesc::DOMElement *appendChildTraced(xercesc::DOMElement *parent, const char *name) {
    ElementEntry entry = {nullptr, name, nullptr, nullptr};
    return succeededTraced(createChildElement(parent, &entry).status) ? entry.element : nullptr;
}

xercesc::DOMElement *findOrAppendChild(xercesc::DOMElement *parent, const char *name) {
    ElementEntry **children = nullptr;
    xercesc::DOMElement *found = nullptr;
    if (findChildElements(parent, &children).status == ZUNDO_OK) {
        for (ElementEntry **child = children; *child != nullptr && found == nullptr; ++child)
            if (hasTagName((*child)->element, name)) found = (*child)->element;
    }
    freeElementList(children);
    return found != nullptr ? found : appendChildTraced(parent, name);
}
