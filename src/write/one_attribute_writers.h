// Writer steps that each turn one job attribute into one JDF attribute or
// one small element of the interpreting, font and printing resources.
#ifndef ZUNDO_WRITE_ONE_ATTRIBUTE_WRITERS_H
#define ZUNDO_WRITE_ONE_ATTRIBUTE_WRITERS_H

#include "write/writer_context.h"

// UseDefaultFont of FontPolicy.
void writeUseDefaultFont(JDFWriteContext *ctx, zundo_int_object_s *job);
// MirrorAround of InterpretingParams.
void writeMirrorSurface(JDFWriteContext *ctx, zundo_int_object_s *job);
// morvellan:UsePSDSCOptimization of DigitalPrintingParams.
void writeUsePSDSCOptimization(JDFWriteContext *ctx, zundo_int_object_s *job);
// The first proof print's copies as DirectProofAmount of
// DigitalPrintingParams.
void writeProofPrint(JDFWriteContext *ctx, zundo_int_object_s *job);
// A PDFInterpretingParams child of InterpretingParams.
void writePDFCacheXObjects(JDFWriteContext *ctx, zundo_int_object_s *job);
// PrintingType of DigitalPrintingParams.
void writePrintingType(JDFWriteContext *ctx, zundo_int_object_s *job);
// An ObjectResolution child of InterpretingParams for photographic
// images; needs both resolutions.
void writeImageResolution(JDFWriteContext *ctx, zundo_int_object_s *job);

#endif
