// The page-level parts of the RunList (pages): its PageList with the
// pagination of the job, and the job's process pages on its link.
#ifndef ZUNDO_WRITE_PAGE_LIST_H
#define ZUNDO_WRITE_PAGE_LIST_H

#include "write/writer_context.h"

// *out: every Range value of the attribute as "3 ~ 7" or "5", joined by
// single blanks, in a new text from the C allocator; null when the
// attribute has no value or memory runs out.
zundo_status_t createRangeValues(char **out, zundo_int_attribute_s *rangeAttribute);

// The job's "job-process-pages" as a Part of the RunList (pages) link,
// unless the pages are kept per document.
void writeJobProcessPages(JDFWriteContext *ctx, zundo_int_object_s *job);

// Writer step: the PageList with the job's paginations and colour
// standard.
void writePageList(JDFWriteContext *ctx, zundo_int_object_s *job);

#endif
