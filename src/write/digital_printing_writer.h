// The job's settings of the printing process itself: the copies of the
// final product, the jog offset between output sets, and what becomes of
// the printed pages afterwards (retain).
#ifndef ZUNDO_WRITE_DIGITAL_PRINTING_WRITER_H
#define ZUNDO_WRITE_DIGITAL_PRINTING_WRITER_H

#include "write/writer_context.h"

// Writer step: "job-copies" and "job-copies-actual" as Amount and
// ActualAmount on the Output link of the final product.
void writeJobCopies(JDFWriteContext *ctx, zundo_int_object_s *job);

// Job-level step: the Disjointing of DigitalPrintingParams.
void writeJogOffset(JDFWriteContext *ctx, zundo_int_object_s *job);

// Writer step: the first "job-retain" as a Disposition of the RunList that
// its format names.
void writeRetain(JDFWriteContext *ctx, zundo_int_object_s *job);

#endif
