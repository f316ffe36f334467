// Value objects without a text form: binary objects, start pages and
// modification records, including what a modification record owns.
#include <gtest/gtest.h>

#include <cstring>

#include "support/sample_type.h"
#include "zundo.h"

namespace {

zundo_date_time_s *dateTimeOf(const char *text) {
    zundo_date_time_s *dateTime = nullptr;
    EXPECT_EQ(newDateTimeFromString(&dateTime, text), ZUNDO_OK);
    return dateTime;
}

zundo_modified_s *modifiedAt(const char *when, const char *by) {
    zundo_modified_s *modified = nullptr;
    zundo_date_time_s *dateTime = dateTimeOf(when);
    EXPECT_EQ(newModified(&modified, dateTime, by), ZUNDO_OK);
    return modified;
}

}  // namespace

TEST(ValueBinaryObject, KeepsItsOwnCopy) {
    unsigned char bytes[] = {0, 1, 2, 255};
    zundo_binary_object_s *binary = nullptr, *copy = nullptr;
    EXPECT_EQ(newBinaryObject(&binary, nullptr, 4), ZUNDO_INVALID_ARGUMENT);
    ASSERT_EQ(newBinaryObject(&binary, bytes, sizeof bytes), ZUNDO_OK);
    bytes[0] = 9;
    EXPECT_EQ(getBinaryDataLength(binary), 4u);
    EXPECT_EQ(getBinaryData(binary)[0], 0);
    ASSERT_EQ(cloneBinaryObject(&copy, binary), ZUNDO_OK);
    EXPECT_NE(getBinaryData(copy), getBinaryData(binary));
    EXPECT_EQ(compareBinaryObject(copy, binary), 0);
    destroyBinaryObject(copy);

    ASSERT_EQ(newBinaryObject(&copy, bytes, sizeof bytes), ZUNDO_OK);
    EXPECT_EQ(compareBinaryObject(copy, binary), 1);  // first byte differs
    destroyBinaryObject(copy);
    ASSERT_EQ(newBinaryObject(&copy, "", 0), ZUNDO_OK);
    EXPECT_EQ(compareBinaryObject(copy, binary), 1);
    destroyBinaryObject(copy);
    destroyBinaryObject(binary);
    EXPECT_EQ(getBinaryData(nullptr), nullptr);
}

