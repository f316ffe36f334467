// Page cells and page ranges: the owners that carry the print-parameter
// block behind them, under the prefixes "page-cell-" and "page-range-".
#include "catalogue/job_records.h"
#include "features/feature_object.h"
#include "job/abstract_jdp.h"

namespace {

const zundo_rule_s layoutRules[] = {
    {{"page-cell-trim-size-x", "page-cell-trim-size-y"}, ZUNDO_RULE_ABOVE, kAboveZeroRealText, 0},
    {{"page-cell-clip-box-units", "page-cell-trim-size-units"}, ZUNDO_RULE_NON_BLANK},
    {{"page-cell-rotate-to-match-binding-edge"}, ZUNDO_RULE_BOOLEAN, kBooleanAttributeText},
    {{"page-cell-cells", "page-range-pages"}, ZUNDO_RULE_REQUIRED},
    {{"page-range-process-color-model"}, ZUNDO_RULE_NON_BLANK, kSpacesText},
    {{"page-range-process-color-model"}, ZUNDO_RULE_NO_BLANKS, kSpacesText},
    {},
};

// A clone carries a copy of its source's block, so that it compares equal
// to its source. (Page cells copy theirs too, as their compare looks at it.)
template <const zundo_object_type_s &T>
zundo_status_t cloneWithBlock(zundo_int_object_s **out, const zundo_int_object_s *source) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    zundo_int_object_s *copy = nullptr;
    zundo_status_t status = typeClone<T>(&copy, source);
    if (status != ZUNDO_OK) return status;
    status = copyFollowingAbstractJDP(copy, source);
    if (status != ZUNDO_OK) {
        destroy(copy);
        return status;
    }
    *out = copy;
    return ZUNDO_OK;
}

// Every owner made here, blank or not, clones its block with it.
template <const zundo_object_type_s &T>
zundo_status_t withBlockClone(zundo_status_t status, zundo_int_object_s **out) {
    if (status == ZUNDO_OK) (*out)->cloneHook = cloneWithBlock<T>;
    return status;
}

template <const zundo_object_type_s &T>
zundo_status_t newBlankOwner(zundo_int_object_s **out) {
    return withBlockClone<T>(newBlankFeature<T>(out), out);
}

}  // namespace

ZUNDO_FEATURE_TYPE(PageCell, page_cell, PAGE_CELL, checkRules<layoutRules>, newBlankOwner,
                   cloneWithBlock, compareFollowingAbstractJDPs, comparePageCell)

extern "C" zundo_status_t newPageCellInfo(zundo_int_object_s **out, zundo_range_s *cells) {
    return withBlockClone<PageCellType>(
        buildFeature<PageCellType>(out, "newPageCellInfo",
                                   {ownedValue("page-cell-cells", ZUNDO_KIND_RANGE, cells)}),
        out);
}

ZUNDO_FEATURE_TYPE(PageRange, page_range, PAGE_RANGE, checkRules<layoutRules>, newBlankOwner,
                   cloneWithBlock, compareFollowingAbstractJDPs, comparePageRange)

// Without pages the range covers them all, 0 ~ -1.
extern "C" zundo_status_t newPageRange(zundo_int_object_s **out, zundo_range_s *pages,
                                       zundo_int_object_s *media) {
    if (pages == nullptr) newRange(&pages, 0, -1);
    return withBlockClone<PageRangeType>(
        buildFeature<PageRangeType>(out, "newPageRange",
                                    {ownedValue("page-range-media", ZUNDO_KIND_OBJECT, media),
                                     ownedValue("page-range-pages", ZUNDO_KIND_RANGE, pages)}),
        out);
}
