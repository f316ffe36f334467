// An index of the links of a ResourceLinkPool by the resource they name
// (rRef), so that finding the link of a resource costs the same however
// many links the pool holds. Without it, reading a ticket with thousands
// of Media resources and their links is quadratic.
//
// The index of a pool is built by one walk on its first search and lives
// beside the document (document_registry.h). Links put into a searched pool must be
// recorded with recordInsertedLink once they carry their rRef; links are
// never renamed, re-pointed or removed.
#ifndef ZUNDO_XML_LINK_INDEX_H
#define ZUNDO_XML_LINK_INDEX_H

#include <xercesc/util/XercesDefs.hpp>

#include <vector>

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMElement;
XERCES_CPP_NAMESPACE_END

// The children of linkPool whose rRef is `reference`, in document order.
// Null when the index cannot be had (out of memory): the caller then walks
// the pool itself.
const std::vector<xercesc::DOMElement *> *findIndexedLinks(const xercesc::DOMElement *linkPool,
                                                           const XMLCh *reference);

// Records an element just inserted into pool (a no-op unless the pool has
// been searched).
void recordInsertedLink(const xercesc::DOMElement *pool, xercesc::DOMElement *element);

// For a document being read (its index is never updated): the first child
// of parent named childName that holds a child named linkName whose rRef
// is reference; null when there is none or when out of memory.
const xercesc::DOMElement *findHolderOfReference(const xercesc::DOMElement *parent,
                                                 const XMLCh *childName, const XMLCh *linkName,
                                                 const XMLCh *reference);

void forgetLinkIndex(const xercesc::DOMDocument *document);

#endif
