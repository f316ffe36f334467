#include "catalogue/type_tables.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "catalogue/audit_records.h"
#include "catalogue/colour_records.h"
#include "catalogue/finishing_records.h"
#include "catalogue/job_records.h"
#include "catalogue/marks_records.h"
#include "catalogue/media_records.h"
#include "catalogue/processing_records.h"
#include "catalogue/type_names.h"

const zundo_type_table_s *findTypeTable(const char *type) {
    if (type == nullptr) return nullptr;
    // Built on first use: the row counts are defined in other units, and a
    // namespace-scope copy could be read before it is initialised.
    // Sorted by type string in byte order for the binary search below.
    static const zundo_type_table_s types[] = {
        {ZUNDO_TYPE_ABSTRACT_JDP, abstractJdpAttributes, abstractJdpAttributeRows, nullptr},
        {ZUNDO_TYPE_BANNER_SHEET, bannerSheetAttributes, bannerSheetAttributeRows, nullptr},
        {ZUNDO_TYPE_BINDING, bindingAttributes, bindingAttributeRows, nullptr},
        {ZUNDO_TYPE_CALIBRATION_TYPE, calibrationTypeAttributes,
         calibrationTypeAttributeRows, nullptr},
        {ZUNDO_TYPE_COLOR_PLANE, colorPlaneAttributes, colorPlaneAttributeRows, nullptr},
        {ZUNDO_TYPE_CONTACT_INFO, contactInfoAttributes, contactInfoAttributeRows, nullptr},
        {ZUNDO_TYPE_CONTAINER, containerAttributes, containerAttributeRows, nullptr},
        {ZUNDO_TYPE_DOCUMENT, documentAttributes, documentAttributeRows, "document-"},
        {ZUNDO_TYPE_FOLDING, foldingAttributes, foldingAttributeRows, nullptr},
        {ZUNDO_TYPE_HOLE, holeAttributes, holeAttributeRows, nullptr},
        {ZUNDO_TYPE_HOLE_LINE, holeLineAttributes, holeLineAttributeRows, nullptr},
        {ZUNDO_TYPE_HOLE_LIST, holeListAttributes, holeListAttributeRows, nullptr},
        {ZUNDO_TYPE_HOLE_MAKING, holeMakingAttributes, holeMakingAttributeRows, nullptr},
        {ZUNDO_TYPE_INK_USAGE, inkUsageAttributes, inkUsageAttributeRows, nullptr},
        {ZUNDO_TYPE_INSERT_SHEET, insertSheetAttributes, insertSheetAttributeRows, nullptr},
        {ZUNDO_TYPE_JOB, jobAttributes, jobAttributeRows, "job-"},
        {ZUNDO_TYPE_JOB_TICKET, jobTicketAttributes, jobTicketAttributeRows, nullptr},
        {ZUNDO_TYPE_MARK, markAttributes, markAttributeRows, nullptr},
        {ZUNDO_TYPE_MEDIA, mediaAttributes, mediaAttributeRows, nullptr},
        {ZUNDO_TYPE_NAMED_FEATURE, namedFeatureAttributes, namedFeatureAttributeRows, nullptr},
        {ZUNDO_TYPE_NAMED_FEATURE_VALUE, namedFeatureValueAttributes,
         namedFeatureValueAttributeRows, nullptr},
        {ZUNDO_TYPE_NOTIFICATION, notificationAttributes, notificationAttributeRows, nullptr},
        {ZUNDO_TYPE_NOTIFICATION_AUDIT, notificationAuditAttributes,
         notificationAuditAttributeRows, nullptr},
        {ZUNDO_TYPE_PAGE_CELL, pageCellAttributes, pageCellAttributeRows, "page-cell-"},
        {ZUNDO_TYPE_PAGE_RANGE, pageRangeAttributes, pageRangeAttributeRows, "page-range-"},
        {ZUNDO_TYPE_PAGINATION, paginationAttributes, paginationAttributeRows, nullptr},
        {ZUNDO_TYPE_PHASE_TIME, phaseTimeAttributes, phaseTimeAttributeRows, nullptr},
        {ZUNDO_TYPE_PROCESS_RUN, processRunAttributes, processRunAttributeRows, nullptr},
        {ZUNDO_TYPE_PROOF_PRINT, proofPrintAttributes, proofPrintAttributeRows, nullptr},
        {ZUNDO_TYPE_REGISTER_MARK, registerMarkAttributes, registerMarkAttributeRows, nullptr},
        {ZUNDO_TYPE_RETAIN, retainAttributes, retainAttributeRows, nullptr},
        {ZUNDO_TYPE_RIP_PARAMS, ripParamsAttributes, ripParamsAttributeRows, nullptr},
        {ZUNDO_TYPE_SCREENING, screeningAttributes, screeningAttributeRows, nullptr},
        {ZUNDO_TYPE_SEPARATOR_SHEET, separatorSheetAttributes,
         separatorSheetAttributeRows, nullptr},
        {ZUNDO_TYPE_STITCHING, stitchingAttributes, stitchingAttributeRows, nullptr},
        {ZUNDO_TYPE_TRAPPING, trappingAttributes, trappingAttributeRows, nullptr},
        {ZUNDO_TYPE_TRIMMING, trimmingAttributes, trimmingAttributeRows, nullptr},
        {ZUNDO_TYPE_TRIM_BLEED_MARK, trimBleedMarkAttributes, trimBleedMarkAttributeRows, nullptr},
        {ZUNDO_TYPE_USAGE_COUNTER, usageCounterAttributes, usageCounterAttributeRows, nullptr},
    };
    auto before = [](const zundo_type_table_s &entry, const char *wanted) {
        return std::strcmp(entry.type, wanted) < 0;
    };
    const zundo_type_table_s *found =
        std::lower_bound(std::begin(types), std::end(types), type, before);
    if (found == std::end(types) || std::strcmp(found->type, type) != 0) return nullptr;
    return found;
}
