// What the interpreter is told about the job: the vendor RIP parameters in
// InterpretingParams and the AFP form and page definitions as
// PDLResourceAlias resources.
#ifndef ZUNDO_WRITE_INTERPRETING_WRITER_H
#define ZUNDO_WRITE_INTERPRETING_WRITER_H

#include "write/writer_context.h"

// The first "job-rip-params" as a morvellan:MorvellanInterpretingParams
// child. The status of the last XML operation; ZUNDO_OK when there was
// nothing to write.
zundo_status_t writeInterpretingParams(JDFWriteContext *ctx, zundo_int_object_s *job);

// A new PDLResourceAlias for each of "job-form-definition" and
// "job-page-definition". The status of the last XML operation.
zundo_status_t writeAFPResources(JDFWriteContext *ctx, zundo_int_object_s *job);

#endif
