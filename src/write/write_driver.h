// The writer driver: one job-ticket object in, one JDF text out.
#ifndef ZUNDO_WRITE_WRITE_DRIVER_H
#define ZUNDO_WRITE_WRITE_DRIVER_H

#include "write/writer_context.h"

// Resets the context and creates its empty document. The charset must be
// given, although the text is always written as UTF-8.
zundo_status_t createJDFDocument(JDFWriteContext *ctx, const char *charset);

// Builds the document of the ticket in a zeroed context and stores its
// serialised text in *out (released with releaseXMLString; null when the
// serialiser gives none). ZUNDO_ERROR, with *out null, when the document or
// its root cannot be made; failures below the root are traced and skipped.
zundo_status_t writeJDFString(JDFWriteContext *ctx, zundo_int_object_s *jobTicket, char **out);

#endif
