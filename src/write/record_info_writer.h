// How the pages of the job are grouped into records for printing:
// morvellan:RecordInfo.
#ifndef ZUNDO_WRITE_RECORD_INFO_WRITER_H
#define ZUNDO_WRITE_RECORD_INFO_WRITER_H

#include "write/writer_context.h"

// Writer step: only a job with both "job-max-pages-per-record" and
// "job-number-records" has records.
void writeRecords(JDFWriteContext *ctx, zundo_int_object_s *job);

#endif
