// Reading and writing partitioned resources.
#include "xml/partitions.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/util/XMLString.hpp>

#include <cstring>
#include <string>

#include "xml/partition_index.h"
#include "zundo_trace.h"

XERCES_CPP_NAMESPACE_USE

namespace {

// A name or value in the DOM's text, freed on scope exit.
class WideText {
public:
    WideText(const char *text, bool isValue)
        : text_(isValue ? UTF8Transcoder::transcodeValue(text)
                        : UTF8Transcoder::transcodeAttr(text)) {}
    ~WideText() { UTF8Transcoder::release(&text_); }
    WideText(const WideText &) = delete;
    WideText &operator=(const WideText &) = delete;
    const XMLCh *get() const { return text_; }

private:
    XMLCh *text_;
};

// An attribute value of the DOM as UTF-8, freed on scope exit.
class KeyValue {
public:
    KeyValue(const DOMElement *element, const XMLCh *name)
        : text_(UTF8Transcoder::transcodeValue(element->getAttribute(name))) {}
    ~KeyValue() { UTF8Transcoder::release(&text_); }
    KeyValue(const KeyValue &) = delete;
    KeyValue &operator=(const KeyValue &) = delete;
    const char *get() const { return text_; }

private:
    char *text_;
};

// What one partition contributes: its attributes (without the named key
// attributes) or its child elements, each with the partition's key values.
zundo_result_t collect(const DOMElement *partition, AttributeEntry ***list, const char *skip1,
                       const char *firstValue, const char *skip2, const char *secondValue,
                       size_t *count) {
    return addAttrsToArray(partition->getAttributes(), list, skip1, firstValue, skip2, secondValue,
                           count);
}

zundo_result_t collect(const DOMElement *partition, ElementEntry ***list, const char *,
                       const char *firstValue, const char *, const char *secondValue,
                       size_t *count) {
    return addChildElementsToArray(partition, list, firstValue, secondValue, count);
}

void freeList(AttributeEntry **list) { freeAttrList(list); }
void freeList(ElementEntry **list) { freeElementList(list); }
bool terminate(AttributeEntry ***list, size_t count) { return terminateAttrList(list, count); }
bool terminate(ElementEntry ***list, size_t count) { return terminateElementList(list, count); }

// Ends a walk: the terminated list on success, nothing (and the partial
// list freed) otherwise.
template <typename Entry>
zundo_result_t finishWalk(zundo_result_t result, Entry **list, size_t count, Entry ***out,
                          const char *operation) {
    if (!terminate(&list, count)) {
        traceOutOfMemory(operation);
        return zundoResult(ZUNDO_OUT_OF_MEMORY);
    }
    if (result.status != ZUNDO_OK) {
        freeList(list);
        return result;
    }
    *out = list;
    return result;
}

template <typename Entry>
zundo_result_t firstLevel(const DOMElement *resource, Entry ***out, const char *key,
                          const char *operation) {
    if (out == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    *out = nullptr;
    if (resource == nullptr || key == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    Entry **list = nullptr;
    size_t count = 0;
    zundo_result_t result = zundoResult(ZUNDO_OK);
    if (resource->hasAttribute(u"PartIDKeys")) {
        WideText wideKey(key, false);
        if (wideKey.get() == nullptr) result = zundoResult(ZUNDO_OUT_OF_MEMORY);
        for (const DOMElement *child = resource->getFirstElementChild();
             child != nullptr && result.status == ZUNDO_OK;
             child = child->getNextElementSibling()) {
            if (!child->hasAttribute(wideKey.get())) continue;
            KeyValue value(child, wideKey.get());
            result = value.get() != nullptr
                         ? collect(child, &list, key, value.get(), nullptr, nullptr, &count)
                         : zundoResult(ZUNDO_OUT_OF_MEMORY);
        }
        if (result.status == ZUNDO_OUT_OF_MEMORY) traceOutOfMemory(operation);
    }
    return finishWalk(result, list, count, out, operation);
}

// Both shapes count: resource > first-level partition > second-level
// partition, and resource > partition keyed by the second key alone. The
// first-level partition's own contribution belongs to the first-level walk.
template <typename Entry>
zundo_result_t secondLevel(const DOMElement *resource, Entry ***out, const char *firstKey,
                           const char *secondKey, const char *operation) {
    if (out == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    *out = nullptr;
    if (resource == nullptr || firstKey == nullptr || secondKey == nullptr)
        return zundoResult(ZUNDO_NULL_ARGUMENT);
    Entry **list = nullptr;
    size_t count = 0;
    zundo_result_t result = zundoResult(ZUNDO_OK);
    WideText wideFirst(firstKey, false);
    WideText wideSecond(secondKey, false);
    if (wideFirst.get() == nullptr || wideSecond.get() == nullptr) {
        traceOutOfMemory(operation);
        result = zundoResult(ZUNDO_OUT_OF_MEMORY);
    }
    const XMLCh *name = resource->getTagName();
    for (const DOMElement *child = resource->getFirstElementChild();
         child != nullptr && result.status == ZUNDO_OK; child = child->getNextElementSibling()) {
        if (!sameName(child->getTagName(), name)) continue;
        if (child->hasAttribute(wideFirst.get())) {
            KeyValue first(child, wideFirst.get());
            for (const DOMElement *grandchild = child->getFirstElementChild();
                 grandchild != nullptr && result.status == ZUNDO_OK;
                 grandchild = grandchild->getNextElementSibling()) {
                if (!sameName(grandchild->getTagName(), name) ||
                    !grandchild->hasAttribute(wideSecond.get()))
                    continue;
                KeyValue second(grandchild, wideSecond.get());
                result = first.get() != nullptr && second.get() != nullptr
                             ? collect(grandchild, &list, firstKey, first.get(), secondKey,
                                       second.get(), &count)
                             : zundoResult(ZUNDO_OUT_OF_MEMORY);
            }
        } else if (child->hasAttribute(wideSecond.get())) {
            KeyValue second(child, wideSecond.get());
            result = second.get() != nullptr
                         ? collect(child, &list, secondKey, nullptr, nullptr, second.get(), &count)
                         : zundoResult(ZUNDO_OUT_OF_MEMORY);
        }
    }
    return finishWalk(result, list, count, out, operation);
}

}  // namespace

zundo_result_t get1stLvlAttrs(const DOMElement *resource, AttributeEntry ***out, const char *key) {
    return firstLevel(resource, out, key, "get1stLvlAttrs");
}

zundo_result_t get2ndLvlAttrs(const DOMElement *resource, AttributeEntry ***out,
                              const char *firstKey, const char *secondKey) {
    return secondLevel(resource, out, firstKey, secondKey, "get2ndLvlAttrs");
}

zundo_result_t get1stLvlElements(const DOMElement *resource, ElementEntry ***out, const char *key) {
    return firstLevel(resource, out, key, "get1stLvlElements");
}

zundo_result_t get2ndLvlElements(const DOMElement *resource, ElementEntry ***out,
                                 const char *firstKey, const char *secondKey) {
    return secondLevel(resource, out, firstKey, secondKey, "get2ndLvlElements");
}

zundo_result_t getDocIndexLvlAttrs(const DOMElement *resource, AttributeEntry ***out) {
    return get1stLvlAttrs(resource, out, "DocIndex");
}

zundo_result_t getDocRunIndexLvlAttrs(const DOMElement *resource, AttributeEntry ***out) {
    return get2ndLvlAttrs(resource, out, "DocIndex", "DocRunIndex");
}

zundo_result_t getRunLvlAttrs(const DOMElement *resource, AttributeEntry ***out) {
    return get1stLvlAttrs(resource, out, "Run");
}

zundo_result_t getRunIndexLvlAttrs(const DOMElement *resource, AttributeEntry ***out) {
    return get2ndLvlAttrs(resource, out, "Run", "RunIndex");
}

zundo_result_t getDocIndexLvlElements(const DOMElement *resource, ElementEntry ***out) {
    return get1stLvlElements(resource, out, "DocIndex");
}

zundo_result_t getDocRunIndexLvlElements(const DOMElement *resource, ElementEntry ***out) {
    return get2ndLvlElements(resource, out, "DocIndex", "DocRunIndex");
}

zundo_result_t getRunLvlElements(const DOMElement *resource, ElementEntry ***out) {
    return get1stLvlElements(resource, out, "Run");
}

zundo_result_t getRunIndexLvlElements(const DOMElement *resource, ElementEntry ***out) {
    return get2ndLvlElements(resource, out, "Run", "RunIndex");
}

namespace {

// The first partition below `parent` (at any depth) named like it whose
// key equals the value, by walking the subtree.
DOMElement *searchBelow(const DOMElement *parent, const XMLCh *key, const XMLCh *value) {
    const XMLCh *name = parent->getTagName();
    for (const DOMElement *at = nextInDocumentOrder(parent, parent); at != nullptr;
         at = nextInDocumentOrder(at, parent)) {
        if (sameName(at->getTagName(), name) && at->hasAttribute(key) &&
            XMLString::equals(at->getAttribute(key), value))
            return const_cast<DOMElement *>(at);
    }
    return nullptr;
}

// The first partition below `parent` (at any depth) named like it whose
// key equals the value; the key must be present, so an empty value does
// not match a partition that lacks the key. Created under parent when
// there is none.
DOMElement *findOrCreateBelow(DOMElement *parent, const char *key, const char *value) {
    WideText wideKey(key, false);
    WideText wideValue(value, true);
    if (wideKey.get() == nullptr || wideValue.get() == nullptr) {
        traceOutOfMemory("findOrCreatePartition");
        return nullptr;
    }
    bool unindexed = false;
    DOMElement *found = findIndexedPartition(parent, wideKey.get(), wideValue.get(), &unindexed);
    if (unindexed) found = searchBelow(parent, wideKey.get(), wideValue.get());
    return found != nullptr ? found : appendPartition(parent, key, value);
}

bool partIdKeysEqual(const DOMElement *resource, const char *keys) {
    if (!resource->hasAttribute(u"PartIDKeys")) return false;
    KeyValue current(resource, u"PartIDKeys");
    return current.get() != nullptr && std::strcmp(current.get(), keys) == 0;
}

}  // namespace

DOMElement *appendPartition(DOMElement *parent, const char *key, const char *value) {
    if (parent == nullptr || key == nullptr || value == nullptr) return nullptr;
    DOMElement *partition = nullptr;
    try {
        partition = parent->getOwnerDocument()->createElement(parent->getTagName());
        parent->appendChild(partition);
    } catch (...) {
        domFailure("findOrCreatePartition");
        return nullptr;
    }
    return setPartitionKey(partition, key, value) == ZUNDO_OK ? partition : nullptr;
}

zundo_status_t setPartitionKey(DOMElement *partition, const char *key, const char *value) {
    zundo_status_t status = setNamedAttribute(partition, key, value);
    if (status != ZUNDO_OK) return status;
    WideText wideKey(key, false);
    WideText wideValue(value, true);
    if (wideKey.get() == nullptr || wideValue.get() == nullptr) {
        traceOutOfMemory("setPartitionKey");
        return ZUNDO_OUT_OF_MEMORY;
    }
    recordPartitionKey(partition, wideKey.get(), wideValue.get());
    return ZUNDO_OK;
}

zundo_status_t appendToPartitionKey(DOMElement *partition, const char *key, const char *word) {
    if (partition == nullptr || key == nullptr || word == nullptr) return ZUNDO_NULL_ARGUMENT;
    WideText wideKey(key, false);
    WideText wideWord(word, true);
    if (wideKey.get() == nullptr || wideWord.get() == nullptr) {
        traceOutOfMemory("appendToPartitionKey");
        return ZUNDO_OUT_OF_MEMORY;
    }
    try {
        std::u16string value(partition->getAttribute(wideKey.get()));
        value += u' ';
        value += wideWord.get();
        partition->setAttribute(wideKey.get(), value.c_str());
        recordPartitionKey(partition, wideKey.get(), value.c_str());
    } catch (...) {
        return domFailure("appendToPartitionKey");
    }
    return ZUNDO_OK;
}

DOMElement *findOrCreatePartition(DOMElement *resource, const char *value, const char *key) {
    if (resource == nullptr || value == nullptr || key == nullptr) return nullptr;
    DOMElement *partition = findOrCreateBelow(resource, key, value);
    if (partition != nullptr && !resource->hasAttribute(u"PartIDKeys") &&
        setNamedAttribute(resource, "PartIDKeys", key) != ZUNDO_OK)
        return nullptr;
    return partition;
}

DOMElement *findOrCreateSubPartition(DOMElement *resource, const char *firstKey,
                                     const char *firstValue, const char *secondKey,
                                     const char *secondValue, const char *partIdKeys) {
    if (resource == nullptr || secondKey == nullptr || secondValue == nullptr ||
        partIdKeys == nullptr || (firstValue != nullptr && firstKey == nullptr))
        return nullptr;
    DOMElement *parent =
        firstValue != nullptr ? findOrCreatePartition(resource, firstValue, firstKey) : resource;
    if (parent == nullptr) return nullptr;
    DOMElement *partition = findOrCreateBelow(parent, secondKey, secondValue);
    if (partition == nullptr) return nullptr;
    if (!partIdKeysEqual(resource, partIdKeys) &&
        setNamedAttribute(resource, "PartIDKeys", firstValue != nullptr ? partIdKeys : secondKey) !=
            ZUNDO_OK)
        return nullptr;
    return partition;
}

namespace {

zundo_result_t partitionNotMade() {
    zundo_trace("partition could not be found or created\n");
    return zundoResult(ZUNDO_INTERNAL_ERROR);
}

}  // namespace

zundo_result_t setPartitionAttr(DOMElement *resource, const AttributeEntry *entry,
                                const char *key) {
    if (resource == nullptr || entry == nullptr || key == nullptr)
        return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (entry->name == nullptr || entry->value == nullptr || entry->firstKey == nullptr)
        return zundoResult(ZUNDO_MISSING_FIELD);
    DOMElement *partition = findOrCreatePartition(resource, entry->firstKey, key);
    return partition != nullptr ? setElementAttribute(partition, entry) : partitionNotMade();
}

zundo_result_t setSubPartitionAttr(DOMElement *resource, const AttributeEntry *entry,
                                   const char *firstKey, const char *secondKey,
                                   const char *partIdKeys) {
    if (resource == nullptr || entry == nullptr || firstKey == nullptr || secondKey == nullptr ||
        partIdKeys == nullptr)
        return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (entry->name == nullptr || entry->value == nullptr || entry->secondKey == nullptr)
        return zundoResult(ZUNDO_MISSING_FIELD);
    DOMElement *partition = findOrCreateSubPartition(resource, firstKey, entry->firstKey, secondKey,
                                                     entry->secondKey, partIdKeys);
    return partition != nullptr ? setElementAttribute(partition, entry) : partitionNotMade();
}

zundo_result_t setDocIndexPartitionAttr(DOMElement *resource, const AttributeEntry *entry) {
    return setPartitionAttr(resource, entry, "DocIndex");
}

zundo_result_t setDocRunIndexPartitionAttr(DOMElement *resource, const AttributeEntry *entry) {
    if (entry != nullptr && entry->firstKey == nullptr) return zundoResult(ZUNDO_MISSING_FIELD);
    return setSubPartitionAttr(resource, entry, "DocIndex", "DocRunIndex", "DocIndex DocRunIndex");
}

zundo_result_t setRunPartitionAttr(DOMElement *resource, const AttributeEntry *entry) {
    return setPartitionAttr(resource, entry, "Run");
}

zundo_result_t setRunIndexPartitionAttr(DOMElement *resource, const AttributeEntry *entry) {
    return setSubPartitionAttr(resource, entry, "Run", "RunIndex", "Run RunIndex");
}

zundo_result_t createPartitionElement(DOMElement *resource, ElementEntry *entry, const char *key) {
    if (resource == nullptr || entry == nullptr || key == nullptr)
        return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (entry->name == nullptr || entry->firstKey == nullptr)
        return zundoResult(ZUNDO_MISSING_FIELD);
    DOMElement *partition = findOrCreatePartition(resource, entry->firstKey, key);
    return partition != nullptr ? createChildElement(partition, entry) : partitionNotMade();
}

zundo_result_t createSubPartitionElement(DOMElement *resource, ElementEntry *entry,
                                         const char *firstKey, const char *secondKey,
                                         const char *partIdKeys) {
    if (resource == nullptr || entry == nullptr || firstKey == nullptr || secondKey == nullptr ||
        partIdKeys == nullptr)
        return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (entry->name == nullptr || entry->secondKey == nullptr)
        return zundoResult(ZUNDO_MISSING_FIELD);
    DOMElement *partition = findOrCreateSubPartition(resource, firstKey, entry->firstKey, secondKey,
                                                     entry->secondKey, partIdKeys);
    return partition != nullptr ? createChildElement(partition, entry) : partitionNotMade();
}

zundo_result_t createDocIndexPartitionElement(DOMElement *resource, ElementEntry *entry) {
    return createPartitionElement(resource, entry, "DocIndex");
}

zundo_result_t createDocRunIndexPartitionElement(DOMElement *resource, ElementEntry *entry) {
    if (entry != nullptr && entry->firstKey == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    return createSubPartitionElement(resource, entry, "DocIndex", "DocRunIndex",
                                     "DocIndex DocRunIndex");
}

zundo_result_t createRunPartitionElement(DOMElement *resource, ElementEntry *entry) {
    return createPartitionElement(resource, entry, "Run");
}

zundo_result_t createRunIndexPartitionElement(DOMElement *resource, ElementEntry *entry) {
    return createSubPartitionElement(resource, entry, "Run", "RunIndex", "Run RunIndex");
}

zundo_result_t createConditionPartitionElement(DOMElement *resource, ElementEntry *entry) {
    if (entry != nullptr && entry->firstKey == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (entry != nullptr && entry->secondKey == nullptr)
        return createPartitionElement(resource, entry, "Condition");
    return createSubPartitionElement(resource, entry, "Condition", "RunIndex",
                                     "Condition RunIndex");
}
