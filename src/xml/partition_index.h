// An index of the partitions of one DOM document, so that finding the
// partition of a key value costs the same however many partitions a
// resource already has. Without it every lookup walks the whole subtree,
// and writing a ticket with thousands of page ranges becomes quadratic.
//
// The index lives beside the document (document_registry.h). It sees the
// partitions that exist when a parent is first searched and those made
// through appendPartition or given a key through setPartitionKey afterwards;
// partitions must not be added or re-keyed in any other way.
#ifndef ZUNDO_XML_PARTITION_INDEX_H
#define ZUNDO_XML_PARTITION_INDEX_H

#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMElement;
XERCES_CPP_NAMESPACE_END

// The first element below parent, at any depth and in document order,
// named like parent whose attribute key equals value; null when there is
// none. *failed is set when the index cannot be had (out of memory, or a
// value too long to be indexed): the caller then searches itself.
xercesc::DOMElement *findIndexedPartition(const xercesc::DOMElement *parent, const XMLCh *key,
                                          const XMLCh *value, bool *failed);

// Records that partition now carries key = value, having just been
// appended or given a new value for its key.
void recordPartitionKey(xercesc::DOMElement *partition, const XMLCh *key, const XMLCh *value);

void forgetPartitionIndex(const xercesc::DOMDocument *document);

#endif
