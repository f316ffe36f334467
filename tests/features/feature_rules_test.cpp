// What the feature validators refuse and with which message, and what is
// special about single types: coupled attributes, objects handed to
// constructors, the print-parameter block behind page ranges and cells.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "zundo.h"

namespace {

typedef zundo_int_object_s *Object;

std::vector<std::string> traced;

void collect(const char *message) { traced.push_back(message); }

// A new value or object, or null when its constructor refuses.
template <typename V, typename... P, typename... A>
V *made(zundo_status_t (*constructor)(V **, P...), A... arguments) {
    V *value = nullptr;
    EXPECT_EQ(ZUNDO_OK, constructor(&value, arguments...));
    return value;
}

std::string text(Object object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    std::string value = hasNextValue(attribute) ? static_cast<char *>(nextValue(attribute)) : "";
    destroyAttribute(attribute);
    return value;
}

zundo_status_t setRange(Object object, const char *name, zundo_range_s *value) {
    zundo_int_attribute_s *attribute = nullptr;
    newAttribute(&attribute, name, ZUNDO_KIND_RANGE, value);
    zundo_status_t status = set(object, attribute);
    destroyAttribute(attribute);
    return status;
}

class FeatureRules : public ::testing::Test {
protected:
    void SetUp() override {
        setenv("DEBUG_ZUNDO", "1", 1);
        enableTraceCallback(1, collect);
        traced.clear();
    }
    void TearDown() override {
        disableTraceCallback();
        unsetenv("DEBUG_ZUNDO");
        for (Object object : owned) destroy(object);
    }

    Object own(Object object) {
        owned.push_back(object);
        return object;
    }

    // Whether a traced message is `message` (or starts with it).
    static bool tracedMessage(const std::string &message, bool whole = true) {
        for (const std::string &line : traced)
            if (line == message || (!whole && line.compare(0, message.size(), message) == 0))
                return true;
        return false;
    }

    std::vector<Object> owned;
};

// One refusal of each family of rules.
struct Refusal {
    Object (*make)();
    const char *name;
    const char *kind;
    int integer;
    double real;
    const char *text;
    const char *message;
};

Object stitching() { return made(newStitching, 2, 1, 3); }
Object container() { return made(newContainer, "application/zip", "a.zip"); }

const Refusal kRefusals[] = {
    {stitching, "stitching-type", "I", 0, 0, nullptr,
     "Attempted to unset required attribute stitching-type.\n"},
    {stitching, "stitching-angle", "I", 360, 0, nullptr,
     "Attempted to set stitching-angle to 360, must be \t\t\t\t\t\t\tbetween 0-359, or -1 for not "
     "set.\n"},
    {stitching, "stitching-count", "I", 0, 0, nullptr,
     "Attempted to set stitching-count to 0, must be \t\t\t\t\t\t\tgreater than 0, or -1 for not "
     "set.\n"},
    {[] { return made(newBinding, 1, 1); }, "binding-output-bin-name", "S", 0, 0, " \t ",
     "Attempted to set binding-output-bin-name to empty string or a string that contains only "
     "spaces.\n"},
    {container, "container-format", "S", 0, 0, "",
     "Invalid attempt to set container-format to NULL or empty string"},
    {container, "container-format", "S", 0, 0, "text/ plain",
     "Attempted to set container-format to text/ plain, Spaces are not allowed.\n"},
    {[] { return made(newMark, "%s", 0, 1.0, 1.0); }, "mark-tab", "I", 2, 0, nullptr,
     "Attempted to set mark-tab to 2, must be true, false, or not_set.\n"},
    {[] { return made(newHole, 1.0, 1.0, 1.0, 1.0, 1); }, "hole-center-x", "D", 0, 0.0, nullptr,
     "Attempted to set hole-center-x to 0.000000e+00, must be greater than 0.\n"},
    {[] { return made(newColorPlane, "Spot"); }, "color-plane-color-black", "D", 0, 1.5, nullptr,
     "Attempted to set color-plane-color-black to 1.5, must be in the range [0.0, 1.0] or equal "
     "to -1.\n"},
    // A real value printed by an integer directive shows its integer part.
    {[] { return made(newInkUsage, 1); }, "ink-usage-amount", "D", 0, -5.5, nullptr,
     "Attempted to set ink-usage-amount to -5, must be greater than or equal to 0.\n"},
    {[] { return made(newRetain, 1); }, "retain-priority", "I", 101, 0, nullptr,
     "Attempted to set retain-priority to 101, must be a value between 0 and 100.\n"},
    {[] { return made(newScreening, "AM", 100.0); }, "screening-frequency", "D", 0, -1.0, nullptr,
     "screening-frequency must be set >= 0."},
    {[] { return made(newNamedFeature, "Duplex", "On"); }, "named-feature-name", "S", 0, 0,
     "Two words",
     "Attempted to set named-feature-name to Two words. Spaces or empty strings are not "
     "allowed.\n"},
};

TEST_F(FeatureRules, EachRuleFamilyRefusesWithItsMessageAndKeepsTheObject) {
    for (const Refusal &r : kRefusals) {
        Object object = own(r.make());
        zundo_int_attribute_s *before = get(object, r.name);
        const void *value = r.text;
        if (std::string(r.kind) == "I") value = &r.integer;
        if (std::string(r.kind) == "D") value = &r.real;
        zundo_int_attribute_s *offered = nullptr;
        ASSERT_EQ(ZUNDO_OK, newAttribute(&offered, r.name, r.kind, value));
        traced.clear();
        EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, set(object, offered)) << r.name;
        EXPECT_TRUE(tracedMessage(r.message)) << r.message;
        zundo_int_attribute_s *after = get(object, r.name);
        EXPECT_EQ(1, attributesEqual(before, after)) << r.name;
        destroyAttribute(before);
        destroyAttribute(after);
        destroyAttribute(offered);
    }
}

