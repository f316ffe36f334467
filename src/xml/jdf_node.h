// The JDF node of a job ticket: finding it in a parsed document, creating it
// in a new one, and its direct children.
#ifndef ZUNDO_XML_JDF_NODE_H
#define ZUNDO_XML_JDF_NODE_H

#include "xml/jdf_entries.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
XERCES_CPP_NAMESPACE_END

// Read from a document, every text is owned (new[]) and holds the
// attribute's value or the empty text. Handed to createJDFNode, id, type,
// types, status, activation, xmlns and version are required (version is
// checked but the node is always written as "1.4"), xmlnsOsdp is ignored
// and jobId is optional.
struct JDFNodeInfo {
    xercesc::DOMElement *element;
    const char *id;
    const char *type;
    const char *types;
    const char *status;
    const char *activation;
    const char *xmlns;
    const char *xmlnsOsdp;
    const char *version;
    const char *jobId;
};

// The first JDF element of Type "Combined" whose Types mention
// DigitalPrinting, else the document element, which must then be a JDF
// element (ZUNDO_WRONG_ELEMENT otherwise).
zundo_result_t getJDFNode(const xercesc::DOMDocument *document, JDFNodeInfo *info);
// ZUNDO_NO_CHILDREN, with *out null, when the node has no child elements.
zundo_result_t getJDFNodeChildren(const xercesc::DOMElement *jdfNode, ElementEntry ***out);
zundo_result_t createJDFNode(xercesc::DOMDocument *document, JDFNodeInfo *info);
zundo_result_t addJDFNodeChild(xercesc::DOMElement *jdfNode, ElementEntry *entry);
// Frees the texts and clears the record; the element stays with its
// document.
void freeJDFNodeInfo(JDFNodeInfo *info);

// Position from 0 of processName among the blank-separated Types of the
// element; -1 when the element has no Types or they do not name it.
int getProcessPosition(const xercesc::DOMElement *jdfNode, const char *processName);

#endif
