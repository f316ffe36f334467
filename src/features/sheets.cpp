// Sheets and files placed into a job: insert, banner and separator sheets
// and layout-element containers.
#include <cstring>

#include "catalogue/media_records.h"
#include "features/feature_object.h"

namespace {

const char kContainerFormatText[] = "Invalid attempt to set %s to NULL or empty string";

const zundo_rule_s sheetRules[] = {
    {{"banner-sheet-type", "separator-sheet-type"}, ZUNDO_RULE_REQUIRED},
    {{"separator-sheet-amount"}, ZUNDO_RULE_AT_LEAST, kAboveZeroIntegerText, 1, 0, true},
    {{"container-format"}, ZUNDO_RULE_REQUIRED, kContainerFormatText},
    {{"container-format"}, ZUNDO_RULE_NOT_EMPTY, kContainerFormatText},
    {{"container-format"}, ZUNDO_RULE_NO_BLANKS, kSpacesText},
    {{"insert-sheet-copies"}, ZUNDO_RULE_AT_LEAST, kAboveZeroOrUnsetText, 1},
    {},
};

const char kInvalidRangeText[] =
    "Invalid range (%i, %i) set for %s.\n \t\t\t\t\t\t\t\tIt is invalid to specify that the upper "
    "page number be negative \t\t\t\t\t\t\t\tif the lower page number is zero or positive, "
    "\t\t\t\t\t\t\t\texcept for the case 0~-1 \t\t\t\t\t\t\t\tunless the lower and upper page "
    "numbers are the same negative page number.";

bool holdsRange(zundo_range_s *const *field) { return field != nullptr && field[0] != nullptr; }

// An insert sheet names either its pages or its sheets; an upper page
// counted from the end below -1 cannot follow a lower page counted from the
// start.
zundo_status_t validateInsertSheet(void *data, const char *name,
                                   zundo_int_attribute_s *attribute) {
    zundo_status_t status = applyRules(sheetRules, name, attribute);
    if (status != ZUNDO_OK || !hasValue(attribute)) return status;
    const auto *sheet = static_cast<const zundo_insert_sheet_data_s *>(data);
    bool pages = std::strcmp(name, "insert-sheet-pages") == 0;
    if (!pages && std::strcmp(name, "insert-sheet-sheets") != 0) return ZUNDO_OK;
    if (holdsRange(pages ? sheet->sheets : sheet->pages)) {
        if (pages)
            zundo_trace("Cannot set INSERT_SHEET_PAGES because "
                        "INSERT_SHEET_SHEETS is already set.");
        else
            zundo_trace("Cannot set INSERT_SHEET_SHEETS because "
                        "INSERT_SHEET_PAGES is already set.");
        return ZUNDO_INVALID_ARGUMENT;
    }
    for (int i = 0; i < attribute->count; i++) {
        const auto *range = static_cast<const zundo_range_s *>(valueAt(attribute, i));
        if (range == nullptr || getLower(range) < 0 || getUpper(range) >= -1) continue;
        zundo_trace(kInvalidRangeText, getLower(range), getUpper(range), name);
        return ZUNDO_INVALID_ARGUMENT;
    }
    return ZUNDO_OK;
}

}  // namespace

ZUNDO_CODE_FEATURE(BannerSheet, banner_sheet, BANNER_SHEET, sheetRules, "banner-sheet-type")
ZUNDO_FEATURE(SeparatorSheet, separator_sheet, SEPARATOR_SHEET, checkRules<sheetRules>)

extern "C" zundo_status_t newSeparatorSheet(zundo_int_object_s **out, int type,
                                            zundo_int_object_s *media) {
    return buildFeature<SeparatorSheetType>(
        out, "newSeparatorSheet",
        {integerValue("separator-sheet-type", type),
         ownedValue("separator-sheet-media", ZUNDO_KIND_OBJECT, media)});
}

ZUNDO_FEATURE_TYPE(Container, container, CONTAINER, checkRules<sheetRules>, nullptr, nullptr,
                   compareContainerAttrValue)

extern "C" zundo_status_t newContainer(zundo_int_object_s **out, const char *format,
                                       const char *fileName) {
    return buildFeature<ContainerType>(
        out, "newContainer",
        {textValue("container-filename", fileName), textValue("container-format", format)});
}

extern "C" int containerEquals(const zundo_int_object_s *a, const zundo_int_object_s *b) {
    if (a == b) return 1;
    if (a == nullptr || b == nullptr || a->type == nullptr || b->type == nullptr ||
        std::strcmp(a->type, b->type) != 0)
        return 0;
    for (const zundo_attribute_info_s *row = typeTable<ContainerType>()->table;
         row->name != nullptr; row++) {
        zundo_int_attribute_s *first = get(const_cast<zundo_int_object_s *>(a), row->name);
        zundo_int_attribute_s *second = get(const_cast<zundo_int_object_s *>(b), row->name);
        int equal = attributesEqual(first, second);
        destroyAttribute(first);
        destroyAttribute(second);
        if (!equal) return 0;
    }
    return 1;
}

ZUNDO_FEATURE(InsertSheet, insert_sheet, INSERT_SHEET, validateInsertSheet)

extern "C" zundo_status_t newInsertSheet(zundo_int_object_s **out, int position,
                                         zundo_range_s *const *pages, zundo_int_object_s *media) {
    return buildFeature<InsertSheetType>(
        out, "newInsertSheet",
        {ownedValues("insert-sheet-pages", ZUNDO_KIND_RANGE, pages),
         ownedValue("insert-sheet-media", ZUNDO_KIND_OBJECT, media),
         integerValue("insert-sheet-position", position)});
}

// Built like an insert sheet without pages and media, then given its sheets.
extern "C" zundo_status_t newInsertSheetWithSheets(zundo_int_object_s **out, int position,
                                                   zundo_range_s *const *sheets) {
    return buildFeature<InsertSheetType>(
        out, "newInsertSheet",
        {integerValue("insert-sheet-position", position),
         ownedValues("insert-sheet-sheets", ZUNDO_KIND_RANGE, sheets)});
}
