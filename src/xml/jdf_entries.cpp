// Attribute and element entries: building, freeing and the lookups that
// hand them out.
#include "xml/jdf_entries.h"

#include <xercesc/dom/DOMAttr.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/dom/DOMNode.hpp>
#include <xercesc/util/XMLString.hpp>

#include <cstring>
#include <new>

#include "zundo_trace.h"

XERCES_CPP_NAMESPACE_USE

bool nameIs(const XMLCh *name, const char *expected) {
    if (name == nullptr || expected == nullptr) return false;
    size_t i = 0;
    for (; name[i] != 0 && expected[i] != '\0'; ++i)
        if ((name[i] & 0xFF) != static_cast<unsigned char>(expected[i])) return false;
    return name[i] == 0 && expected[i] == '\0';
}

bool sameName(const XMLCh *a, const XMLCh *b) {
    if (a == nullptr || b == nullptr) return false;
    size_t i = 0;
    for (; a[i] != 0 && b[i] != 0; ++i)
        if ((a[i] & 0xFF) != (b[i] & 0xFF)) return false;
    return a[i] == 0 && b[i] == 0;
}

bool hasTagName(const DOMElement *element, const char *name) {
    return element != nullptr && nameIs(element->getTagName(), name);
}

const DOMElement *nextInDocumentOrder(const DOMElement *element, const DOMElement *root) {
    if (const DOMElement *child = element->getFirstElementChild()) return child;
    for (const DOMElement *at = element; at != root;
         at = static_cast<const DOMElement *>(at->getParentNode())) {
        if (const DOMElement *sibling = at->getNextElementSibling()) return sibling;
    }
    return nullptr;
}

char *copyText(const char *text) {
    if (text == nullptr) return nullptr;
    size_t length = std::strlen(text);
    char *copy = new (std::nothrow) char[length + 1];
    if (copy != nullptr) std::memcpy(copy, text, length + 1);
    return copy;
}

namespace {

void freeText(const char *text) { delete[] const_cast<char *>(text); }

void freeElementEntry(ElementEntry *entry) {
    if (entry == nullptr) return;
    freeText(entry->name);
    freeText(entry->firstKey);
    freeText(entry->secondKey);
    std::free(entry);
}

// A key copy fails only when there was a key to copy.
bool copyKey(const char *key, const char **out) {
    *out = copyText(key);
    return key == nullptr || *out != nullptr;
}

AttributeEntry *newAttrEntry(const DOMNode *attribute, const char *firstKey,
                             const char *secondKey) {
    auto *entry = static_cast<AttributeEntry *>(std::calloc(1, sizeof(AttributeEntry)));
    if (entry == nullptr) return nullptr;
    entry->name = UTF8Transcoder::transcodeAttr(attribute->getNodeName());
    entry->value = UTF8Transcoder::transcodeValue(attribute->getNodeValue());
    bool keysCopied = copyKey(firstKey, &entry->firstKey) && copyKey(secondKey, &entry->secondKey);
    if (entry->name == nullptr || entry->value == nullptr || !keysCopied) {
        freeAttrEntry(entry);
        return nullptr;
    }
    return entry;
}

ElementEntry *newElementEntry(DOMElement *element, const char *firstKey, const char *secondKey) {
    auto *entry = static_cast<ElementEntry *>(std::calloc(1, sizeof(ElementEntry)));
    if (entry == nullptr) return nullptr;
    entry->element = element;
    entry->name = UTF8Transcoder::transcodeAttr(element->getTagName());
    bool keysCopied = copyKey(firstKey, &entry->firstKey) && copyKey(secondKey, &entry->secondKey);
    if (entry->name == nullptr || !keysCopied) {
        freeElementEntry(entry);
        return nullptr;
    }
    return entry;
}

}  // namespace

void freeAttrEntry(AttributeEntry *entry) {
    if (entry == nullptr) return;
    freeText(entry->name);
    freeText(entry->value);
    freeText(entry->firstKey);
    freeText(entry->secondKey);
    std::free(entry);
}

void freeAttrList(AttributeEntry **list) {
    if (list == nullptr) return;
    for (AttributeEntry **entry = list; *entry != nullptr; ++entry) freeAttrEntry(*entry);
    std::free(list);
}

void freeElementList(ElementEntry **list) {
    if (list == nullptr) return;
    for (ElementEntry **entry = list; *entry != nullptr; ++entry) freeElementEntry(*entry);
    std::free(list);
}

namespace {

template <typename T>
bool terminateList(T ***list, size_t count) {
    if (*list == nullptr) {
        *list = static_cast<T **>(std::malloc(sizeof(T *)));
        if (*list == nullptr) return false;
    }
    (*list)[count] = nullptr;
    return true;
}

}  // namespace

bool terminateAttrList(AttributeEntry ***list, size_t count) { return terminateList(list, count); }

bool terminateElementList(ElementEntry ***list, size_t count) { return terminateList(list, count); }