TEST_F(FeatureRules, NumbersAreCheckedWhenSetOrWhenTheRuleSaysAlways) {
    Object out = nullptr;
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newStitching(&out, 2, 0, 0));
    EXPECT_EQ(nullptr, out);
    Object unset = own(made(newStitching, -1, 0, 1));
    EXPECT_EQ(ZUNDO_OK, setIntegerAttribute(unset, "stitching-angle", -1));
    zundo_int_attribute_s *angle = get(unset, "stitching-angle");
    EXPECT_EQ(0, hasNextValue(angle));
    destroyAttribute(angle);

    Object sheet = own(made(newSeparatorSheet, 1, nullptr));
    EXPECT_EQ(ZUNDO_OK, setIntegerAttribute(sheet, "separator-sheet-amount", 1));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setIntegerAttribute(sheet, "separator-sheet-amount", 0));
    // A pitch has no not-set value.
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT,
              setDoubleAttribute(own(made(newHoleLineEmpty)), "hole-line-pitch", 0));
}

TEST_F(FeatureRules, TextRulesLookAtEveryValue) {
    Object pageRange = own(made(newPageRange, nullptr, nullptr));
    const char *models[] = {"CMYK", "Gray", nullptr};
    EXPECT_EQ(ZUNDO_OK, setStringsAttribute(pageRange, "page-range-process-color-model", models));
    models[1] = "Spot colour";
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT,
              setStringsAttribute(pageRange, "page-range-process-color-model", models));
    EXPECT_TRUE(tracedMessage("Attempted to set page-range-process-color-model to Spot colour, "
                              "Spaces are not allowed.\n"));
}

TEST_F(FeatureRules, CustomDimensionsNameTheMediaCustom) {
    Object media = own(made(newMedia, "A4"));
    const char *flag = "media-operator-intervention-for-custom-dimension";
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setIntegerAttribute(media, flag, 2));
    EXPECT_EQ("A4", text(media, "media-name"));
    ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(media, flag, 1));
    EXPECT_EQ("Custom", text(media, "media-name"));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setStringAttribute(media, "media-name", "Letter"));
    EXPECT_TRUE(tracedMessage("Value of MEDIA_NAME must be CUSTOM when value of "
                              "MEDIA_OPERATOR_INTERVENTION_FOR_CUSTOM_DIMENSION=true"));
    EXPECT_EQ(ZUNDO_OK, setIntegerAttribute(media, flag, 0));
    EXPECT_EQ(ZUNDO_OK, setStringAttribute(media, "media-name", "Letter"));
}

TEST_F(FeatureRules, SwappedMediaEqualsItsTurnedTwin) {
    Object a = own(made(newMedia, "A4"));
    Object b = own(made(newMedia, "A4"));
    setDoubleAttribute(a, "media-x-dimension", 210);
    setDoubleAttribute(a, "media-y-dimension", 297);
    setDoubleAttribute(b, "media-x-dimension", 297);
    setDoubleAttribute(b, "media-y-dimension", 210);
    EXPECT_EQ(0, mediaEquals(a, b));
    swapDimensions(a);
    EXPECT_EQ(1, mediaEquals(a, b));
}

TEST_F(FeatureRules, NotificationsNeedEventsAndMatchingAddressees) {
    const char *events[] = {"morvellan:JobDone", nullptr};
    const char *sendTo[] = {"ops@example.com", nullptr};
    Object out = nullptr;
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newNotification(&out, nullptr, events, 2));
    EXPECT_TRUE(tracedMessage("sendTo can only be NULL if deliveryType is ND_NOT_SET \n"));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newNotification(&out, sendTo, nullptr, 1));
    EXPECT_TRUE(tracedMessage("eventsToDeliver can not be NULL\n"));
    Object notification = own(made(newNotification, nullptr, events, 0));

    const char *withNone[] = {"morvellan:None", "morvellan:JobDone", nullptr};
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT,
              setStringsAttribute(notification, "notification-events", withNone));
    EXPECT_TRUE(tracedMessage("If notification-events contains the NONE value, it "
                              "\t\t\t\t\t\t\tmust be the only event specified. \n"));
    const char *blank[] = {"morvellan:JobDone", " ", nullptr};
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT,
              setStringsAttribute(notification, "notification-events", blank));
    EXPECT_EQ(ZUNDO_OK, setStringsAttribute(notification, "notification-events", withNone + 1));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT,
              setStringsAttribute(notification, "notification-events", nullptr));
    EXPECT_EQ("morvellan:JobDone", text(notification, "notification-events"));
}

