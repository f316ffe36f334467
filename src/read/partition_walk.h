// The partition walk: how a resource that applies to the job, to single
// documents (DocIndex partitions) and to runs of pages (Run / RunIndex /
// DocRunIndex partitions) reaches each of those objects, and the page
// ranges it creates as they are named.
#ifndef ZUNDO_READ_PARTITION_WALK_H
#define ZUNDO_READ_PARTITION_WALK_H

#include <unordered_map>
#include <vector>

#include "xml/jdf_lists.h"

// Applies the entries that partitionMatches(docFilter, runFilter, entry's
// firstKey, entry's secondKey) accepts to *object: the job, a document or a
// page range. The walk calls it once per matching DocIndex value and once
// per page token.
typedef zundo_status_t (*LevelSetter)(zundo_int_object_s **object, AttributeEntry *const *attrs,
                                      ElementEntry *const *elements, const char *docFilter,
                                      const char *runFilter, IdElement **mediaList);

// The resource's own entries to the job, its Run/RunIndex partitions to
// the job's page ranges, its DocIndex partitions to the documents and
// their DocRunIndex partitions to the documents' page ranges. Nothing is
// inherited from an outer level. The result is the documents step's.
zundo_status_t readResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket,
                            IdElement **mediaList, LevelSetter setter);
zundo_status_t setAttrsToDocuments(xercesc::DOMElement *resource, zundo_int_object_s *job,
                                   IdElement **mediaList, LevelSetter setter);
zundo_status_t setLPAttrsToPageRanges(xercesc::DOMElement *resource, zundo_int_object_s *owner,
                                      IdElement **mediaList, const char *docFilter,
                                      LevelSetter setter);

// The page range of the job ("job-page-ranges") or document
// ("document-page-ranges") whose Range is exactly the token's ("4" or
// "1~3"), made and appended when there is none. *out is borrowed from the
// owner.
zundo_status_t findPageRangeObject(zundo_int_object_s **out, zundo_int_object_s *owner,
                                   const char *token);

// Sets the range-list attribute `name` of *object from a blank-separated
// list of ranges ("1 ~ 3 7"), stopping at the first token that is not a
// range. ZUNDO_NOT_FOUND for a null object, name or text.
zundo_status_t readAndSetMultiplePageRangesAttribute(zundo_int_object_s **object, const char *name,
                                                     const char *text);

// The page ranges of a job or document by their bounds, for readers that
// look up many page tokens: the owner's list is read once. Page ranges that
// find() makes join the owner's list, in the order made, at commit() or
// when the index goes.
class PageRangeIndex {
public:
    explicit PageRangeIndex(zundo_int_object_s *owner);
    ~PageRangeIndex() { commit(); }
    PageRangeIndex(const PageRangeIndex &) = delete;
    PageRangeIndex &operator=(const PageRangeIndex &) = delete;

    // The page range of the token ("4", "1~3"), or null; none is made.
    zundo_int_object_s *lookup(const char *token) const;
    // The page range of the token, made when the owner has none; *out stays
    // null when it cannot be made.
    zundo_status_t find(const char *token, zundo_int_object_s **out);
    // When the owner refuses the page ranges made, they are destroyed.
    zundo_status_t commit();

private:
    zundo_int_object_s *owner_;
    const char *listName_;
    std::unordered_map<unsigned long long, zundo_int_object_s *> byBounds_;
    std::vector<zundo_int_object_s *> made_;
};

#endif
