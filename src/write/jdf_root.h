// The root of the written ticket: the one JDF node with its fixed
// attributes, its namespaces and the node attributes taken from the job.
#ifndef ZUNDO_WRITE_JDF_ROOT_H
#define ZUNDO_WRITE_JDF_ROOT_H

#include "write/writer_context.h"

// The root element; the getter writeJDFAttr takes for node attributes.
xercesc::DOMElement *getJDFRoot(JDFWriteContext *ctx);

// Creates the root in ctx->document. ZUNDO_MISSING_FIELD without a
// "jt-syntax-version", ZUNDO_OUT_OF_MEMORY when a namespace attribute name
// cannot be made (the root then stays in the document).
zundo_status_t createJDFElement(JDFWriteContext *ctx, zundo_int_object_s *jobTicket,
                                zundo_int_object_s *job);
// The root, Types, and the node attributes from job and ticket.
zundo_status_t writeJDFNode(JDFWriteContext *ctx, zundo_int_object_s *jobTicket,
                            zundo_int_object_s *job);

#endif