zundo_result_t addAttrsToArray(const DOMNamedNodeMap *attributes, AttributeEntry ***list,
                               const char *skipName1, const char *firstKey, const char *skipName2,
                               const char *secondKey, size_t *count) {
    if (list == nullptr || count == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (attributes == nullptr) return zundoResult(ZUNDO_OK);
    XMLSize_t length = attributes->getLength();
    for (XMLSize_t i = 0; i < length; ++i) {
        const DOMNode *attribute = attributes->item(i);
        const XMLCh *name = attribute->getNodeName();
        if ((skipName1 != nullptr && nameIs(name, skipName1)) ||
            (skipName2 != nullptr && nameIs(name, skipName2)))
            continue;
        AttributeEntry *entry = nullptr;
        if (!growListForAppend(list, *count) ||
            (entry = newAttrEntry(attribute, firstKey, secondKey)) == nullptr) {
            traceOutOfMemory("addAttrsToArray");
            return zundoResult(ZUNDO_OUT_OF_MEMORY);
        }
        (*list)[(*count)++] = entry;
    }
    return zundoResult(ZUNDO_OK);
}

zundo_result_t addChildElementsToArray(const DOMElement *parent, ElementEntry ***list,
                                       const char *firstKey, const char *secondKey, size_t *count) {
    if (list == nullptr || count == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (parent == nullptr) return zundoResult(ZUNDO_OK);
    for (DOMElement *child = parent->getFirstElementChild(); child != nullptr;
         child = child->getNextElementSibling()) {
        ElementEntry *entry = nullptr;
        if (!growListForAppend(list, *count) ||
            (entry = newElementEntry(child, firstKey, secondKey)) == nullptr) {
            traceOutOfMemory("addChildElementsToArray");
            return zundoResult(ZUNDO_OUT_OF_MEMORY);
        }
        (*list)[(*count)++] = entry;
    }
    return zundoResult(ZUNDO_OK);
}

zundo_result_t getAttrs(const DOMElement *element, AttributeEntry ***out) {
    if (out == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    *out = nullptr;
    if (element == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    AttributeEntry **list = nullptr;
    size_t count = 0;
    zundo_result_t result = addAttrsToArray(element->getAttributes(), &list, nullptr, nullptr,
                                            nullptr, nullptr, &count);
    if (!terminateAttrList(&list, count)) {
        traceOutOfMemory("getAttrs");
        return zundoResult(ZUNDO_OUT_OF_MEMORY);
    }
    if (result.status != ZUNDO_OK) {
        traceOutOfMemory("getAttrs");
        freeAttrList(list);
        return result;
    }
    *out = list;
    return result;
}

zundo_result_t getAttrByName(const DOMElement *element, const char *name, AttributeEntry **out) {
    if (out != nullptr) *out = nullptr;
    if (element == nullptr || out == nullptr || name == nullptr)
        return zundoResult(ZUNDO_NULL_ARGUMENT);
    const DOMNamedNodeMap *attributes = element->getAttributes();
    XMLSize_t length = attributes->getLength();
    for (XMLSize_t i = 0; i < length; ++i) {
        const DOMNode *attribute = attributes->item(i);
        if (!nameIs(attribute->getNodeName(), name)) continue;
        *out = newAttrEntry(attribute, nullptr, nullptr);
        if (*out == nullptr) {
            traceOutOfMemory("getAttrByName");
            return zundoResult(ZUNDO_OUT_OF_MEMORY);
        }
        break;
    }
    return zundoResult(ZUNDO_OK);
}

zundo_result_t findChildElements(const DOMElement *element, ElementEntry ***out) {
    if (out == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    *out = nullptr;
    if (element == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    ElementEntry **list = nullptr;
    size_t count = 0;
    zundo_result_t result = addChildElementsToArray(element, &list, nullptr, nullptr, &count);
    if (!terminateElementList(&list, count)) {
        traceOutOfMemory("findChildElements");
        return zundoResult(ZUNDO_OUT_OF_MEMORY);
    }
    if (result.status != ZUNDO_OK) {
        traceOutOfMemory("findChildElements");
        freeElementList(list);
        return result;
    }
    *out = list;
    return result;
}

zundo_result_t getElementText(const DOMElement *element, char **out) {
    if (out == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    *out = nullptr;
    if (element == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    const XMLCh *text = nullptr;
    for (const DOMNode *child = element->getFirstChild(); child != nullptr;
         child = child->getNextSibling()) {
        if (child->getNodeType() != DOMNode::TEXT_NODE) continue;
        const XMLCh *value = child->getNodeValue();
        if (value != nullptr && value[0] != 0) text = value;
    }
    *out = text != nullptr ? UTF8Transcoder::transcodeValue(text) : copyText("");
    if (*out == nullptr) {
        traceOutOfMemory("getElementText");
        return zundoResult(ZUNDO_OUT_OF_MEMORY);
    }
    return zundoResult(ZUNDO_OK);
}

DOMNode *getParentElement(const DOMNode *node) {
    return node != nullptr ? node->getParentNode() : nullptr;
}

char *getElementName(const DOMNode *node) {
    return node != nullptr ? UTF8Transcoder::transcodeAttr(node->getNodeName()) : nullptr;
}
