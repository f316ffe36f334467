// The attributes that the job, its documents and their page ranges share
// (the print-parameter block: sides, number-up, rotation, output bin, ...)
// written into the partition of the right resource: the resource itself
// for the job, DocIndex for a document, RunIndex for a job-level page range
// and DocIndex/DocRunIndex for a document-level one.
#ifndef ZUNDO_WRITE_ATTRIBUTE_CASCADE_H
#define ZUNDO_WRITE_ATTRIBUTE_CASCADE_H

#include "enums/conversion_table.h"
#include "write/jdf_attr.h"
#include "write/writer_context.h"

// One attribute of a ticket object written as one JDF attribute: an
// enumeration code through its value table, or a text unchanged.
struct ObjectValueRow {
    const char *attribute;
    const char *jdfName;
    const zundo_enum_pair_s *values;  // null: a text value
    ElementGetter getter;
};

// Writes each row (up to a row with a null attribute) that the object has
// a value for onto the element itself, without partitions.
void writeObjectValues(JDFWriteContext *ctx, zundo_int_object_s *object,
                       const ObjectValueRow *rows);

// The cascade for one object. runRange is the page range's pages
// ("3 ~ 7"), documentIndex the document's position ("%i"); both null for
// the job, runRange null for a document, documentIndex null for a
// job-level page range.
void writeAbstractJobDocPageAttributes(JDFWriteContext *ctx, zundo_int_object_s *object,
                                       const char *runRange, const char *documentIndex);
// The cascade for each page range of an "O" attribute.
void writePageRangeAttributes(JDFWriteContext *ctx, zundo_int_attribute_s *pageRanges,
                              const char *documentIndex);

// Writer steps: the cascade for each document when the pages are kept per
// document, and for every page range.
void writeDocuments(JDFWriteContext *ctx, zundo_int_object_s *job);
void writePageRanges(JDFWriteContext *ctx, zundo_int_object_s *job);

#endif
