// The partition walk and the page ranges it names.
//
// A resource may name thousands of page ranges. Every setter call is
// handed only the entries its filters select, and each walk step keeps
// the owner's page ranges in an index by their bounds, so that a step
// costs time in proportion to what it reads rather than to the product of
// page ranges and partitions.
#include "read/partition_walk.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "catalogue/type_names.h"
#include "read/reader_conversions.h"
#include "xml/index_lists.h"
#include "zundo_object.h"
#include "zundo_trace.h"

namespace {

struct AttrListFree {
    void operator()(AttributeEntry **list) const { freeAttrList(list); }
};
struct ElementListFree {
    void operator()(ElementEntry **list) const { freeElementList(list); }
};
struct IndexListFree {
    void operator()(const char **list) const { std::free(list); }
};
struct PageTokensFree {
    void operator()(char **tokens) const { freePageTokens(tokens); }
};
using AttrList = std::unique_ptr<AttributeEntry *[], AttrListFree>;
using ElementList = std::unique_ptr<ElementEntry *[], ElementListFree>;
using IndexList = std::unique_ptr<const char *[], IndexListFree>;
using PageTokens = std::unique_ptr<char *[], PageTokensFree>;

AttributeEntry *const kNoAttrs[] = {nullptr};
ElementEntry *const kNoElements[] = {nullptr};

// Entries of a resource as the setter receives them: null-terminated once
// anything was added, in document order.
struct EntrySelection {
    std::vector<AttributeEntry *> attrs;
    std::vector<ElementEntry *> elements;

    AttributeEntry *const *attrList() const { return attrs.empty() ? kNoAttrs : attrs.data(); }
    ElementEntry *const *elementList() const {
        return elements.empty() ? kNoElements : elements.data();
    }
};

std::vector<AttributeEntry *> &entriesOf(EntrySelection &selection, AttributeEntry *) {
    return selection.attrs;
}
std::vector<ElementEntry *> &entriesOf(EntrySelection &selection, ElementEntry *) {
    return selection.elements;
}

template <typename Entry>
void appendEntry(EntrySelection &selection, Entry *entry) {
    std::vector<Entry *> &list = entriesOf(selection, entry);
    if (list.empty()) list.push_back(nullptr);
    list.back() = entry;
    list.push_back(nullptr);
}

// Entries grouped by their first-level key (the DocIndex); entries without
// one apply to no document.
template <typename Entry>
void groupByFirstKey(Entry *const *entries,
                     std::unordered_map<std::string, EntrySelection> *groups) {
    for (Entry *const *at = entries; at != nullptr && *at != nullptr; ++at)
        if ((*at)->firstKey != nullptr) appendEntry((*groups)[(*at)->firstKey], *at);
}

// The page tokens that select an entry with this RunIndex text: those
// runIndexContains accepts, each once.
std::vector<std::string> selectingTokens(const char *runIndex) {
    std::vector<std::string> selecting;
    char **split = nullptr;
    if (parsePages(runIndex, &split) != ZUNDO_OK) return selecting;
    PageTokens tokens(split);
    std::unordered_set<std::string> seen;
    for (char **token = tokens.get(); *token != nullptr; ++token)
        if (runIndexContains(runIndex, *token) && seen.insert(*token).second)
            selecting.emplace_back(*token);
    return selecting;
}

template <typename Entry>
void indexByToken(const std::vector<Entry *> &entries,
                  std::unordered_map<std::string, EntrySelection> *byToken) {
    const char *previous = nullptr;
    std::vector<std::string> tokens;
    for (Entry *entry : entries) {
        if (entry == nullptr || entry->secondKey == nullptr) continue;
        // The entries of one partition share their RunIndex text.
        if (previous == nullptr || std::strcmp(previous, entry->secondKey) != 0)
            tokens = selectingTokens(entry->secondKey);
        previous = entry->secondKey;
        for (const std::string &token : tokens) appendEntry((*byToken)[token], entry);
    }
}

// The second-level entries of the job, or of one document, with the
// entries each page token selects.
struct RunLevel {
    EntrySelection entries;
    std::unordered_map<std::string, EntrySelection> byToken;
    bool indexed = false;

