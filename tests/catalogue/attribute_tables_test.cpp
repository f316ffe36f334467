// The attribute definition tables: complete, sorted, each row on its own
// field of its record, and reachable through the store's lookup and access.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "catalogue/audit_records.h"
#include "catalogue/colour_records.h"
#include "catalogue/finishing_records.h"
#include "catalogue/job_records.h"
#include "catalogue/marks_records.h"
#include "catalogue/media_records.h"
#include "catalogue/processing_records.h"
#include "catalogue/type_tables.h"
#include "zundo.h"
#include "zundo_object.h"

namespace {

struct TypeShape {
    const char *type;
    int attributes;
    size_t recordSize;
};

// Attribute counts of the vocabulary, with the record each table points into.
const TypeShape kTypes[] = {
    {"ZUNDO_ABSTRACT_JDP", 30, sizeof(zundo_abstract_jdp_data_s)},
    {"ZUNDO_BANNER_SHEET", 3, sizeof(zundo_banner_sheet_data_s)},
    {"ZUNDO_BINDING", 8, sizeof(zundo_binding_data_s)},
    {"ZUNDO_CALIBRATION_TYPE", 11, sizeof(zundo_calibration_type_data_s)},
    {"ZUNDO_COLOR_PLANE", 12, sizeof(zundo_color_plane_data_s)},
    {"ZUNDO_CONTACT_INFO", 2, sizeof(zundo_contact_info_data_s)},
    {"ZUNDO_CONTAINER", 2, sizeof(zundo_container_data_s)},
    {"ZUNDO_DOCUMENT", 14, sizeof(zundo_document_data_s)},
    {"ZUNDO_FOLDING", 6, sizeof(zundo_folding_data_s)},
    {"ZUNDO_HOLE", 5, sizeof(zundo_hole_data_s)},
    {"ZUNDO_HOLE_LINE", 2, sizeof(zundo_hole_line_data_s)},
    {"ZUNDO_HOLE_LIST", 2, sizeof(zundo_hole_list_data_s)},
    {"ZUNDO_HOLE_MAKING", 6, sizeof(zundo_hole_making_data_s)},
    {"ZUNDO_INK_USAGE", 2, sizeof(zundo_ink_usage_data_s)},
    {"ZUNDO_INSERT_SHEET", 8, sizeof(zundo_insert_sheet_data_s)},
    {"ZUNDO_JOB", 255, sizeof(zundo_job_data_s)},
    {"ZUNDO_JOB_TICKET", 11, sizeof(zundo_job_ticket_data_s)},
    {"ZUNDO_MARK", 22, sizeof(zundo_mark_data_s)},
    {"ZUNDO_MEDIA", 102, sizeof(zundo_media_data_s)},
    {"ZUNDO_NAMED_FEATURE", 3, sizeof(zundo_named_feature_data_s)},
    {"ZUNDO_NAMED_FEATURE_VALUE", 2, sizeof(zundo_named_feature_value_data_s)},
    {"ZUNDO_NOTIFICATION", 5, sizeof(zundo_notification_data_s)},
    {"ZUNDO_NOTIFICATION_AUDIT", 8, sizeof(zundo_notification_audit_data_s)},
    {"ZUNDO_PAGE_CELL", 21, sizeof(zundo_page_cell_data_s)},
    {"ZUNDO_PAGE_RANGE", 5, sizeof(zundo_page_range_data_s)},
    {"ZUNDO_PAGINATION", 5, sizeof(zundo_pagination_data_s)},
    {"ZUNDO_PHASE_TIME", 5, sizeof(zundo_phase_time_data_s)},
    {"ZUNDO_PROCESS_RUN", 6, sizeof(zundo_process_run_data_s)},
    {"ZUNDO_PROOF_PRINT", 1, sizeof(zundo_proof_print_data_s)},
    {"ZUNDO_REGISTER_MARK", 6, sizeof(zundo_register_mark_data_s)},
    {"ZUNDO_RETAIN", 6, sizeof(zundo_retain_data_s)},
    {"ZUNDO_RIP_PARAMS", 12, sizeof(zundo_rip_params_data_s)},
    {"ZUNDO_SCREENING", 8, sizeof(zundo_screening_data_s)},
    {"ZUNDO_SEPARATOR_SHEET", 3, sizeof(zundo_separator_sheet_data_s)},
    {"ZUNDO_STITCHING", 6, sizeof(zundo_stitching_data_s)},
    {"ZUNDO_TRAPPING", 1, sizeof(zundo_trapping_data_s)},
    {"ZUNDO_TRIMMING", 7, sizeof(zundo_trimming_data_s)},
    {"ZUNDO_TRIM_BLEED_MARK", 8, sizeof(zundo_trim_bleed_mark_data_s)},
    {"ZUNDO_USAGE_COUNTER", 7, sizeof(zundo_usage_counter_data_s)},
};

const char *const kKinds[] = {
    ZUNDO_KIND_INTEGER,  ZUNDO_KIND_DOUBLE,   ZUNDO_KIND_STRING,      ZUNDO_KIND_INTEGER_LIST,
    ZUNDO_KIND_OBJECT,   ZUNDO_KIND_RANGE,    ZUNDO_KIND_MODIFIED,    ZUNDO_KIND_DATE_TIME,
    ZUNDO_KIND_BINARY,   ZUNDO_KIND_RGB,      ZUNDO_KIND_TIME_PERIOD, ZUNDO_KIND_START_PAGE};

const zundo_type_table_s *tableOf(const char *type) {
    // A private copy, so that the lookup cannot succeed by pointer identity.
    std::string copy(type);
    return findTypeTable(copy.c_str());
}

bool isKind(const zundo_attribute_info_s &row, const char *code) {
    return std::strcmp(row.kind, code) == 0;
}

size_t fieldSize(const zundo_attribute_info_s &row) {
    if (isKind(row, ZUNDO_KIND_INTEGER)) return sizeof(int);
    if (isKind(row, ZUNDO_KIND_DOUBLE)) return sizeof(double);
    return sizeof(void *);
}

// check(shape, row) for every real row of every table.
template <typename Check>
void forEveryRow(Check check) {
    for (const TypeShape &shape : kTypes) {
        const zundo_type_table_s *entry = tableOf(shape.type);
        ASSERT_NE(entry, nullptr) << shape.type;
        for (int i = 0; i < entry->rows - 1; ++i) check(shape, entry->table[i]);
    }
}

TEST(CatalogueTables, EveryTypeHasItsTableWithItsRowCount) {
    int total = 0;
    std::set<const zundo_attribute_info_s *> tables;
    for (const TypeShape &shape : kTypes) {
        const zundo_type_table_s *entry = tableOf(shape.type);
        ASSERT_NE(entry, nullptr) << shape.type;
        EXPECT_STREQ(entry->type, shape.type);
        ASSERT_EQ(entry->rows, shape.attributes + 1) << shape.type;
        for (int i = 0; i < shape.attributes; ++i)
            EXPECT_NE(entry->table[i].name, nullptr) << shape.type << " row " << i;
        EXPECT_EQ(entry->table[shape.attributes].name, nullptr) << shape.type;
        tables.insert(entry->table);
        total += shape.attributes;
    }
    EXPECT_EQ(tables.size(), 39u);
    EXPECT_EQ(total, 628);
}

TEST(CatalogueTables, UnknownTypesHaveNoTable) {
    EXPECT_EQ(findTypeTable(nullptr), nullptr);
    EXPECT_EQ(findTypeTable(""), nullptr);
    EXPECT_EQ(findTypeTable("ZUNDO_"), nullptr);
    EXPECT_EQ(findTypeTable("zundo_binding"), nullptr);
    EXPECT_EQ(findTypeTable("ZUNDO_BINDINGS"), nullptr);
    EXPECT_EQ(findTypeTable("ZUNDO_JOB_"), nullptr);
    EXPECT_EQ(findTypeTable("ZUNDO_AAA"), nullptr);
    EXPECT_EQ(findTypeTable("ZUNDO_ZZZ"), nullptr);
}

TEST(CatalogueTables, OnlyTheBlockOwnersCarryAPrefix) {
    const std::pair<const char *, const char *> owners[] = {{"ZUNDO_JOB", "job-"},
                                                            {"ZUNDO_DOCUMENT", "document-"},
                                                            {"ZUNDO_PAGE_CELL", "page-cell-"},
                                                            {"ZUNDO_PAGE_RANGE", "page-range-"}};
    int withPrefix = 0;
    for (const TypeShape &shape : kTypes) {
        const zundo_type_table_s *entry = tableOf(shape.type);
        ASSERT_NE(entry, nullptr);
        if (entry->blockPrefix != nullptr) ++withPrefix;
    }
    EXPECT_EQ(withPrefix, 4);
    for (const auto &owner : owners) {
        const zundo_type_table_s *entry = tableOf(owner.first);
        ASSERT_NE(entry, nullptr);
        EXPECT_STREQ(entry->blockPrefix, owner.second);
    }
}

TEST(CatalogueTables, RowsAreStrictlySortedInByteOrder) {
    for (const TypeShape &shape : kTypes) {
        const zundo_type_table_s *entry = tableOf(shape.type);
        ASSERT_NE(entry, nullptr);
        for (int i = 1; i < entry->rows - 1; ++i)
            EXPECT_LT(std::strcmp(entry->table[i - 1].name, entry->table[i].name), 0)
                << entry->table[i - 1].name << " before " << entry->table[i].name;
    }
}

TEST(CatalogueTables, RowsBelongToTheirTypeAndUseAKnownKind) {
    forEveryRow([](const TypeShape &shape, const zundo_attribute_info_s &row) {
        // Names carry their type's name ("ZUNDO_HOLE_LINE": "hole-line-"); the
        // ticket's use "jt-" and the shared block's are unprefixed.
        std::string prefix(shape.type + std::strlen("ZUNDO_"));
        std::transform(prefix.begin(), prefix.end(), prefix.begin(),
                       [](char c) { return c == '_' ? '-' : static_cast<char>(std::tolower(c)); });
        prefix += '-';
        if (prefix == "job-ticket-") prefix = "jt-";
        if (prefix == "abstract-jdp-") prefix = "";
        EXPECT_EQ(std::string(row.name).compare(0, prefix.size(), prefix), 0) << row.name;
        EXPECT_NE(std::find_if(std::begin(kKinds), std::end(kKinds),
                               [&](const char *code) { return isKind(row, code); }),
                  std::end(kKinds))
            << row.name << " has kind " << row.kind;
    });
}

TEST(CatalogueTables, FieldsLieInsideTheirRecordWithoutOverlapping) {
    // Members that are not attributes must not be reached by any row.
    const std::pair<const char *, std::pair<size_t, size_t>> reserved[] = {
        {"ZUNDO_JOB", {offsetof(zundo_job_data_s, documents), sizeof(void *)}},
        {"ZUNDO_JOB_TICKET", {offsetof(zundo_job_ticket_data_s, job), sizeof(void *)}},
        {"ZUNDO_ABSTRACT_JDP", {offsetof(zundo_abstract_jdp_data_s, prefix), sizeof(void *)}}};
    EXPECT_EQ(offsetof(zundo_abstract_jdp_data_s, prefix), 0u);
    for (const TypeShape &shape : kTypes) {
        const zundo_type_table_s *entry = tableOf(shape.type);
        ASSERT_NE(entry, nullptr);
        std::vector<std::pair<size_t, size_t>> spans;  // begin, end
        for (const auto &member : reserved)
            if (std::strcmp(member.first, shape.type) == 0)
                spans.push_back({member.second.first, member.second.first + member.second.second});
        for (int i = 0; i < entry->rows - 1; ++i) {
            const zundo_attribute_info_s &row = entry->table[i];
            ASSERT_GE(row.fieldOffset, 0) << row.name;
            size_t begin = static_cast<size_t>(row.fieldOffset);
            EXPECT_EQ(begin % fieldSize(row), 0u) << row.name << " is misaligned";
            EXPECT_LE(begin + fieldSize(row), shape.recordSize) << row.name;
            spans.push_back({begin, begin + fieldSize(row)});
        }
        std::sort(spans.begin(), spans.end());
        for (size_t i = 1; i < spans.size(); ++i)
            EXPECT_LE(spans[i - 1].second, spans[i].first)
                << shape.type << ": fields at " << spans[i - 1].first << " and " << spans[i].first
                << " overlap";
    }
}

TEST(CatalogueTables, NotSetValuesFollowTheKind) {
    const std::set<std::string> numbersAlwaysSet = {
        "rip-params-black-detection",      "rip-params-combined-separations",
        "rip-params-create-master",        "rip-params-mirror",
        "rip-params-negative",             "rip-params-remove-white-ppt-background",
        "rip-params-text-graphic-enhancement", "rip-params-use-master",
        "hole-line-pitch"};
    const std::set<std::string> listsEndingAtZero = {
        "color-plane-object-types", "contact-info-types",     "mark-text-template",
        "screening-base-screens",   "screening-object-types", "usage-counter-colorants",
        "usage-counter-media-sides"};
    std::set<std::string> seenAlwaysSet;
    std::set<std::string> seenLists;
    forEveryRow([&](const TypeShape &, const zundo_attribute_info_s &row) {
        const bool numeric = isKind(row, ZUNDO_KIND_INTEGER) || isKind(row, ZUNDO_KIND_DOUBLE);
        if (numeric && row.hasNotSetValue == 0) seenAlwaysSet.insert(row.name);
        if (!numeric && row.hasNotSetValue != 0) {
            EXPECT_TRUE(isKind(row, ZUNDO_KIND_INTEGER_LIST)) << row.name;
            seenLists.insert(row.name);
        }
        EXPECT_TRUE(row.hasNotSetValue == 0 || row.hasNotSetValue == 1) << row.name;
        if (row.hasNotSetValue == 1) {
            const double value = row.notSetValue;
            EXPECT_TRUE(value == 0 || value == -1 || value == -2 || value == 999999)
                << row.name << " not set at " << value;
        } else {
            EXPECT_EQ(row.notSetValue, 0) << row.name;
        }
        if (listsEndingAtZero.count(row.name) != 0) {
            EXPECT_EQ(row.notSetValue, 0) << row.name;
        }
    });
    EXPECT_EQ(seenAlwaysSet, numbersAlwaysSet);
    EXPECT_EQ(seenLists, listsEndingAtZero);
}

TEST(CatalogueLookup, BinarySearchFindsEveryRowAndNothingElse) {
    for (const TypeShape &shape : kTypes) {
        const zundo_type_table_s *entry = tableOf(shape.type);
        ASSERT_NE(entry, nullptr);
        for (int i = 0; i < entry->rows - 1; ++i) {
            const std::string name = entry->table[i].name;
            EXPECT_EQ(findAttributeInfo(entry->table, entry->rows, name.c_str()), &entry->table[i])
                << name;
            // '~' sorts after every character used in attribute names.
            EXPECT_EQ(findAttributeInfo(entry->table, entry->rows, (name + "~").c_str()), nullptr);
        }
        EXPECT_EQ(findAttributeInfo(entry->table, entry->rows, ""), nullptr);
    }
}

TEST(CatalogueLookup, BlockAttributesAreNotRowsOfTheirOwners) {
    const zundo_type_table_s *job = tableOf("ZUNDO_JOB");
    const zundo_type_table_s *block = tableOf("ZUNDO_ABSTRACT_JDP");
    ASSERT_NE(job, nullptr);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(findAttributeInfo(job->table, job->rows, "job-media"), nullptr);
    EXPECT_EQ(findAttributeInfo(job->table, job->rows, "job-number-up-x"), nullptr);
    EXPECT_NE(findAttributeInfo(block->table, block->rows, "media"), nullptr);
    EXPECT_NE(findAttributeInfo(job->table, job->rows, "job-copies"), nullptr);
}

// Every integer, double and string attribute of every table keeps its own
// value when all of them are set into one record through the store.
TEST(CatalogueLookup, EveryScalarAndStringRowKeepsItsOwnValueInTheRecord) {
    for (const TypeShape &shape : kTypes) {
        const zundo_type_table_s *entry = tableOf(shape.type);
        ASSERT_NE(entry, nullptr);
        void *data = std::calloc(1, shape.recordSize);
        ASSERT_NE(data, nullptr);
        for (int i = 0; i < entry->rows - 1; ++i) {
            const zundo_attribute_info_s &row = entry->table[i];
            const int number = 1000 + i;
            const double real = 0.5 + i;
            const void *value = nullptr;
            if (isKind(row, ZUNDO_KIND_INTEGER)) value = &number;
            if (isKind(row, ZUNDO_KIND_DOUBLE)) value = &real;
            if (isKind(row, ZUNDO_KIND_STRING)) value = row.name;
            if (value == nullptr) continue;
            zundo_int_attribute_s *attribute = nullptr;
            ASSERT_EQ(newAttribute(&attribute, row.name, row.kind, value), ZUNDO_OK);
            EXPECT_EQ(genericSet(entry->table, entry->rows, data, row.name, attribute), ZUNDO_OK)
                << row.name;
            destroyAttribute(attribute);
        }
        for (int i = 0; i < entry->rows - 1; ++i) {
            const zundo_attribute_info_s &row = entry->table[i];
            if (isPointerKind(row.kind) && !isKind(row, ZUNDO_KIND_STRING)) continue;
            zundo_int_attribute_s *attribute =
                genericGet(entry->table, entry->rows, data, row.name);
            ASSERT_NE(attribute, nullptr) << row.name;
            ASSERT_EQ(getNumValues(attribute), 1) << row.name;
            const void *value = nextValue(attribute);
            if (isKind(row, ZUNDO_KIND_INTEGER))
                EXPECT_EQ(*static_cast<const int *>(value), 1000 + i) << row.name;
            else if (isKind(row, ZUNDO_KIND_DOUBLE))
                EXPECT_EQ(*static_cast<const double *>(value), 0.5 + i) << row.name;
            else
                EXPECT_STREQ(static_cast<const char *>(value), row.name);
            destroyAttribute(attribute);
        }
        genericDestroy(entry->table, data);
        std::free(data);
    }
}

// What get hands out honours the row's not-set value: a number equal to it
// reads as unset, integer lists stop at it, and rows without one count
// every value.
TEST(CatalogueLookup, NotSetValuesReachTheAttributesThatGetHandsOut) {
    for (const TypeShape &shape : kTypes) {
        const zundo_type_table_s *entry = tableOf(shape.type);
        ASSERT_NE(entry, nullptr);
        void *data = std::calloc(1, shape.recordSize);
        ASSERT_NE(data, nullptr);
        for (int i = 0; i < entry->rows - 1; ++i) {
            const zundo_attribute_info_s &row = entry->table[i];
            const bool list = isKind(row, ZUNDO_KIND_INTEGER_LIST);
            if (isPointerKind(row.kind) && !list) continue;
            // Numbers take the not-set value (0 where there is none); lists 3, 0, 5.
            const int number = static_cast<int>(row.notSetValue);
            const double real = row.notSetValue;
            const int three = 3, zero = 0, five = 5;
            zundo_int_attribute_s *attribute = nullptr;
            const void *first = &number;
            if (isKind(row, ZUNDO_KIND_DOUBLE)) first = &real;
            if (list) first = &three;
            ASSERT_EQ(newAttribute(&attribute, row.name, row.kind, first), ZUNDO_OK);
            if (list) {
                addValue(attribute, &zero);
                addValue(attribute, &five);
            }
            ASSERT_EQ(genericSet(entry->table, entry->rows, data, row.name, attribute), ZUNDO_OK);
            destroyAttribute(attribute);

            attribute = genericGet(entry->table, entry->rows, data, row.name);
            ASSERT_NE(attribute, nullptr) << row.name;
            int values = 0;
            while (hasNextValue(attribute)) {
                nextValue(attribute);
                ++values;
            }
            if (list)
                EXPECT_EQ(values, row.hasNotSetValue ? 1 : 3) << row.name;
            else
                EXPECT_EQ(values, row.hasNotSetValue ? 0 : 1) << row.name;
            destroyAttribute(attribute);
        }
        genericDestroy(entry->table, data);
        std::free(data);
    }
}

}  // namespace
