// Runs of the RunList (pages). A document's pages start as one run over all
// pages; every header insert sheet and start page begins a new run at its
// page and every trailer insert sheet ends one there.
#include "write/runs.h"

#include <cstdlib>

#include "enums/value_tables.h"
#include "write/jdf_attr.h"
#include "write/layout_writers.h"
#include "write/number_format.h"
#include "write/object_values.h"
#include "write/resource_getters.h"
#include "xml/partitions.h"
#include "zundo_trace.h"

namespace {

const int kHeaderPosition = 2;  // "insert-sheet-position"
const int kCoverContent = 3;    // "insert-sheet-content": a cover is always placed in runs
const int kNoContent = 4;       // never placed in runs
const int kBackSide = 1;        // start-page sheet side

// "doc" and any int.
const size_t kDocumentIdSize = 16;

// Page numbers order by value, except that a negative number (counted
// from the end) follows every non-negative one.
int comparePages(int a, int b) {
    if ((a < 0) != (b < 0)) return a < 0 ? 1 : -1;
    return a < b ? -1 : (a > b ? 1 : 0);
}

bool segmentHolds(const RunSegment *segment, int page) {
    return comparePages(segment->pages.lower, page) <= 0 &&
           comparePages(page, segment->pages.upper) <= 0;
}

RunSegment *findSegment(RunSegment *from, int page) {
    for (RunSegment *segment = from; segment != nullptr; segment = segment->next)
        if (segmentHolds(segment, page)) return segment;
    return nullptr;
}

// Cuts [lower, lastOfEarlier] off the front of the segment as a new
// segment placed before it. The header sheets and start pages belong to
// the old first page, so they move to the new segment; the trailer sheets
// stay. Null when memory runs out.
RunSegment *splitSegment(DocumentRuns *runs, RunSegment *segment, int lastOfEarlier,
                         int firstOfLater) {
    RunSegment *earlier = nullptr;
    if (newRun(&earlier, zundo_range_s{segment->pages.lower, lastOfEarlier}) != ZUNDO_OK)
        return nullptr;
    earlier->headerSheets = segment->headerSheets;
    earlier->headerCount = segment->headerCount;
    earlier->frontStartPage = segment->frontStartPage;
    earlier->backStartPage = segment->backStartPage;
    segment->headerSheets = nullptr;
    segment->headerCount = 0;
    segment->frontStartPage = nullptr;
    segment->backStartPage = nullptr;
    earlier->previous = segment->previous;
    earlier->next = segment;
    if (segment->previous != nullptr) segment->previous->next = earlier;
    else runs->first = earlier;
    segment->previous = earlier;
    segment->pages.lower = firstOfLater;
    return earlier;
}

// The segment that begins at page, split off when needed; null when the
// split fails.
RunSegment *segmentBeginningAt(DocumentRuns *runs, RunSegment *from, int page) {
    RunSegment *segment = findSegment(from, page);
    if (segment == nullptr || segment->pages.lower == page) return segment;
    return splitSegment(runs, segment, page - 1, page) != nullptr ? segment : nullptr;
}

RunSegment *segmentEndingAt(DocumentRuns *runs, RunSegment *from, int page) {
    RunSegment *segment = findSegment(from, page);
    if (segment == nullptr || segment->pages.upper == page) return segment;
    return splitSegment(runs, segment, page, page + 1);
}

void splitAtInsertSheet(DocumentRuns *runs, zundo_int_object_s *insertSheet) {
    if (!insertSheetBelongsInRuns(insertSheet)) return;
    bool header =
        FetchedAttribute(insertSheet, "insert-sheet-position").firstInt(0) == kHeaderPosition;
    FetchedAttribute pages(insertSheet, "insert-sheet-pages");
    zundo_int_attribute_s *ranges = pages.attribute();
    while (hasNextValue(ranges)) {
        const auto *range = static_cast<const zundo_range_s *>(nextValue(ranges));
        if (range == nullptr) continue;
        if (range->upper < 0 && range->lower >= 0 && range->lower != range->upper) {
            zundo_trace("Invalid page range for insert sheet. Not adding to run.\n");
            return;
        }
        // Pages go up, so each search starts where the last one ended.
        RunSegment *from = runs->first;
        for (long long page = range->lower; page <= range->upper; ++page) {
            int at = static_cast<int>(page);
            if (comparePages(from->pages.lower, at) > 0) from = runs->first;
            RunSegment *segment = header ? segmentBeginningAt(runs, from, at)
                                         : segmentEndingAt(runs, from, at);
            if (segment == nullptr) continue;
            addInsertSheetToRun(segment, header ? 1 : 0, insertSheet);
            from = segment;
        }
    }
}

void splitAtStartPage(DocumentRuns *runs, const zundo_start_page_s *startPage) {
    RunSegment *segment = segmentBeginningAt(runs, runs->first, getPage(startPage));
    if (segment == nullptr) return;
    if (getSheetSide(startPage) == kBackSide) segment->backStartPage = startPage;
    else segment->frontStartPage = startPage;
}

void writeFillSheet(xercesc::DOMElement *run, const zundo_start_page_s *startPage) {
    xercesc::DOMElement *sheet = appendChildTraced(run, "InsertSheet");
    if (sheet == nullptr) return;
    const char *description = jdfNameForCode(startPageDescriptionValues, getDescription(startPage));
    if (description != nullptr) setAttributeTraced(sheet, "DescriptiveName", description);
    setAttributeTraced(sheet, "SheetUsage",
                       getSheetSide(startPage) == kBackSide ? "FillForceBack" : "FillForceFront");
    setAttributeTraced(sheet, "SheetType", "FillSheet");
    setAttributeTraced(sheet, "SheetFormat", "Blank");
}

void writeRunInsertSheet(JDFWriteContext *ctx, xercesc::DOMElement *run,
                         zundo_int_object_s *insertSheet) {
    xercesc::DOMElement *sheet = appendChildTraced(run, "InsertSheet");
    if (sheet == nullptr) return;
    setAttributeTraced(sheet, "SheetType", "InsertSheet");
    int position = FetchedAttribute(insertSheet, "insert-sheet-position").firstInt(1);
    const char *usage = jdfNameForCode(insertSheetPositionValues, position);
    if (usage != nullptr) setAttributeTraced(sheet, "SheetUsage", usage);
    if (FetchedAttribute(insertSheet, "insert-sheet-content").firstInt(0) == kCoverContent)
        setAttributeTraced(sheet, "DescriptiveName", "Cover");
    writeInsertSheetContent(ctx, sheet, insertSheet);
}

// The Run partition of one segment; null when it cannot be made.
xercesc::DOMElement *writeRun(JDFWriteContext *ctx, const RunSegment *segment,
                              const char *documentId) {
    char number[kNumberTextSize];
    formatInteger(number, sizeof number, ctx->runCounter++);
    xercesc::DOMElement *runList = getRunListPages(ctx);
    if (runList == nullptr) return nullptr;
    xercesc::DOMElement *run = findOrCreatePartition(runList, number, "Run");
    if (run == nullptr) {
        zundo_trace("parser_error %i, \n", ZUNDO_INTERNAL_ERROR);
        return nullptr;
    }
    xercesc::DOMElement *reference = appendChildTraced(run, "LayoutElementRef");
    if (reference != nullptr) setAttributeTraced(reference, "rRef", documentId);
    if (segment->frontStartPage != nullptr) writeFillSheet(run, segment->frontStartPage);
    if (segment->backStartPage != nullptr) writeFillSheet(run, segment->backStartPage);
    for (size_t i = 0; i < segment->headerCount; ++i)
        writeRunInsertSheet(ctx, run, segment->headerSheets[i]);
    for (size_t i = 0; i < segment->trailerCount; ++i)
        writeRunInsertSheet(ctx, run, segment->trailerSheets[i]);
    char pages[ZUNDO_RANGE_TEXT_SIZE];
    setAttributeTraced(run, "Pages", toStringRange(pages, &segment->pages));
    return run;
}

void writeRunsOf(JDFWriteContext *ctx, zundo_int_object_s *owner, const char *insertSheetsName,
                 const char *startPagesName, zundo_int_object_s *document, int documentIndex,
                 int isDocumentLevel, ContainerList *containers) {
    FetchedAttribute insertSheets(owner, insertSheetsName);
    FetchedAttribute startPages(owner, startPagesName);
    DocumentRuns *runs = getRuns(insertSheets.attribute(), startPages.attribute());
    if (runs == nullptr) return;
    runs->document = document;
    writeObjectRuns(ctx, runs, documentIndex, isDocumentLevel, containers);
    releaseRuns(runs);
}

}  // namespace