    const EntrySelection *selectedBy(const std::string &token) {
        if (!indexed) {
            indexByToken(entries.attrs, &byToken);
            indexByToken(entries.elements, &byToken);
            indexed = true;
        }
        auto found = byToken.find(token);
        return found != byToken.end() ? &found->second : nullptr;
    }
};

struct PageBounds {
    int lower;
    int upper;
};

// "4" is 4 ~ 4, "1~3" is 1 ~ 3; the numbers are read as atoi reads them.
PageBounds boundsOfToken(const char *token) {
    const char *tilde = std::strchr(token, '~');
    int lower = std::atoi(token);
    return {lower, tilde != nullptr ? std::atoi(tilde + 1) : lower};
}

unsigned long long boundsKey(PageBounds bounds) {
    return static_cast<unsigned long long>(static_cast<unsigned>(bounds.lower)) << 32 |
           static_cast<unsigned>(bounds.upper);
}

const char *pageRangeListName(const zundo_int_object_s *owner) {
    const char *type = getObjectType(owner);
    return type != nullptr && std::strcmp(type, ZUNDO_TYPE_JOB) == 0 ? "job-page-ranges"
                                                                     : "document-page-ranges";
}

bool pageRangeBounds(zundo_int_object_s *pageRange, PageBounds *out) {
    zundo_int_attribute_s *pages = get(pageRange, "page-range-pages");
    bool found = hasNextValue(pages) != 0;
    if (found) {
        const auto *range = static_cast<const zundo_range_s *>(nextValue(pages));
        *out = {getLower(range), getUpper(range)};
    }
    destroyAttribute(pages);
    return found;
}

zundo_status_t makePageRange(zundo_int_object_s **out, PageBounds bounds) {
    zundo_range_s *range = nullptr;
    zundo_status_t status = newRange(&range, bounds.lower, bounds.upper);
    return status == ZUNDO_OK ? newPageRange(out, range, nullptr) : status;
}

// One page-range step of the walk: every page token of the run index list
// to its page range of the owner. A token that repeats within the step
// names the same page range with the same filters, so the setter is called
// once per token: the run index list holds a RunIndex once per entry of its
// partition. The result is the last setter's status, `status` when the
// setter is not called.
zundo_status_t walkPageRanges(RunLevel *level, const char *const *runIndexList,
                              zundo_int_object_s *owner, IdElement **mediaList,
                              const char *docFilter, LevelSetter setter, zundo_status_t status) {
    zundo_trace(">> Entering setLPAttrsToPageRanges \n");
    PageRangeIndex pageRanges(owner);
    std::unordered_set<std::string> visited;
    for (const char *const *value = runIndexList; value != nullptr && *value != nullptr; ++value) {
        char **split = nullptr;
        if (parsePages(*value, &split) != ZUNDO_OK) continue;
        PageTokens tokens(split);
        for (char **token = tokens.get(); *token != nullptr; ++token) {
            zundo_int_object_s *pageRange = nullptr;
            if (!visited.insert(*token).second || pageRanges.find(*token, &pageRange) != ZUNDO_OK)
                continue;
            const EntrySelection *selected = level->selectedBy(*token);
            status = setter(&pageRange, selected != nullptr ? selected->attrList() : kNoAttrs,
                            selected != nullptr ? selected->elementList() : kNoElements,
                            docFilter, *token, mediaList);
        }
    }
    zundo_trace("<< Leaving setAttrsToPageRanges \n");
    return status;
}

// The run index list of one document: getDocSpecificRunIndexList over the
// document's own entries, which gives what it gives over all of them.
zundo_status_t documentRunIndexList(RunLevel *level, const char *docFilter, IndexList *out) {
    const char **list = nullptr;
    zundo_status_t status = getDocSpecificRunIndexList(level->entries.elementList(),
                                                       level->entries.attrList(), docFilter, &list);
    out->reset(list);
    return status;
}

zundo_status_t outOfMemory(const char *operation) {
    traceOutOfMemory(operation);
    return ZUNDO_OUT_OF_MEMORY;
}

// The DocIndex level and the DocIndex/DocRunIndex level of a resource,
// fetched once for all documents and grouped by DocIndex.
class DocumentLevels {
public:
    explicit DocumentLevels(xercesc::DOMElement *resource) : resource_(resource) {}