TEST_F(FeatureRules, InsertSheetsHoldPagesOrSheets) {
    zundo_range_s *pages[] = {made(newRange, 2, -1), nullptr};
    Object byPages = own(made(newInsertSheet, 1, pages, nullptr));
    zundo_range_s *other = made(newRange, 0, 0);
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setRange(byPages, "insert-sheet-sheets", other));
    EXPECT_TRUE(tracedMessage(
        "Cannot set INSERT_SHEET_SHEETS because INSERT_SHEET_PAGES is already set."));
    destroyRange(other);
    other = made(newRange, 2, -3);
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setRange(byPages, "insert-sheet-pages", other));
    EXPECT_TRUE(tracedMessage("Invalid range (2, -3) set for insert-sheet-pages.\n", false));
    destroyRange(other);

    zundo_range_s *sheets[] = {made(newRange, 1, 1), nullptr};
    Object bySheets = own(made(newInsertSheetWithSheets, 1, sheets));
    zundo_range_s *all = made(newRange, 0, -1);
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setRange(bySheets, "insert-sheet-pages", all));
    EXPECT_EQ(ZUNDO_OK, setRange(bySheets, "insert-sheet-sheets", nullptr));
    EXPECT_EQ(ZUNDO_OK, setRange(bySheets, "insert-sheet-pages", all));
}

// The sanitizer build fails these on a leak or a second destroy.
TEST_F(FeatureRules, FailingConstructorsDestroyWhatTheyWereGiven) {
    Object out = nullptr;
    zundo_range_s *pages[] = {made(newRange, 0, -1), made(newRange, 2, -3), nullptr};
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newInsertSheet(&out, 1, pages, made(newMedia, "A4")));
    EXPECT_EQ(nullptr, out);
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT,
              newHoleLine(&out, -1.0, made(newHole, 1.0, 1.0, 2.0, 2.0, 1)));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT,
              newNotificationAudit(&out, 0, made(newDateTime, 1, 2, 3, 4, 5, 2006, 0)));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newNamedFeature(&out, "Two words", "On"));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newNamedFeature(&out, "Duplex", nullptr));
    EXPECT_TRUE(tracedMessage("Attempted to set named-feature-value-value to invalid value: "
                              "NULL.\n"));
    EXPECT_EQ(nullptr, out);
}

TEST_F(FeatureRules, RequiredConstructorArgumentsAreRefused) {
    Object out = nullptr;
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newFolding(&out, nullptr));
    EXPECT_TRUE(tracedMessage("Type must be specified to create a Folding.\n"));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newContainer(&out, nullptr, "a.zip"));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newContainer(&out, "", "a.zip"));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newMark(&out, nullptr, 0, 1, 1));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newPageCellInfo(&out, nullptr));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newHole(&out, 1, 1, 1, 1, 0));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newPhaseTime(&out, 1, "Press", nullptr, nullptr));
    EXPECT_EQ(nullptr, out);
}

TEST_F(FeatureRules, ContainersAreEqualByFileNameAndFormat) {
    Object a = own(container());
    Object c = own(made(newContainer, "application/zip", "b.zip"));
    EXPECT_EQ(1, containerEquals(a, own(container())));
    EXPECT_EQ(1, containerEquals(a, a));
    EXPECT_EQ(0, containerEquals(a, c));
    EXPECT_EQ(0, containerEquals(a, nullptr));
    EXPECT_EQ(0, containerEquals(a, own(made(newMedia, nullptr))));
}

TEST_F(FeatureRules, PageRangesAndCellsCloneAndCompareTheirBlock) {
    Object pageRange = own(made(newPageRange, nullptr, made(newMedia, "A4")));
    zundo_int_attribute_s *pages = get(pageRange, "page-range-pages");
    auto *all = static_cast<zundo_range_s *>(nextValue(pages));
    EXPECT_EQ(0, getLower(all));
    EXPECT_EQ(-1, getUpper(all));
    destroyAttribute(pages);
    ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(pageRange, "page-range-sides", 2));

    Object copy = own(cloneObj(pageRange));
    EXPECT_EQ(0, comparePageRange(pageRange, copy));
    Object copyOfCopy = own(cloneObj(copy));
    EXPECT_EQ(0, comparePageRange(pageRange, copyOfCopy));
    ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(copy, "page-range-sides", 1));
    EXPECT_EQ(1, comparePageRange(pageRange, copy));

    Object cell = own(made(newPageCellInfo, made(newRange, 0, 1)));
    ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(cell, "page-cell-number-up-x", 2));
    Object cellCopy = own(made(clonePageCell, cell));
    EXPECT_EQ(0, comparePageCell(cell, cellCopy));
    ASSERT_EQ(ZUNDO_OK, setIntegerAttribute(cellCopy, "page-cell-number-up-x", 3));
    EXPECT_EQ(1, comparePageCell(cell, cellCopy));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setRange(cell, "page-cell-cells", nullptr));
}

}  // namespace
