// The runs of the RunList (pages): each document's pages split into runs at
// its insert sheets and start pages, one Run partition per run.
#ifndef ZUNDO_WRITE_RUNS_H
#define ZUNDO_WRITE_RUNS_H

#include <cstddef>

#include "values/value_objects.h"
#include "write/layout_elements.h"
#include "write/writer_context.h"

// One run while the runs are written. Insert sheets and start pages are
// borrowed from the ticket; the lists are null-terminated arrays from the C
// allocator (null while empty).
struct RunSegment {
    RunSegment *previous;
    RunSegment *next;
    zundo_int_object_s **headerSheets;
    size_t headerCount;
    zundo_int_object_s **trailerSheets;
    size_t trailerCount;
    const zundo_start_page_s *frontStartPage;  // sheet side other than 1, written first
    const zundo_start_page_s *backStartPage;   // sheet side 1
    zundo_range_s pages;  // 0-based; a negative upper bound runs to the last page
};

// The runs of one document, in page order.
struct DocumentRuns {
    RunSegment *first;
    zundo_int_object_s *document;  // borrowed; null when the job has none
};

// ZUNDO_ERROR without an out pointer.
zundo_status_t newRun(RunSegment **out, zundo_range_s pages);
// Appends to the header list (isHeader 1) or the trailer list (0); the
// sheet is dropped when the list cannot grow.
void addInsertSheetToRun(RunSegment *segment, int isHeader, zundo_int_object_s *insertSheet);
// Whether the insert sheet is placed between runs; the others (empty
// content, the whole document, or counted by sheets) are not.
bool insertSheetBelongsInRuns(zundo_int_object_s *insertSheet);
// The runs of one document's pages, split at the insert sheets (an "O"
// attribute) and the start pages (an "SP" attribute); either may be null.
// Null when memory runs out. The values must outlive the runs.
DocumentRuns *getRuns(zundo_int_attribute_s *insertSheets, zundo_int_attribute_s *startPages);
void releaseRuns(DocumentRuns *runs);

// Writes the Run partitions of one document ("doc%i" of documentIndex)
// and then its LayoutElement. Run numbers go on across documents.
void writeObjectRuns(JDFWriteContext *ctx, const DocumentRuns *runs, int documentIndex,
                     int isDocumentLevel, ContainerList *containers);

// Writer step: the RunList (pages) partitions, LayoutElements and FileSpecs.
void writeRuns(JDFWriteContext *ctx, zundo_int_object_s *job);

// Whether the job's documents carry their own pages, insert sheets and
// start pages ("job-level-pages" false) rather than the job.
bool pagesAreDocumentLevel(zundo_int_object_s *job);

#endif
