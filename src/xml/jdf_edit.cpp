// Putting elements, attributes and text into a document being written.
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/dom/DOMText.hpp>

#include <utility>
#include <vector>

#include "xml/jdf_entries.h"
#include "zundo_trace.h"

XERCES_CPP_NAMESPACE_USE

zundo_status_t domFailure(const char *operation) {
    try {
        throw;
    } catch (const DOMException &e) {
        char *message = UTF8Transcoder::transcodeValue(e.getMessage());
        zundo_trace("%s() failed with DOM error %d %s\n", operation, static_cast<int>(e.code),
                    message != nullptr ? message : "");
        UTF8Transcoder::release(&message);
        return ZUNDO_INVALID_ARGUMENT;
    } catch (...) {
        traceOutOfMemory(operation);
        return ZUNDO_OUT_OF_MEMORY;
    }
}

namespace {

// The text as it goes into the document: with control-character encoding
// on, the encoded copy (freed by the caller with releaseEncoded).
const char *encodedForWriting(const char *text) {
    if (getControlCharacterEncodingFlag() == 0) return text;
    int count = containsEncodableControlCharacters(text);
    if (count == 0) return text;
    char *encoded = const_cast<char *>(text);
    encodeControlCharacters(&encoded, count);
    return encoded;
}

void releaseEncoded(const char *original, const char *encoded) {
    if (encoded != original) freeEncodedOrDecodedStrings(const_cast<char *>(encoded));
}

// The wide text of a value ready to be set, or null when it cannot be made.
XMLCh *wideValue(const char *text, unsigned maxChars) {
    const char *encoded = encodedForWriting(text);
    XMLCh *wide = UTF8Transcoder::transcodeValue(encoded, maxChars);
    releaseEncoded(text, encoded);
    return wide;
}

}  // namespace

zundo_result_t createChildElement(DOMElement *parent, ElementEntry *entry) {
    if (parent == nullptr || entry == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (entry->name == nullptr) return zundoResult(ZUNDO_MISSING_FIELD);
    XMLCh *name = UTF8Transcoder::transcodeAttr(entry->name);
    if (name == nullptr) {
        traceOutOfMemory("createChildElement");
        return zundoResult(ZUNDO_OUT_OF_MEMORY);
    }
    zundo_status_t status = ZUNDO_OK;
    try {
        DOMElement *child = parent->getOwnerDocument()->createElement(name);
        parent->appendChild(child);
        entry->element = child;
    } catch (...) {
        status = domFailure("createChildElement");
    }
    UTF8Transcoder::release(&name);
    return zundoResult(status);
}

zundo_result_t appendChildElement(DOMElement *parent, const ElementEntry *entry) {
    if (parent == nullptr || entry == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (entry->element == nullptr) return zundoResult(ZUNDO_MISSING_FIELD);
    try {
        parent->appendChild(entry->element);
    } catch (...) {
        return zundoResult(domFailure("appendChildElement"));
    }
    return zundoResult(ZUNDO_OK);
}

zundo_result_t setElementAttribute(DOMElement *element, const AttributeEntry *entry,
                                   unsigned maxChars) {
    if (element == nullptr || entry == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (entry->name == nullptr || entry->value == nullptr) return zundoResult(ZUNDO_MISSING_FIELD);
    XMLCh *name = UTF8Transcoder::transcodeAttr(entry->name);
    XMLCh *value = wideValue(entry->value, maxChars);
    zundo_status_t status = ZUNDO_OK;
    if (name == nullptr || value == nullptr) {
        traceOutOfMemory("setElementAttribute");
        status = ZUNDO_OUT_OF_MEMORY;
    } else {
        try {
            element->setAttribute(name, value);
        } catch (...) {
            status = domFailure("setElementAttribute");
        }
    }
    UTF8Transcoder::release(&name);
    UTF8Transcoder::release(&value);
    return zundoResult(status);
}

zundo_status_t setNamedAttribute(DOMElement *element, const char *name, const char *value) {
    AttributeEntry entry = {name, value, nullptr, nullptr};
    return setElementAttribute(element, &entry).status;
}

zundo_result_t appendTextNode(DOMElement *element, const char *text) {
    if (element == nullptr || text == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    XMLCh *value = wideValue(text, 0);
    if (value == nullptr) {
        traceOutOfMemory("appendTextNode");
        return zundoResult(ZUNDO_OUT_OF_MEMORY);
    }
    zundo_status_t status = ZUNDO_OK;
    try {
        element->appendChild(element->getOwnerDocument()->createTextNode(value));
    } catch (...) {
        status = domFailure("appendTextNode");
    }
    UTF8Transcoder::release(&value);
    return zundoResult(status);
}

namespace {

void copyAttributes(const DOMElement *source, DOMElement *target) {
    const DOMNamedNodeMap *attributes = source->getAttributes();
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
        const DOMNode *attribute = attributes->item(i);
        AttributeEntry entry = {UTF8Transcoder::transcodeAttr(attribute->getNodeName()),
                                UTF8Transcoder::transcodeValue(attribute->getNodeValue()), nullptr,
                                nullptr};
        setElementAttribute(target, &entry);
        delete[] const_cast<char *>(entry.name);
        delete[] const_cast<char *>(entry.value);
    }
}

}  // namespace

// Walks with an explicit stack: job tickets may nest deeper than the
// call stack allows.
void copyElementTree(const DOMElement *source, DOMElement *target) {
    if (source == nullptr || target == nullptr) return;
    std::vector<std::pair<const DOMElement *, DOMElement *>> pending;
    try {
        pending.emplace_back(source, target);
        while (!pending.empty()) {
            auto [from, to] = pending.back();
            pending.pop_back();
            copyAttributes(from, to);
            for (const DOMElement *child = from->getFirstElementChild(); child != nullptr;
                 child = child->getNextElementSibling()) {
                ElementEntry entry = {nullptr, UTF8Transcoder::transcodeAttr(child->getTagName()),
                                      nullptr, nullptr};
                zundo_result_t result = createChildElement(to, &entry);
                delete[] const_cast<char *>(entry.name);
                if (result.status == ZUNDO_OK) pending.emplace_back(child, entry.element);
            }
        }
    } catch (...) {
        traceOutOfMemory("copyElementTree");
    }
}
