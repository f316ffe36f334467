// Attributes and child elements of JDF elements handed out as small owned
// records, and the editing operations the writer puts elements together
// with. Readers and writers never walk the DOM themselves; they go through
// these records.
#ifndef ZUNDO_XML_JDF_ENTRIES_H
#define ZUNDO_XML_JDF_ENTRIES_H

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>
#include <cstdlib>

#include "xml/xml_document.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMElement;
class DOMNamedNodeMap;
class DOMNode;
XERCES_CPP_NAMESPACE_END

// One attribute of a JDF element. Texts handed out by a lookup are owned by
// the entry (allocated with new[]); entries built by a caller for the
// editing operations may point at anything that outlives the call.
struct AttributeEntry {
    const char *name;
    const char *value;      // UTF-8
    const char *firstKey;   // key value of the first-level partition, or null
    const char *secondKey;  // key value of the second-level partition, or null
};

// One child element of a JDF element; the element stays owned by its
// document.
struct ElementEntry {
    xercesc::DOMElement *element;
    const char *name;
    const char *firstKey;
    const char *secondKey;
};

// Entry lists are null-terminated arrays from the C allocator, in document
// order. Both free operations accept null.
void freeAttrList(AttributeEntry **list);
void freeElementList(ElementEntry **list);
void freeAttrEntry(AttributeEntry *entry);

// The appenders keep a list and its entry count together: a list built by
// them always has room for its terminator, which the caller writes with
// terminateAttrList / terminateElementList once the walk is over. Their
// capacity doubles, so a long walk stays linear.
zundo_result_t addAttrsToArray(const xercesc::DOMNamedNodeMap *attributes, AttributeEntry ***list,
                               const char *skipName1, const char *firstKey, const char *skipName2,
                               const char *secondKey, size_t *count);
zundo_result_t addChildElementsToArray(const xercesc::DOMElement *parent, ElementEntry ***list,
                                       const char *firstKey, const char *secondKey, size_t *count);
// False only when an empty list cannot be allocated.
bool terminateAttrList(AttributeEntry ***list, size_t count);
bool terminateElementList(ElementEntry ***list, size_t count);

// Lookups. *out is set to null on every failure.
zundo_result_t getAttrs(const xercesc::DOMElement *element, AttributeEntry ***out);
// A missing attribute gives a null entry and ZUNDO_OK.
zundo_result_t getAttrByName(const xercesc::DOMElement *element, const char *name,
                             AttributeEntry **out);
zundo_result_t findChildElements(const xercesc::DOMElement *element, ElementEntry ***out);
inline zundo_result_t getElements(const xercesc::DOMElement *element, ElementEntry ***out) {
    return findChildElements(element, out);
}
// *out: the last non-empty text child as UTF-8, or the empty text; freed
// with delete[].
zundo_result_t getElementText(const xercesc::DOMElement *element, char **out);
xercesc::DOMNode *getParentElement(const xercesc::DOMNode *node);
// The narrowed node name, freed with delete[]; null for a null node.
char *getElementName(const xercesc::DOMNode *node);

// Editing (writer side).
zundo_result_t createChildElement(xercesc::DOMElement *parent, ElementEntry *entry);
zundo_result_t appendChildElement(xercesc::DOMElement *parent, const ElementEntry *entry);
// maxChars limits the converted value to that many 16-bit units; 0 keeps
// it whole.
zundo_result_t setElementAttribute(xercesc::DOMElement *element, const AttributeEntry *entry,
                                   unsigned maxChars = 0);
// setElementAttribute for a plain name and value.
zundo_status_t setNamedAttribute(xercesc::DOMElement *element, const char *name, const char *value);
zundo_result_t appendTextNode(xercesc::DOMElement *element, const char *text);
// Attributes and child elements, to any depth; text is not copied.
void copyElementTree(const xercesc::DOMElement *source, xercesc::DOMElement *target);

// Helpers shared by the JDF access units.

// Names are compared as their narrowed (8-bit) forms, case and prefix
// included.
bool nameIs(const XMLCh *name, const char *expected);
bool sameName(const XMLCh *a, const XMLCh *b);
bool hasTagName(const xercesc::DOMElement *element, const char *name);
// Called inside a catch block: traces the exception in flight and gives
// ZUNDO_INVALID_ARGUMENT for a refusal of the DOM (bad name, bad
// structure), ZUNDO_OUT_OF_MEMORY for anything else. The DOM reports with
// exceptions, and none may leave the library.
zundo_status_t domFailure(const char *operation);
// The element after `element` in document order without leaving the
// subtree of `root`, or null at its end.
const xercesc::DOMElement *nextInDocumentOrder(const xercesc::DOMElement *element,
                                               const xercesc::DOMElement *root);
// A new[] copy, or null for null text or a failed allocation.
char *copyText(const char *text);

// Room for one more entry in a list holding `count` entries, keeping the
// terminator's slot. Capacities are powers of two derived from the count.
template <typename T>
bool growListForAppend(T ***list, size_t count) {
    auto capacity = [](size_t entries) {
        size_t slots = 1;
        while (slots < entries + 1) slots <<= 1;
        return slots;
    };
    size_t needed = capacity(count + 1);
    if (*list != nullptr && needed == capacity(count)) return true;
    T **grown = static_cast<T **>(std::realloc(*list, needed * sizeof(T *)));
    if (grown == nullptr) return false;
    *list = grown;
    return true;
}

#endif
