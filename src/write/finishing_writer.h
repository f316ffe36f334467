// Finishing of the written ticket: binding (cover application, spine
// taping, ring and wire-comb binding), stitching, folding, hole making,
// trimming, trapping and screening. Each writer puts its values on the
// parameter resource of its process, in the partition of the run range
// and document index, and orientations, output bins and cover sheets on
// the Components of the process chain.
//
// The finishing writers take the object's finishing attribute and write
// its first object; runRange and documentIndex are those of the cascade
// (both null for the job). A job that has no folding but whose page range
// folds is written NoOp "true" on FoldingParams and NoOp "false" on the
// page range's partition, and the other way round, so that job and page
// ranges read back as they were.
#ifndef ZUNDO_WRITE_FINISHING_WRITER_H
#define ZUNDO_WRITE_FINISHING_WRITER_H

#include "write/writer_context.h"

// For the job only: nothing is written for a document or page range.
void writeBinding(JDFWriteContext *ctx, zundo_int_attribute_s *binding, const char *runRange,
                  const char *documentIndex);
void writeStitching(JDFWriteContext *ctx, zundo_int_attribute_s *stitching, const char *runRange,
                    const char *documentIndex);
void writeFolding(JDFWriteContext *ctx, zundo_int_attribute_s *folding, const char *runRange,
                  const char *documentIndex);
void writeHoleMaking(JDFWriteContext *ctx, zundo_int_attribute_s *holeMaking, const char *runRange,
                     const char *documentIndex);
void writeTrimming(JDFWriteContext *ctx, zundo_int_attribute_s *trimming, const char *runRange,
                   const char *documentIndex);
void writeTrapping(JDFWriteContext *ctx, zundo_int_attribute_s *trapping, const char *runRange,
                   const char *documentIndex);

// Writer step: one ScreenSelector per screening of "job-screenings".
void writeScreening(JDFWriteContext *ctx, zundo_int_object_s *job);

#endif
