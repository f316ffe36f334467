// The reader driver: from the text of a JDF job ticket to the attributes
// and objects of a job-ticket object. Failures at or above the JDF node
// fail the read; everything below it is read best effort.
#ifndef ZUNDO_READ_READ_DRIVER_H
#define ZUNDO_READ_READ_DRIVER_H

#include "read/resource_dispatch.h"
#include "xml/jdf_node.h"

// Reads `text` into `ticket`. Line and column are those of a parse
// failure, 0 otherwise.
zundo_result_t readJDFString(const char *text, zundo_int_object_s *ticket);

// Parses the text and accepts it only as XML 1.0 in UTF-8, recording the
// encoding as written in "jt-charset". On success the caller frees the
// record with releaseJobTicketDocument; on failure it is already freed.
zundo_result_t openJobTicketDocument(const char *text, DOMDocumentInfo *document,
                                     zundo_int_object_s *ticket);
void releaseJobTicketDocument(DOMDocumentInfo *document);

// Locates the JDF node and takes its JobID as "job-id".
zundo_status_t readJDFNodeInfo(const DOMDocumentInfo *document, JDFNodeInfo *node,
                               zundo_int_object_s *ticket);
// The JDF node's attributes; the status is that of the last hold, hold
// action or snapshot setting made, ZUNDO_OK when none was made.
zundo_status_t readJDFNodeAttributes(xercesc::DOMElement *jdfNode, zundo_int_object_s *ticket);
// The JDF node's children: Comment and NodeInfo as they come, then the
// ResourcePool, the AuditPool and the ResourceLinkPools. The result is the
// last reader's status.
zundo_status_t readJDFVersionCurrent(ElementEntry *const *children, zundo_int_object_s *ticket);

// The four passes over the ResourcePool; the file and layout-element
// lists of the context live for this call.
zundo_status_t readResourcePoolElement(xercesc::DOMElement *pool, ResourceReadContext *context);
// Fills the process table, resets "job-copies" to 0 and hands every link
// to its reader. ZUNDO_ERROR when the ticket has no read environment.
zundo_status_t readResourceLinkPoolElement(xercesc::DOMElement *pool, zundo_int_object_s *ticket);

#endif
