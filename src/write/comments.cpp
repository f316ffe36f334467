// Comment elements.
#include "write/comments.h"

#include "xml/jdf_entries.h"
#include "zundo_trace.h"

namespace {

bool succeeded(zundo_status_t status) {
    if (status == ZUNDO_OK) return true;
    zundo_trace("parser_error %i, \n", status);
    return false;
}

}  // namespace

xercesc::DOMElement *addComment(xercesc::DOMElement *parent, const char *text,
                                const char *language, const char *name) {
    if (text == nullptr) return nullptr;
    ElementEntry entry = {nullptr, "Comment", nullptr, nullptr};
    if (!succeeded(createChildElement(parent, &entry).status) ||
        !succeeded(setNamedAttribute(entry.element, "Name", name)) ||
        !succeeded(appendTextNode(entry.element, text).status))
        return nullptr;
    if (language != nullptr && !succeeded(setNamedAttribute(entry.element, "Language", language)))
        return nullptr;
    return entry.element;
}

xercesc::DOMElement *addDescriptionComment(xercesc::DOMElement *parent, const char *text,
                                           const char *attributeName) {
    xercesc::DOMElement *comment = addComment(parent, text, nullptr, "Description");
    if (comment == nullptr || !succeeded(setNamedAttribute(comment, "Attribute", attributeName)))
        return nullptr;
    return comment;
}
