// The link index: per searched ResourceLinkPool, its child elements by
// rRef in document order.
#include "xml/link_index.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/util/XMLString.hpp>

#include <algorithm>
#include <new>
#include <string>
#include <unordered_map>

#include "xml/document_registry.h"

XERCES_CPP_NAMESPACE_USE

namespace {

typedef std::unordered_map<std::u16string, std::vector<DOMElement *>> LinksByReference;
typedef std::unordered_map<std::u16string, DOMElement *> FirstHolderByReference;

struct LinkIndex {
    // Link pools by their own children's rRef.
    std::unordered_map<const DOMElement *, LinksByReference> pools;
    // Audit pools by the rRef of a named child of a named child, keyed by
    // parent and "child/grandchild".
    std::unordered_map<const DOMElement *, std::unordered_map<std::u16string, FirstHolderByReference>>
        holders;
};

DocumentRegistry<LinkIndex> indexes;

LinkIndex *existingIndex(const DOMElement *element) {
    return indexes.find(element->getOwnerDocument());
}

LinkIndex *indexOf(const DOMElement *element) {
    return indexes.obtain(element->getOwnerDocument());
}

bool named(const DOMElement *element, const XMLCh *name) {
    return XMLString::equals(element->getTagName(), name);
}

void dropIndex(const DOMElement *element) { indexes.forget(element->getOwnerDocument()); }

bool precedes(DOMElement *a, DOMElement *b) {
    return (b->compareDocumentPosition(a) & DOMNode::DOCUMENT_POSITION_PRECEDING) != 0;
}

}  // namespace

const std::vector<DOMElement *> *findIndexedLinks(const DOMElement *linkPool,
                                                  const XMLCh *reference) {
    static const std::vector<DOMElement *> kNone;
    try {
        LinkIndex *index = indexOf(linkPool);
        auto pool = index->pools.find(linkPool);
        if (pool == index->pools.end()) {
            LinksByReference links;
            for (DOMElement *link = linkPool->getFirstElementChild(); link != nullptr;
                 link = link->getNextElementSibling())
                if (link->hasAttribute(u"rRef")) links[link->getAttribute(u"rRef")].push_back(link);
            pool = index->pools.emplace(linkPool, std::move(links)).first;
        }
        auto found = pool->second.find(reference);
        return found != pool->second.end() ? &found->second : &kNone;
    } catch (const std::bad_alloc &) {
        dropIndex(linkPool);
        return nullptr;
    }
}

void recordInsertedLink(const DOMElement *pool, DOMElement *element) {
    LinkIndex *index = existingIndex(pool);
    if (index == nullptr) return;
    auto searched = index->pools.find(pool);
    if (searched == index->pools.end() || !element->hasAttribute(u"rRef")) return;
    try {
        std::vector<DOMElement *> &links = searched->second[element->getAttribute(u"rRef")];
        links.insert(std::find_if(links.begin(), links.end(),
                                  [element](DOMElement *link) { return precedes(element, link); }),
                     element);
    } catch (const std::bad_alloc &) {
        // An index that missed a link cannot be trusted: the next search
        // builds a new one.
        dropIndex(pool);
    }
}

const DOMElement *findHolderOfReference(const DOMElement *parent, const XMLCh *childName,
                                        const XMLCh *linkName, const XMLCh *reference) {
    try {
        auto &byKind = indexOf(parent)->holders[parent];
        std::u16string kind = std::u16string(childName) + u'/' + linkName;
        auto known = byKind.find(kind);
        if (known == byKind.end()) {
            FirstHolderByReference first;
            for (DOMElement *child = parent->getFirstElementChild(); child != nullptr;
                 child = child->getNextElementSibling()) {
                if (!named(child, childName)) continue;
                for (DOMElement *link = child->getFirstElementChild(); link != nullptr;
                     link = link->getNextElementSibling())
                    if (named(link, linkName) && link->hasAttribute(u"rRef"))
                        first.emplace(link->getAttribute(u"rRef"), child);
            }
            known = byKind.emplace(std::move(kind), std::move(first)).first;
        }
        auto found = known->second.find(reference);
        return found != known->second.end() ? found->second : nullptr;
    } catch (const std::bad_alloc &) {
        dropIndex(parent);
        return nullptr;
    }
}

void forgetLinkIndex(const DOMDocument *document) { indexes.forget(document); }