    zundo_status_t load(zundo_int_object_s *anyDocument) {
        AttributeEntry **attrs = nullptr;
        ElementEntry **elements = nullptr;
        const char **values = nullptr;
        zundo_status_t status = getDocIndexList(resource_, &values, &attrs, &elements);
        docIndexValues_.reset(values);
        docAttrs_.reset(attrs);
        docElements_.reset(elements);
        if (status != ZUNDO_OK) return status;
        // A partition with attributes and elements gives its DocIndex twice.
        std::unordered_set<std::string> seen;
        for (const char **value = values; *value != nullptr; ++value)
            if (seen.insert(*value).second) distinctValues_.push_back(*value);
        groupByFirstKey(docAttrs_.get(), &byDocIndex_);
        groupByFirstKey(docElements_.get(), &byDocIndex_);
        if (anyDocument == nullptr || distinctValues_.empty()) return ZUNDO_OK;
        // The same entries for every document: the second level does not
        // depend on which document asks.
        status = getRunIndexList(resource_, anyDocument, &values, &attrs, &elements);
        std::free(values);
        runAttrs_.reset(attrs);
        runElements_.reset(elements);
        if (status != ZUNDO_OK) return status;
        std::unordered_map<std::string, EntrySelection> groups;
        groupByFirstKey(runAttrs_.get(), &groups);
        groupByFirstKey(runElements_.get(), &groups);
        for (auto &group : groups) runLevels_[group.first].entries = std::move(group.second);
        return ZUNDO_OK;
    }

    // Each DocIndex value once, in order.
    const std::vector<const char *> &docIndexValues() const { return distinctValues_; }

    const EntrySelection *docIndexEntries(const char *docFilter) const {
        auto found = byDocIndex_.find(docFilter);
        return found != byDocIndex_.end() ? &found->second : nullptr;
    }

    RunLevel *runLevel(const char *docFilter) { return &runLevels_[docFilter]; }

private:
    xercesc::DOMElement *resource_;
    IndexList docIndexValues_;
    std::vector<const char *> distinctValues_;
    AttrList docAttrs_;
    ElementList docElements_;
    AttrList runAttrs_;
    ElementList runElements_;
    std::unordered_map<std::string, EntrySelection> byDocIndex_;
    std::unordered_map<std::string, RunLevel> runLevels_;
};

// Every text of up to kIndexDigits characters inside the values: the
// document indexes the values name.
const size_t kIndexDigits = 10;
std::unordered_set<std::string> textsInside(const std::vector<const char *> &values) {
    std::unordered_set<std::string> texts;
    for (const char *value : values) {
        size_t length = std::strlen(value);
        for (size_t start = 0; start < length; ++start)
            for (size_t count = 1; count <= kIndexDigits && start + count <= length; ++count)
                texts.emplace(value + start, count);
    }
    return texts;
}

// A document is walked when a DocIndex value contains its index as text:
// "10" names document 1 and document 0 too, and the setter applies only
// the entries whose DocIndex is the index itself. The walk runs once per
// document however many values name it, so that list values (insert
// sheets, marks) are not added again for each.
zundo_status_t walkDocuments(xercesc::DOMElement *resource, zundo_int_object_s *job,
                             IdElement **mediaList, LevelSetter setter) {
    zundo_int_object_s **documents = getDocuments(job);
    DocumentLevels levels(resource);
    zundo_status_t status =
        levels.load(documents != nullptr && documents[0] != nullptr ? documents[0] : nullptr);
    if (status != ZUNDO_OK) return status;
    std::unordered_set<std::string> named = textsInside(levels.docIndexValues());
    for (int i = 0; documents != nullptr && documents[i] != nullptr; ++i) {
        char docFilter[16];
        std::snprintf(docFilter, sizeof docFilter, "%i", i);
        if (named.count(docFilter) == 0) continue;
        zundo_int_object_s *document = documents[i];
        const EntrySelection *entries = levels.docIndexEntries(docFilter);
        status = setter(&document, entries != nullptr ? entries->attrList() : kNoAttrs,
                        entries != nullptr ? entries->elementList() : kNoElements, docFilter,
                        nullptr, mediaList);
        RunLevel *level = levels.runLevel(docFilter);
        IndexList runIndexList;
        zundo_status_t listed = documentRunIndexList(level, docFilter, &runIndexList);
        if (listed != ZUNDO_OK) return listed;
        status = walkPageRanges(level, runIndexList.get(), documents[i], mediaList, docFilter,
                                setter, status);
    }
    return status;
}

}  // namespace

