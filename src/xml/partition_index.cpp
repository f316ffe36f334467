// The partition index: per (parent, key), the first partition of each key
// value below the parent, built by one walk of the subtree on first use and
// kept up to date as partitions are appended.
#include "xml/partition_index.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/util/XMLString.hpp>

#include <functional>
#include <new>
#include <string>
#include <unordered_map>

#include "xml/document_registry.h"
#include "xml/jdf_entries.h"

XERCES_CPP_NAMESPACE_USE

namespace {

// Key values longer than this are not indexed: partitions are looked up by
// short values (an index, a page or a range), and a RunIndex that grows
// range by range would otherwise leave every intermediate text behind.
const XMLSize_t kLongestIndexedValue = 64;

bool indexable(const XMLCh *value) { return XMLString::stringLen(value) <= kLongestIndexedValue; }

typedef std::u16string Text;
typedef std::unordered_map<Text, DOMElement *> FirstByValue;

struct ParentKey {
    const DOMElement *parent;
    Text key;
    bool operator==(const ParentKey &other) const {
        return parent == other.parent && key == other.key;
    }
};

struct ParentKeyHash {
    size_t operator()(const ParentKey &k) const {
        return std::hash<const void *>()(k.parent) ^ (std::hash<Text>()(k.key) << 1);
    }
};

typedef std::unordered_map<ParentKey, FirstByValue, ParentKeyHash> PartitionIndex;

DocumentRegistry<PartitionIndex> indexes;

PartitionIndex *indexOf(const DOMElement *element) {
    return indexes.obtain(element->getOwnerDocument());
}

FirstByValue buildFirstByValue(const DOMElement *parent, const XMLCh *key) {
    FirstByValue first;
    const XMLCh *name = parent->getTagName();
    for (const DOMElement *at = nextInDocumentOrder(parent, parent); at != nullptr;
         at = nextInDocumentOrder(at, parent)) {
        if (sameName(at->getTagName(), name) && at->hasAttribute(key) &&
            indexable(at->getAttribute(key)))
            first.emplace(Text(at->getAttribute(key)), const_cast<DOMElement *>(at));
    }
    return first;
}

bool isBelow(const DOMNode *node, const DOMElement *ancestor) {
    for (const DOMNode *at = node->getParentNode(); at != nullptr; at = at->getParentNode())
        if (at == ancestor) return true;
    return false;
}

// The indexed element still carries the value and still sits below the
// parent: nothing has moved it since it was recorded.
bool stillMatches(const DOMElement *element, const DOMElement *parent, const XMLCh *key,
                  const XMLCh *value) {
    return element->hasAttribute(key) && XMLString::equals(element->getAttribute(key), value) &&
           isBelow(element, parent);
}

}  // namespace

DOMElement *findIndexedPartition(const DOMElement *parent, const XMLCh *key, const XMLCh *value,
                                 bool *failed) {
    *failed = !indexable(value);
    if (*failed) return nullptr;
    try {
        PartitionIndex *index = indexOf(parent);
        ParentKey slot{parent, Text(key)};
        auto known = index->find(slot);
        if (known == index->end())
            known = index->emplace(std::move(slot), buildFirstByValue(parent, key)).first;
        auto hit = known->second.find(Text(value));
        if (hit == known->second.end()) return nullptr;
        if (stillMatches(hit->second, parent, key, value)) return hit->second;
        known->second = buildFirstByValue(parent, key);
        hit = known->second.find(Text(value));
        return hit != known->second.end() ? hit->second : nullptr;
    } catch (const std::bad_alloc &) {
        *failed = true;
        return nullptr;
    }
}

void recordPartitionKey(DOMElement *partition, const XMLCh *key, const XMLCh *value) {
    if (!indexable(value)) return;
    try {
        PartitionIndex *index = indexOf(partition);
        // Every enclosing partition of the same name that has been searched
        // by this key sees this one; it is their first of this value unless
        // another precedes it in document order. Entries of the value it
        // had before are checked when next found.
        const XMLCh *name = partition->getTagName();
        for (const DOMNode *at = partition->getParentNode();
             at != nullptr && at->getNodeType() == DOMNode::ELEMENT_NODE; at = at->getParentNode()) {
            const auto *ancestor = static_cast<const DOMElement *>(at);
            if (!sameName(ancestor->getTagName(), name)) break;
            auto known = index->find(ParentKey{ancestor, Text(key)});
            if (known == index->end()) continue;
            DOMElement *&first = known->second[Text(value)];
            if (first == nullptr ||
                !(partition->compareDocumentPosition(first) & DOMNode::DOCUMENT_POSITION_PRECEDING))
                first = partition;
        }
    } catch (const std::bad_alloc &) {
        // An index that missed a partition cannot be trusted: drop it, the
        // next search builds a new one.
        forgetPartitionIndex(partition->getOwnerDocument());
    }
}

void forgetPartitionIndex(const DOMDocument *document) { indexes.forget(document); }
