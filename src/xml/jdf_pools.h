// Resources and their links: creation in pool order, and the lookups that
// follow links and references between them.
#ifndef ZUNDO_XML_JDF_POOLS_H
#define ZUNDO_XML_JDF_POOLS_H

#include "xml/jdf_entries.h"

// Input and output of resource creation. name, id, resourceClass and
// status are required; usage goes on the link (left off when null);
// combinedProcessIndex is optional.
struct ResourceInfo {
    xercesc::DOMElement *resource;  // out
    xercesc::DOMElement *link;      // out; null without a link pool
    const char *name;
    const char *id;
    const char *resourceClass;
    const char *status;
    const char *usage;
    const char *combinedProcessIndex;
};

// Position of a resource or link name in the pools: the first known
// resource name it begins with, or 99999.
int poolRank(const XMLCh *name);
const int kUnrankedPoolPosition = 99999;
// The first child of the pool ranked after `element`, or null for the end;
// the pool's children must be in rank order, as these operations keep them.
xercesc::DOMNode *findPoolInsertionPoint(const xercesc::DOMElement *pool,
                                         const xercesc::DOMElement *element);

// Creates the resource and, with a link pool, its link, without inserting
// either.
zundo_result_t createResource(xercesc::DOMElement *resourcePool, xercesc::DOMElement *linkPool,
                              ResourceInfo *info);
// createResource, then both inserted in pool order.
zundo_result_t addResourceToPools(xercesc::DOMElement *resourcePool, xercesc::DOMElement *linkPool,
                                  ResourceInfo *info);
// addResourceToPools plus a second link with Usage "Output" whose
// CombinedProcessIndex is one less than the input's.
zundo_result_t addResourceToPoolsWithOutput(xercesc::DOMElement *resourcePool,
                                            xercesc::DOMElement *linkPool, ResourceInfo *info);

// The link of the resource with that Usage in the ResourceLinkPool of the
// resource's JDF node, or null.
xercesc::DOMElement *getElementLinkFromElement(const xercesc::DOMElement *resource,
                                               const char *usage);
// The Component the link's rRef names in its JDF node's ResourcePool, or
// null.
xercesc::DOMElement *findReferencedComponent(const xercesc::DOMElement *link);
// 1 when the first child named childName has rRef equal to id, else 0.
int isFirstChildReferencing(const xercesc::DOMElement *element, const char *childName,
                            const char *id);

#endif