zundo_status_t newRun(RunSegment **out, zundo_range_s pages) {
    if (out == nullptr) return ZUNDO_ERROR;
    *out = static_cast<RunSegment *>(std::calloc(1, sizeof(RunSegment)));
    if (*out == nullptr) {
        traceOutOfMemory("newRun");
        return ZUNDO_OUT_OF_MEMORY;
    }
    (*out)->pages = pages;
    return ZUNDO_OK;
}

void addInsertSheetToRun(RunSegment *segment, int isHeader, zundo_int_object_s *insertSheet) {
    zundo_int_object_s ***list = isHeader ? &segment->headerSheets : &segment->trailerSheets;
    size_t *count = isHeader ? &segment->headerCount : &segment->trailerCount;
    if (!growListForAppend(list, *count)) {
        traceOutOfMemory("addInsertSheetToRun");
        return;
    }
    (*list)[(*count)++] = insertSheet;
    (*list)[*count] = nullptr;
}

bool insertSheetBelongsInRuns(zundo_int_object_s *insertSheet) {
    int content = FetchedAttribute(insertSheet, "insert-sheet-content").firstInt(0);
    if (content == kNoContent) return false;
    if (content == kCoverContent) return true;
    if (objectHasValue(insertSheet, "insert-sheet-sheets")) return false;
    FetchedAttribute pages(insertSheet, "insert-sheet-pages");
    const auto *first = static_cast<const zundo_range_s *>(
        hasNextValue(pages.attribute()) ? nextValue(pages.attribute()) : nullptr);
    return first == nullptr || first->lower != 0 || first->upper != -1;
}

