// RunList and RunListLink reading.
#include "read/run_list_reader.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <unordered_map>
#include <vector>

#include "enums/value_tables.h"
#include "read/device_reader.h"
#include "read/finishing_reader.h"
#include "read/marks_reader.h"
#include "read/page_list_reader.h"
#include "read/reader_conversions.h"
#include "xml/index_lists.h"
#include "xml/jdf_pools.h"
#include "zundo_object.h"
#include "zundo_trace.h"

namespace {

// Pages named by the Pages attribute of one Run partition.
struct RunPages {
    std::string run;
    int first;
    int last;
};
typedef std::vector<RunPages> RunPageList;
// The records of one Run, in list order.
typedef std::vector<const RunPages *> RunRecords;

const RunRecords &recordsOf(const std::unordered_map<std::string, RunRecords> &byRun,
                            const char *run, const RunRecords &none) {
    auto found = byRun.find(run);
    return found != byRun.end() ? found->second : none;
}

enum { kBackSide = 1, kFrontSide = 2 };
const int kTrailerSheet = 1;
// What an InsertSheet with a DescriptiveName holds.
const int kDescribedContent = 3;

// Adds a Range per page token of the text; a token that is no range is
// traced and left out. The result is the last token's.
zundo_status_t addRangesOfPages(zundo_int_attribute_s *attribute, const char *text) {
    char **tokens = nullptr;
    zundo_status_t status = parsePages(text, &tokens);
    for (char **token = tokens; token != nullptr && *token != nullptr; ++token) {
        zundo_range_s *range = nullptr;
        status = newRangeFromString(&range, *token);
        if (status == ZUNDO_OK) {
            status = addValue(attribute, range);
            if (status != ZUNDO_OK) destroyRange(range);
        }
        if (status != ZUNDO_OK) zundo_trace("call to newRange failed: error code %d \n", status);
    }
    freePageTokens(tokens);
    return status;
}

void readRunListElements(xercesc::DOMElement *runList, zundo_int_object_s *job) {
    zundo_trace(">> Entering readRunListElements \n");
    for (ElementEntry *child : ChildElements(runList)) {
        if (textIs(child->name, "PageList"))
            readPageListElement(child->element, job);
        else if (textIs(child->name, "Disposition"))
            readDispositionElement(runList, child->element, job);
    }
    zundo_trace("<< Leaving readRunListElements \n");
}

// The pages of an unpartitioned RunList: a variant of the job's content.
void readRunListPagesVariant(const xercesc::DOMElement *runList, zundo_int_object_s *job) {
    if (ElementAttribute(runList, "PartIDKeys").value() != nullptr) return;
    ElementAttribute pages(runList, "Pages");
    zundo_int_attribute_s *ranges = nullptr;
    if (pages.value() != nullptr &&
        newAttribute(&ranges, "job-include-pages-variant", ZUNDO_KIND_RANGE, nullptr) == ZUNDO_OK) {
        addRangesOfPages(ranges, pages.value());
        setAndReleaseAttribute(job, ranges);
    }
    ElementAttribute npage(runList, "NPage");
    if (npage.value() != nullptr) {
        int count = -1;
        if (!convertStringToInt(npage.value(), &count)) count = -1;
        setIntegerAttribute(job, "job-include-npage-variant", count);
    }
}

// A RunList whose Input link names one process (a CombinedProcessIndex of
// one character) is that process's input, not the job's content.
bool feedsOneProcess(const xercesc::DOMElement *runList) {
    xercesc::DOMElement *link = getElementLinkFromElement(runList, "Input");
    if (link == nullptr) return false;
    ElementAttribute index(link, "CombinedProcessIndex");
    return index.value() != nullptr && std::strlen(index.value()) < 2;
}

zundo_status_t readRunListRunLvlAttrs(const xercesc::DOMElement *runList, zundo_int_object_s *job,
                                      RunPageList *runPages) {
    zundo_trace(">> Entering readRunListRunLvlAttrs \n");
    int levelPages = 1;
    AttributeEntry **attrs = nullptr;
    getRunLvlAttrs(runList, &attrs);
    zundo_status_t status = ZUNDO_OK;
    for (AttributeEntry **entry = attrs;
         entry != nullptr && *entry != nullptr && status == ZUNDO_OK; ++entry) {
        if (textIs((*entry)->name, "EndOfDocument") && textIs((*entry)->value, "true"))
            levelPages = 0;
        char **tokens = nullptr;
        if (!textIs((*entry)->name, "Pages") || parsePages((*entry)->value, &tokens) != ZUNDO_OK)
            continue;
        const char *run = (*entry)->firstKey != nullptr ? (*entry)->firstKey : "";
        for (char **token = tokens; *token != nullptr && status == ZUNDO_OK; ++token) {
            const char *tilde = std::strchr(*token, '~');
            int first = std::atoi(*token);
            try {
                runPages->push_back({run, first, tilde != nullptr ? std::atoi(tilde + 1) : first});
            } catch (const std::bad_alloc &) {
                status = ZUNDO_OUT_OF_MEMORY;
            }
        }
        freePageTokens(tokens);
    }
    freeAttrList(attrs);
    if (status != ZUNDO_OK) {
        zundo_trace("readRunListRunLvlAttrs() generated out of memory");
        return status;
    }
    setIntegerAttribute(job, "job-level-pages", levelPages);
    zundo_trace("<< Leaving readRunListRunLvlAttrs \n");
    return ZUNDO_OK;
}

// A MediaRef child gives the sheet its media (the last one that names a
// media object wins).
void takeReferencedMedia(const ElementEntry *child, IdElement **mediaList,
                         zundo_int_object_s **media) {
    if (textIs(child->name, "MediaRef")) replaceWithReferencedMedia(child->element, mediaList, media);
}

// What an InsertSheet's children give the sheet.
struct SheetContent {
    int copies = 0;
    zundo_int_object_s *media = nullptr;
    zundo_int_object_s *folding = nullptr;
    // The temporary sheet holding the marks of the last Layout or Sheet.
    std::unique_ptr<zundo_int_object_s, void (*)(zundo_int_object_s *)> marks{nullptr, destroy};
};

// The sheet's folding from the attributes of a FoldingParams child; a
// later one replaces an earlier one.
void readSheetFolding(const xercesc::DOMElement *foldingParams, SheetContent *content) {
    AttributeEntry **attrs = nullptr;
    getAttrs(foldingParams, &attrs);
    zundo_int_object_s *folding = nullptr;
    // The builder may hand out an object with a failing status; it is ours.
    if (createFoldingObject(&folding, attrs, nullptr, nullptr) == ZUNDO_OK) {
        if (content->folding != nullptr) destroy(content->folding);
        content->folding = folding;
    } else if (folding != nullptr) {
        destroy(folding);
    }
    freeAttrList(attrs);
}

// The Layout or Sheet of an InsertSheet: its MediaRefs, then, when it is
// partitioned, those of its Layout partitions.
void readSheetLayout(const xercesc::DOMElement *layout, IdElement **mediaList,
                     SheetContent *content) {
    ChildElements children(layout);
    for (ElementEntry *child : children) takeReferencedMedia(child, mediaList, &content->media);
    if (children.first("MarkObject") != nullptr) content->marks.reset(makeMarksInsertSheet(layout));
    if (ElementAttribute(layout, "PartIDKeys").value() == nullptr) return;
    for (ElementEntry *child : children) {
        if (!textIs(child->name, "Layout")) continue;
        for (ElementEntry *inner : ChildElements(child->element))
            takeReferencedMedia(inner, mediaList, &content->media);
    }
}

void readInsertSheetChildren(const xercesc::DOMElement *insertSheet, IdElement **mediaList,
                             SheetContent *content) {
    for (ElementEntry *child : ChildElements(insertSheet)) {
        if (textIs(child->name, "RunList")) {
            ElementAttribute copies(child->element, "PageCopies");
            if (copies.value() != nullptr) convertStringToInt(copies.value(), &content->copies);
        } else if (textIs(child->name, "Layout") || textIs(child->name, "Sheet")) {
            readSheetLayout(child->element, mediaList, content);
        } else if (textIs(child->name, "FoldingParams")) {
            readSheetFolding(child->element, content);
        }
    }
}

// A fill sheet: a start page at the first page of the sheet's Run. When
// the start page cannot be added, the Run's next page record is tried.
zundo_status_t addStartPage(ListAppender *startPages, const char *attribute, int sheetSide,
                            const char *description, const RunRecords &records) {
    zundo_status_t status = ZUNDO_OK;
    for (const RunPages *pages : records) {
        zundo_start_page_s *startPage = nullptr;
        status = newStartPage(&startPage, pages->first, sheetSide);
        if (status != ZUNDO_OK) {
            zundo_trace("call to newStartPage failed: internal error \n");
            return status;
        }
        if (description != nullptr)
            setDescription(startPage, codeForJDFName(startPageDescriptionValues, description));
        status = startPages->add(startPage);
        if (status == ZUNDO_OK) return status;
        if (status == ZUNDO_NOT_FOUND) {
            destroyStartPage(startPage);
            return status;
        }
        zundo_trace("call to addValue failed for %s: internal error \n", attribute);
    }
    return status;
}

// An insert sheet before the first page of each page record of its Run,
// or after the last one for a trailer.
zundo_status_t addInsertSheet(ListAppender *insertSheets, int kind,
                              const xercesc::DOMElement *element, bool described,
                              const RunRecords &records, IdElement **mediaList) {
    std::vector<zundo_range_s *> pages;
    pages.reserve(records.size() + 1);
    SheetContent content;
    readInsertSheetChildren(element, mediaList, &content);
    for (const RunPages *record : records) {
        int page = kind == kTrailerSheet ? record->last : record->first;
        zundo_range_s *range = nullptr;
        zundo_status_t status = newRange(&range, page, page);
        if (status == ZUNDO_OUT_OF_MEMORY) {
            zundo_trace("readInsertSheetElements() generated out of memory");
            for (zundo_range_s *made : pages) destroyRange(made);
            if (content.media != nullptr) destroy(content.media);
            if (content.folding != nullptr) destroy(content.folding);
            return status;
        }
        if (status == ZUNDO_OK) pages.push_back(range);
    }
    pages.push_back(nullptr);
    zundo_int_object_s *sheet = nullptr;
    zundo_status_t status = newInsertSheet(&sheet, kind, pages.data(), content.media);
    if (status != ZUNDO_OK) {
        zundo_trace("call to newInsertSheet failed: error code %d \n", status);
        if (content.folding != nullptr) destroy(content.folding);
        return status;
    }
    if (content.copies != 0) setIntegerAttribute(sheet, "insert-sheet-copies", content.copies);
    copyInsertSheetMarks(content.marks.get(), sheet);
    if (content.folding != nullptr &&
        setObjectAttribute(sheet, "insert-sheet-folding", content.folding) != ZUNDO_OK)
        destroy(content.folding);
    if (described) setIntegerAttribute(sheet, "insert-sheet-content", kDescribedContent);
    zundo_status_t added = insertSheets->add(sheet);
    if (added == ZUNDO_NOT_FOUND) destroy(sheet);
    return added;
}

// The InsertSheets of the given Run (of every Run when none is given) to
// the owner: the job, or the document the Run belongs to. `entries` are
// the RunList's Run-level elements.
zundo_status_t readInsertSheetElements(ElementEntry *const *entries, zundo_int_object_s *owner,
                                       const char *run, const RunPageList &runPages,
                                       IdElement **mediaList) {
    zundo_trace(">> Entering readInsertSheetElements \n");
    const char *startPageList = run != nullptr ? "document-start-pages" : "job-start-pages";
    const char *insertSheetList = run != nullptr ? "document-insert-sheets" : "job-insert-sheets";
    zundo_status_t status = ZUNDO_OK;
    try {
        // The run page records of each Run, looked up once per sheet.
        std::unordered_map<std::string, RunRecords> recordsByRun;
        for (const RunPages &pages : runPages) recordsByRun[pages.run].push_back(&pages);
        const RunRecords noRecords;
        ListAppender startPages(owner, startPageList);
        ListAppender insertSheets(owner, insertSheetList);
        for (ElementEntry *const *entry = entries; entry != nullptr && *entry != nullptr; ++entry) {
            const char *sheetRun = (*entry)->firstKey != nullptr ? (*entry)->firstKey : "";
            if (!textIs((*entry)->name, "InsertSheet") ||
                (run != nullptr && !textIs(sheetRun, run)))
                continue;
            const xercesc::DOMElement *element = (*entry)->element;
            ElementAttribute type(element, "SheetType");
            ElementAttribute usage(element, "SheetUsage");
            ElementAttribute description(element, "DescriptiveName");
            if (type.value() == nullptr || usage.value() == nullptr) continue;
            bool back = textIs(usage.value(), "FillForceBack");
            if (textIs(type.value(), "FillSheet") &&
                (back || textIs(usage.value(), "FillForceFront"))) {
                status = addStartPage(&startPages, startPageList, back ? kBackSide : kFrontSide,
                                      description.value(),
                                      recordsOf(recordsByRun, sheetRun, noRecords));
                continue;
            }
            int kind = textIs(type.value(), "InsertSheet")
                           ? getZUNDOEnumValue("insert-sheet-position", usage.value())
                           : 0;
            status = addInsertSheet(&insertSheets, kind, element, description.value() != nullptr,
                                    recordsOf(recordsByRun, sheetRun, noRecords), mediaList);
            if (status == ZUNDO_OUT_OF_MEMORY) break;
        }
    } catch (const std::bad_alloc &) {
        zundo_trace("readInsertSheetElements() generated out of memory");
        status = ZUNDO_OUT_OF_MEMORY;
    }
    zundo_trace("<< Leaving readInsertSheetElements \n");
    return status;
}

zundo_int_object_s *documentOfLayoutElement(LayoutElementPair **layoutElements, const char *id) {
    for (LayoutElementPair **pair = layoutElements;
         id != nullptr && pair != nullptr && *pair != nullptr; ++pair)
        if (std::strcmp((*pair)->id, id) == 0) return (*pair)->document;
    return nullptr;
}

// At the job's level (1) the RunList's insert sheets all belong to the job;
// at the documents' level (0) each LayoutElementRef hands those of its Run
// to the document it names.
zundo_status_t readRunListRunLvlElements(const xercesc::DOMElement *runList,
                                         zundo_int_object_s *job, const RunPageList &runPages,
                                         const ResourceReadContext *context) {
    zundo_trace(">> Entering readRunListRunLvlElements \n");
    ElementEntry **entries = nullptr;
    getRunLvlElements(runList, &entries);
    zundo_status_t status = ZUNDO_OK;
    int levelPages = -1;
    for (ElementEntry **entry = entries; entry != nullptr && *entry != nullptr; ++entry) {
        if (!textIs((*entry)->name, "LayoutElementRef")) continue;
        if (levelPages == -1) {
            zundo_int_attribute_s *level = get(job, "job-level-pages");
            levelPages = hasNextValue(level) ? *static_cast<int *>(nextValue(level)) : 1;
            destroyAttribute(level);
        }
        if (levelPages == 1) {
            status = readInsertSheetElements(entries, job, nullptr, runPages, context->mediaList);
            break;
        }
        zundo_int_object_s *document = documentOfLayoutElement(
            context->layoutElements, ElementAttribute((*entry)->element, "rRef").value());
        if (document != nullptr && (*entry)->firstKey != nullptr)
            status = readInsertSheetElements(entries, document, (*entry)->firstKey, runPages,
                                             context->mediaList);
    }
    freeElementList(entries);
    zundo_trace("<< Leaving readRunListRunLvlElements \n");
    return status;
}

zundo_status_t addProcessPagesValue(zundo_int_attribute_s *pages, const char *text) {
    zundo_trace(">> Entering addProcessPagesValue \n");
    zundo_status_t status = addRangesOfPages(pages, text);
    zundo_trace("<< Leaving addProcessPagesValue \n");
    return status;
}

// Destroys the ranges of the attribute from position `first` on: those a
// refused set left to the reader.
void destroyRangesFrom(zundo_int_attribute_s *ranges, int first) {
    resetIterator(ranges);
    for (int i = 0; hasNextValue(ranges); ++i) {
        auto *range = static_cast<zundo_range_s *>(nextValue(ranges));
        if (i >= first) destroyRange(range);
    }
}

// The ranges of a RunIndex text join "job-process-pages", or start it
// afresh when first.
zundo_status_t setJobProcessPages(zundo_int_object_s *job, const char *text, bool first) {
    zundo_trace(">> Entering setJobProcessPages \n");
    zundo_int_attribute_s *pages = nullptr;
    if (first) newAttribute(&pages, "job-process-pages", ZUNDO_KIND_RANGE, nullptr);
    else pages = get(job, "job-process-pages");
    if (pages == nullptr) return ZUNDO_OUT_OF_MEMORY;
    int kept = getNumValues(pages);
    zundo_status_t status = addProcessPagesValue(pages, text);
    if (status == ZUNDO_OK) status = set(job, pages);
    if (status != ZUNDO_OK) destroyRangesFrom(pages, kept);
    destroyAttribute(pages);
    zundo_trace("<< Leaving setJobProcessPages \n");
    return status;
}

}  // namespace