PageRangeIndex::PageRangeIndex(zundo_int_object_s *owner)
    : owner_(owner), listName_(pageRangeListName(owner)) {
    zundo_int_attribute_s *list = get(owner, listName_);
    while (hasNextValue(list)) {
        auto *pageRange = static_cast<zundo_int_object_s *>(nextValue(list));
        PageBounds bounds{};
        // The first page range with the bounds is the one handed out.
        if (pageRangeBounds(pageRange, &bounds)) byBounds_.emplace(boundsKey(bounds), pageRange);
    }
    destroyAttribute(list);
}

zundo_int_object_s *PageRangeIndex::lookup(const char *token) const {
    auto found = byBounds_.find(boundsKey(boundsOfToken(token)));
    return found != byBounds_.end() ? found->second : nullptr;
}

zundo_status_t PageRangeIndex::find(const char *token, zundo_int_object_s **out) {
    zundo_trace(">> Entering findPageRangeObject \n");
    zundo_status_t status = ZUNDO_OK;
    *out = lookup(token);
    if (*out == nullptr) {
        PageBounds bounds = boundsOfToken(token);
        made_.push_back(nullptr);
        status = makePageRange(&made_.back(), bounds);
        if (status == ZUNDO_OK) {
            *out = made_.back();
            byBounds_.emplace(boundsKey(bounds), *out);
        } else {
            made_.pop_back();
        }
    }
    zundo_trace("<< Leaving findPageRangeObject \n");
    return status;
}

zundo_status_t PageRangeIndex::commit() {
    if (made_.empty()) return ZUNDO_OK;
    zundo_int_attribute_s *list = get(owner_, listName_);
    zundo_status_t status = list != nullptr ? ZUNDO_OK : ZUNDO_NOT_FOUND;
    for (size_t i = 0; status == ZUNDO_OK && i < made_.size(); ++i)
        status = addValue(list, made_[i]);
    if (status == ZUNDO_OK) status = set(owner_, list);
    if (status != ZUNDO_OK) {
        zundo_trace("call to set failed for %s: error code %d \n", listName_, status);
        for (zundo_int_object_s *pageRange : made_) destroy(pageRange);
    }
    destroyAttribute(list);
    made_.clear();
    return status;
}

zundo_status_t readResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket,
                            IdElement **mediaList, LevelSetter setter) {
    zundo_trace(">> Entering readResource \n");
    zundo_int_object_s *job = getJob(ticket);
    if (job == nullptr || setter == nullptr) return ZUNDO_INVALID_ARGUMENT;
    AttributeEntry **attrs = nullptr;
    ElementEntry **elements = nullptr;
    getAttrs(resource, &attrs);
    getElements(resource, &elements);
    zundo_int_object_s *target = job;
    setter(&target, attrs, elements, nullptr, nullptr, mediaList);
    freeAttrList(attrs);
    freeElementList(elements);
    setLPAttrsToPageRanges(resource, job, mediaList, nullptr, setter);
    zundo_status_t status = setAttrsToDocuments(resource, job, mediaList, setter);
    zundo_trace("<< Leaving readResource \n");
    return status;
}

zundo_status_t setAttrsToDocuments(xercesc::DOMElement *resource, zundo_int_object_s *job,
                                   IdElement **mediaList, LevelSetter setter) {
    zundo_trace(">> Entering setAttrsToDocuments \n");
    if (job == nullptr || setter == nullptr) return ZUNDO_INVALID_ARGUMENT;
    zundo_status_t status;
    try {
        status = walkDocuments(resource, job, mediaList, setter);
    } catch (const std::bad_alloc &) {
        status = outOfMemory("setAttrsToDocuments");
    }
    zundo_trace("<< Leaving setAttrsToDocuments \n");
    return status;
}

