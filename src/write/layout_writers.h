// Imposition of the written ticket: page cells and the partitions of
// LayoutPreparationParams they need, fit policy and image shift, marks
// (mark objects, mark images, strip marks, the colour control strip),
// insert, banner and separator sheets, and the job's number-up values.
#ifndef ZUNDO_WRITE_LAYOUT_WRITERS_H
#define ZUNDO_WRITE_LAYOUT_WRITERS_H

#include "write/writer_context.h"

// Writer steps, each with the job.
void writeOrientationHint(JDFWriteContext *ctx, zundo_int_object_s *job);
// The job's page cells and the CellIndex / Side partitions of
// LayoutPreparationParams; records in the context which partitions exist,
// so it runs before every writer that places elements by them.
void writePageCells(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeColorControlBar(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeBindingEdge(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeNumberUpPresentationOrder(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeNumberUpGutters(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeNumberUpFitBox(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeRegisterMarks(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeTrimBleedMarks(JDFWriteContext *ctx, zundo_int_object_s *job);
// The units of number-up, image shift and trimming values as Description
// comments.
void writeLayoutUnits(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeFinishingOrderAndCreep(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeDoubleImpositionCellToRotate(JDFWriteContext *ctx, zundo_int_object_s *job);

// Cascade steps for the job, a document or a page range; runRange and
// documentIndex as the cascade has them.
// A page range's page cells, one PageCell per cell-level leaf; true when
// one was written.
bool writePageRangePageCells(JDFWriteContext *ctx, zundo_int_object_s *object,
                             const char *runRange);
// FitPolicy and ImageShift elements in the object's partition; at cell
// level in every leaf of the run range.
void writeFitPolicyAndImageShift(JDFWriteContext *ctx, zundo_int_object_s *object, int cellLevel,
                                 const char *runRange, const char *documentIndex);
// The object's marks in LayoutPreparationParams.
void writeObjectMarks(JDFWriteContext *ctx, zundo_int_object_s *object, const char *runRange);

// One page cell's attributes, marks, FitPolicy and ImageShift written into
// its PageCell element.
void writePageCellElement(JDFWriteContext *ctx, zundo_int_object_s *pageCell,
                          xercesc::DOMElement *pageCellElement);
// A mark as a MarkObject of parent (in its RunIndex partition when a run
// range is given), with a content object before or after it as its order
// says; with an existing MarkObject only its content is written.
void writeMark(JDFWriteContext *ctx, zundo_int_object_s *mark, xercesc::DOMElement *parent,
               const char *runRange, xercesc::DOMElement *existing);

// Copies, media, marks and folding of an insert sheet as children of its
// InsertSheet element.
void writeInsertSheetContent(JDFWriteContext *ctx, xercesc::DOMElement *insertSheetElement,
                             zundo_int_object_s *insertSheet);
// A folding object's type on a FoldingParams element.
void writeInsertSheetFolding(JDFWriteContext *ctx, xercesc::DOMElement *element,
                             zundo_int_object_s *folding);
// Job-level steps: the job's insert sheets that are not placed between
// runs, then its separator and banner sheets.
void writeJobInsertSheets(JDFWriteContext *ctx, zundo_int_object_s *job);
void writeSeparatorAndBannerSheets(JDFWriteContext *ctx, zundo_int_object_s *job);
// Each takes an "O" attribute of sheet objects.
void writeBannerSheets(JDFWriteContext *ctx, zundo_int_attribute_s *bannerSheets);
void writeSeparatorSheets(JDFWriteContext *ctx, zundo_int_attribute_s *separatorSheets);

#endif