TEST(ValueStartPage, SheetSideIsNeverZero) {
    zundo_start_page_s *startPage = nullptr, *copy = nullptr;
    EXPECT_EQ(newStartPage(&startPage, 3, 0), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(startPage, nullptr);
    ASSERT_EQ(newStartPage(&startPage, 3, 1), ZUNDO_OK);
    EXPECT_EQ(getDescription(startPage), 0);
    EXPECT_EQ(setSheetSide(startPage, 0), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(getSheetSide(startPage), 1);
    ASSERT_EQ(cloneStartPage(&copy, startPage), ZUNDO_OK);
    EXPECT_EQ(compareStartPage(copy, startPage), 0);
    ASSERT_EQ(setDescription(copy, 4), ZUNDO_OK);
    EXPECT_EQ(compareStartPage(copy, startPage), 1);
    destroyStartPage(copy);
    destroyStartPage(startPage);
    EXPECT_EQ(getSheetSide(nullptr), 0);
}

TEST(ValueModified, TextsAreCopiedAndClearedByEmptyText) {
    char author[] = "alice";
    zundo_modified_s *modified = modifiedAt("2009-03-07T14:05:00Z", author);
    author[0] = 'X';
    EXPECT_STREQ(getModifiedBy(modified), "alice");
    EXPECT_EQ(getProjectID(modified), nullptr);
    ASSERT_EQ(setProjectID(modified, "Composer"), ZUNDO_OK);
    ASSERT_EQ(setProjectVersion(modified, "2.1"), ZUNDO_OK);
    EXPECT_STREQ(getProjectID(modified), "Composer");
    ASSERT_EQ(setProjectVersion(modified, ""), ZUNDO_OK);
    EXPECT_EQ(getProjectVersion(modified), nullptr);
    ASSERT_EQ(setModifiedBy(modified, nullptr), ZUNDO_OK);
    EXPECT_EQ(getModifiedBy(modified), nullptr);

    // Replacing the date-time releases the old one (the sanitizer checks).
    ASSERT_EQ(setDateTime(modified, dateTimeOf("2010-01-01T00:00:00Z")), ZUNDO_OK);
    ASSERT_EQ(setDateTime(modified, getDateTime(modified)), ZUNDO_OK);
    EXPECT_EQ(getYear(getDateTime(modified)), 2010);
    destroyModified(modified);

    EXPECT_EQ(setModifiedType(nullptr, 1), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(getModifiedType(nullptr), 0);
    EXPECT_EQ(newModified(nullptr, nullptr, "x"), ZUNDO_INVALID_ARGUMENT);
}

TEST(ValueModified, OwnsTheValuesOfItsAttribute) {
    zundo_modified_s *modified = modifiedAt("2009-03-07T14:05:00Z", "bob");
    zundo_int_attribute_s *attribute = nullptr;
    ASSERT_EQ(newAttribute(&attribute, "job-objects", ZUNDO_KIND_OBJECT, newSample()), ZUNDO_OK);
    ASSERT_EQ(addValue(attribute, newSample()), ZUNDO_OK);
    ASSERT_EQ(setModifiedAttribute(modified, attribute), ZUNDO_OK);
    EXPECT_EQ(getModifiedAttribute(modified), attribute);

    int destroyedBefore = sampleObjectsDestroyed;
    zundo_int_attribute_s *names = nullptr;
    ASSERT_EQ(newAttribute(&names, "job-name", ZUNDO_KIND_STRING, "report"), ZUNDO_OK);
    ASSERT_EQ(setModifiedAttribute(modified, names), ZUNDO_OK);
    EXPECT_EQ(sampleObjectsDestroyed, destroyedBefore + 2);

    zundo_int_attribute_s *dates = nullptr;
    ASSERT_EQ(newAttribute(&dates, "job-dates", ZUNDO_KIND_DATE_TIME,
                           dateTimeOf("2009-03-07T14:05:00Z")),
              ZUNDO_OK);
    ASSERT_EQ(addValue(dates, nullptr), ZUNDO_OK);
    ASSERT_EQ(setModifiedAttribute(modified, dates), ZUNDO_OK);
    destroyModified(modified);
    destroyModified(nullptr);
}

TEST(ValueModified, CloneIsDeepAndComparesEqual) {
    zundo_modified_s *modified = modifiedAt("2009-03-07T14:05:00+01:00", "carol");
    ASSERT_EQ(setProjectID(modified, "Composer"), ZUNDO_OK);
    ASSERT_EQ(setModifiedType(modified, 3), ZUNDO_OK);
    zundo_int_attribute_s *attribute = nullptr;
    ASSERT_EQ(newAttribute(&attribute, "job-dates", ZUNDO_KIND_DATE_TIME,
                           dateTimeOf("2011-05-06T07:08:09Z")),
              ZUNDO_OK);
    ASSERT_EQ(setModifiedAttribute(modified, attribute), ZUNDO_OK);

    zundo_modified_s *copy = nullptr;
    ASSERT_EQ(cloneModified(&copy, modified), ZUNDO_OK);
    EXPECT_EQ(compareModified(copy, modified), 0);
    EXPECT_NE(getDateTime(copy), getDateTime(modified));
    EXPECT_NE(getModifiedAttribute(copy), getModifiedAttribute(modified));
    EXPECT_NE(getProjectID(copy), getProjectID(modified));
    EXPECT_EQ(getModifiedType(copy), 3);

    // An author present on one side only does not make them differ ...
    ASSERT_EQ(setModifiedBy(copy, nullptr), ZUNDO_OK);
    EXPECT_EQ(compareModified(copy, modified), 0);
    ASSERT_EQ(setModifiedBy(copy, "dave"), ZUNDO_OK);
    EXPECT_EQ(compareModified(copy, modified), 1);
    ASSERT_EQ(setModifiedBy(copy, "carol"), ZUNDO_OK);
    // ... but a project id does, and so do the type and the attribute.
    ASSERT_EQ(setProjectID(copy, nullptr), ZUNDO_OK);
    EXPECT_EQ(compareModified(copy, modified), 1);
    ASSERT_EQ(setProjectID(copy, "Composer"), ZUNDO_OK);
    ASSERT_EQ(setModifiedType(copy, 2), ZUNDO_OK);
    EXPECT_EQ(compareModified(copy, modified), 1);
    ASSERT_EQ(setModifiedType(copy, 3), ZUNDO_OK);
    ASSERT_EQ(setModifiedAttribute(copy, nullptr), ZUNDO_OK);
    EXPECT_EQ(compareModified(copy, modified), 1);
    ASSERT_EQ(setModifiedAttribute(modified, nullptr), ZUNDO_OK);
    EXPECT_EQ(compareModified(copy, modified), 0);
    ASSERT_EQ(setDateTime(copy, dateTimeOf("2009-03-07T13:05:01Z")), ZUNDO_OK);
    EXPECT_EQ(compareModified(copy, modified), 1);

    EXPECT_EQ(compareModified(nullptr, nullptr), 0);
    EXPECT_EQ(compareModified(copy, nullptr), 1);
    destroyModified(copy);
    destroyModified(modified);
}
