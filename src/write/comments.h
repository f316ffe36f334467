// Comment elements of the written ticket.
#ifndef ZUNDO_WRITE_COMMENTS_H
#define ZUNDO_WRITE_COMMENTS_H

#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class DOMElement;
XERCES_CPP_NAMESPACE_END

// Appends <Comment Name="name" [Language="language"]>text</Comment> to
// parent. Null when text is null or a step fails (traced).
xercesc::DOMElement *addComment(xercesc::DOMElement *parent, const char *text,
                                const char *language, const char *name);
// A "Description" comment naming the attribute it describes, as writers
// carry the unit of a measured value.
xercesc::DOMElement *addDescriptionComment(xercesc::DOMElement *parent, const char *text,
                                           const char *attributeName);

#endif
