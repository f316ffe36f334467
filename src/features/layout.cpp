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

}  // namespace

// A clone carries a copy of its source's block, so that it compares equal
// to its source.
ZUNDO_FEATURE_TYPE(PageCell, page_cell, PAGE_CELL, checkRules<layoutRules>,
                   copyFollowingAbstractJDP, compareFollowingAbstractJDPs, comparePageCell)

extern "C" zundo_status_t newPageCellInfo(zundo_int_object_s **out, zundo_range_s *cells) {
    return buildFeature<PageCellType>(out, "newPageCellInfo",
                                      {ownedValue("page-cell-cells", ZUNDO_KIND_RANGE, cells)});
}

ZUNDO_FEATURE_TYPE(PageRange, page_range, PAGE_RANGE, checkRules<layoutRules>,
                   copyFollowingAbstractJDP, compareFollowingAbstractJDPs, comparePageRange)

// Without pages the range covers them all, 0 ~ -1.
extern "C" zundo_status_t newPageRange(zundo_int_object_s **out, zundo_range_s *pages,
                                       zundo_int_object_s *media) {
    if (pages == nullptr) newRange(&pages, 0, -1);
    return buildFeature<PageRangeType>(out, "newPageRange",
                                       {ownedValue("page-range-media", ZUNDO_KIND_OBJECT, media),
                                        ownedValue("page-range-pages", ZUNDO_KIND_RANGE, pages)});
}