zundo_status_t setLPAttrsToPageRanges(xercesc::DOMElement *resource, zundo_int_object_s *owner,
                                      IdElement **mediaList, const char *docFilter,
                                      LevelSetter setter) {
    if (owner == nullptr || setter == nullptr) return ZUNDO_INVALID_ARGUMENT;
    const char **values = nullptr;
    AttributeEntry **attrs = nullptr;
    ElementEntry **elements = nullptr;
    zundo_status_t status = getRunIndexList(resource, owner, &values, &attrs, &elements);
    IndexList runIndexList(values);
    AttrList attrList(attrs);
    ElementList elementList(elements);
    if (status != ZUNDO_OK) return status;
    try {
        RunLevel level;
        for (AttributeEntry **at = attrs; at != nullptr && *at != nullptr; ++at)
            if (partitionMatches(docFilter, nullptr, (*at)->firstKey, (*at)->secondKey))
                appendEntry(level.entries, *at);
        for (ElementEntry **at = elements; at != nullptr && *at != nullptr; ++at)
            if (partitionMatches(docFilter, nullptr, (*at)->firstKey, (*at)->secondKey))
                appendEntry(level.entries, *at);
        if (docFilter != nullptr) status = documentRunIndexList(&level, docFilter, &runIndexList);
        if (status == ZUNDO_OK)
            status = walkPageRanges(&level, runIndexList.get(), owner, mediaList, docFilter, setter,
                                    ZUNDO_OK);
    } catch (const std::bad_alloc &) {
        status = outOfMemory("setLPAttrsToPageRanges");
    }
    return status;
}

zundo_status_t findPageRangeObject(zundo_int_object_s **out, zundo_int_object_s *owner,
                                   const char *token) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (owner == nullptr || token == nullptr) return ZUNDO_INVALID_ARGUMENT;
    try {
        PageRangeIndex pageRanges(owner);
        zundo_int_object_s *pageRange = nullptr;
        zundo_status_t status = pageRanges.find(token, &pageRange);
        if (status == ZUNDO_OK) status = pageRanges.commit();
        if (status == ZUNDO_OK) *out = pageRange;
        return status;
    } catch (const std::bad_alloc &) {
        return outOfMemory("findPageRangeObject");
    }
}

zundo_status_t readAndSetMultiplePageRangesAttribute(zundo_int_object_s **object, const char *name,
                                                     const char *text) {
    if (object == nullptr || *object == nullptr || name == nullptr || text == nullptr)
        return ZUNDO_NOT_FOUND;
    // "1 ~ 3" becomes "1~3"; a blank is dropped when it touches a "~".
    size_t length = std::strlen(text);
    std::unique_ptr<char, decltype(&std::free)> joined(static_cast<char *>(std::malloc(length + 1)),
                                                       &std::free);
    zundo_int_attribute_s *attribute = nullptr;
    if (joined == nullptr ||
        newAttribute(&attribute, name, ZUNDO_KIND_RANGE, nullptr) != ZUNDO_OK) {
        zundo_trace("readAndSetMultiplePageRangesAttribute() generated out of memory ");
        return ZUNDO_OUT_OF_MEMORY;
    }
    size_t kept = 0;
    for (size_t i = 0; i < length; ++i) {
        bool touchesTilde = text[i + 1] == '~' || (i > 0 && text[i - 1] == '~');
        if (text[i] != ' ' || !touchesTilde) joined.get()[kept++] = text[i];
    }
    joined.get()[kept] = '\0';
    for (const std::string &token : splitWords(joined.get(), kBlankSeparators)) {
        zundo_range_s *range = nullptr;
        if (newRangeFromString(&range, token.c_str()) != ZUNDO_OK) break;
        if (addValue(attribute, range) != ZUNDO_OK) {
            destroyRange(range);
            break;
        }
    }
    return setAndReleaseAttribute(*object, attribute);
}