DocumentRuns *getRuns(zundo_int_attribute_s *insertSheets, zundo_int_attribute_s *startPages) {
    zundo_trace(">> entering getRuns\n");
    auto *runs = static_cast<DocumentRuns *>(std::calloc(1, sizeof(DocumentRuns)));
    if (runs == nullptr) {
        traceOutOfMemory("getRuns");
        return nullptr;
    }
    if (newRun(&runs->first, zundo_range_s{0, -1}) != ZUNDO_OK) {
        std::free(runs);
        return nullptr;
    }
    resetIterator(insertSheets);
    while (hasNextValue(insertSheets)) {
        auto *insertSheet = static_cast<zundo_int_object_s *>(nextValue(insertSheets));
        if (insertSheet != nullptr) splitAtInsertSheet(runs, insertSheet);
    }
    resetIterator(startPages);
    while (hasNextValue(startPages)) {
        const auto *startPage = static_cast<const zundo_start_page_s *>(nextValue(startPages));
        if (startPage != nullptr) splitAtStartPage(runs, startPage);
    }
    zundo_trace(">> leaving getRuns\n");
    return runs;
}

void releaseRuns(DocumentRuns *runs) {
    if (runs == nullptr) return;
    for (RunSegment *segment = runs->first; segment != nullptr;) {
        RunSegment *next = segment->next;
        std::free(segment->headerSheets);
        std::free(segment->trailerSheets);
        std::free(segment);
        segment = next;
    }
    std::free(runs);
}

void writeObjectRuns(JDFWriteContext *ctx, const DocumentRuns *runs, int documentIndex,
                     int isDocumentLevel, ContainerList *containers) {
    zundo_trace(">> entering writeObjectRuns\n");
    char documentId[kDocumentIdSize];
    formatValueText(documentId, sizeof documentId, "doc%i", documentIndex);
    xercesc::DOMElement *lastRun = nullptr;
    for (const RunSegment *segment = runs->first; segment != nullptr; segment = segment->next)
        lastRun = writeRun(ctx, segment, documentId);
    if (isDocumentLevel && lastRun != nullptr) setAttributeTraced(lastRun, "EndOfDocument", "true");
    writeDocumentLayoutElement(ctx, runs->document, documentId, containers);
    zundo_trace("<< leaving writeObjectRuns\n");
}

bool pagesAreDocumentLevel(zundo_int_object_s *job) {
    // A three-state boolean: only an explicit false moves the pages to the
    // documents; true and no value keep them on the job.
    return FetchedAttribute(job, "job-level-pages").firstInt(-1) == 0;
}

void writeRuns(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeRuns\n");
    ContainerList containers = {
        static_cast<zundo_int_object_s **>(std::calloc(1, sizeof(zundo_int_object_s *))), 0};
    if (containers.containers == nullptr) {
        zundo_trace("containerList allocation failed \n");
        return;
    }
    zundo_int_object_s **documents = getDocuments(job);
    if (documents == nullptr) {
        traceOutOfMemory("getDocuments");
        std::free(containers.containers);
        return;
    }
    if (pagesAreDocumentLevel(job)) {
        for (int i = 0; documents[i] != nullptr; ++i)
            writeRunsOf(ctx, documents[i], "document-insert-sheets", "document-start-pages",
                        documents[i], i, 1, &containers);
    } else {
        writeRunsOf(ctx, job, "job-insert-sheets", "job-start-pages", documents[0], 0, 0,
                    &containers);
    }
    std::free(containers.containers);
    zundo_trace("<< leaving writeRuns\n");
}