zundo_status_t readRunListResource(xercesc::DOMElement *runList, const char *,
                                   ResourceReadContext *context) {
    zundo_trace(">> Entering readRunListResource \n");
    zundo_int_object_s *job = getJob(context->ticket);
    readRunListElements(runList, job);
    readRunListPagesVariant(runList, job);
    if (!feedsOneProcess(runList)) {
        RunPageList runPages;
        if (readRunListRunLvlAttrs(runList, job, &runPages) == ZUNDO_OK)
            readRunListRunLvlElements(runList, job, runPages, context);
    }
    zundo_trace("<< Leaving readRunListResource \n");
    return ZUNDO_OK;
}

zundo_status_t readRunListLinkElement(xercesc::DOMElement *link, zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readRunListLinkElement \n");
    zundo_int_object_s *job = getJob(ticket);
    zundo_status_t status = ZUNDO_OK;
    bool first = true;
    for (ElementEntry *part : ChildElements(link)) {
        ElementAttribute runIndex(part->element, "RunIndex");
        if (!textIs(part->name, "Part") || runIndex.value() == nullptr) continue;
        status = setJobProcessPages(job, runIndex.value(), first);
        if (status == ZUNDO_OK) first = false;
    }
    zundo_trace("<< Leaving readRunListLinkElement \n");
    return status;
}
