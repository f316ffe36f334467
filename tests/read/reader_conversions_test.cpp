// The text conversions the resource readers share, and how their results
// land on objects.
#include "read/reader_conversions.h"

#include <gtest/gtest.h>

#include <climits>

#include "read_test_support.h"

namespace {

TEST(ReaderConversions, TupleConversionsAreAllOrNothing) {
    double x = -1, y = -1;
    EXPECT_TRUE(convertRealPair("  612.5   792 7", &x, &y));
    EXPECT_EQ(612.5, x);
    EXPECT_EQ(792, y);
    for (const char *text :
         {"", "612", "612 abc", "abc 792", "1,5 2", static_cast<const char *>(nullptr)})
        EXPECT_FALSE(convertRealPair(text, &x, &y)) << (text ? text : "null");
    EXPECT_EQ(612.5, x);
    int a = -1, b = -1;
    EXPECT_TRUE(convertIntegerPair("0x10 010", &a, &b));
    EXPECT_EQ(16 * 100 + 8, a * 100 + b);
    EXPECT_FALSE(convertIntegerPair("1 2.5", &a, &b));
    EXPECT_EQ(16, a);

    double box[4] = {-1, -1, -1, -1};
    for (const char *text : {"1 2 3", "1 2 3 x", "1 2 34", ""})
        EXPECT_FALSE(convertRealQuadruple(text, box)) << text;
    EXPECT_EQ(-1, box[0]);
    EXPECT_TRUE(convertRealQuadruple("0 0 595.5 842", box));
    EXPECT_EQ(595.5, box[2]);
}

TEST(ReaderConversions, LeadingScansWordsAndCodes) {
    EXPECT_EQ(12.5, scanLeadingReal(" 12.5MB"));
    EXPECT_EQ(0.0, scanLeadingReal("MB"));
    EXPECT_EQ(-42, convertLeadingDecimal("-42abc"));
    EXPECT_EQ(10, convertLeadingDecimal("010"));
    EXPECT_EQ(0, convertLeadingDecimal("abc"));
    EXPECT_EQ(INT_MIN, convertLeadingDecimal("-99999999999999999999"));

    EXPECT_EQ((std::vector<std::string>{"Clicks", "Black", "OneSided"}),
              splitWords(" Clicks,Black,  OneSided ", kCommaAndBlankSeparators));
    EXPECT_EQ(std::vector<std::string>{"a,b"}, splitWords("a,b ", kBlankSeparators));
    EXPECT_TRUE(splitWords(nullptr, kBlankSeparators).empty());

    EXPECT_EQ(1, convertBoolean("true"));
    EXPECT_EQ(0, convertBoolean("false"));
    EXPECT_EQ(-1, convertBoolean("True"));
    const zundo_enum_pair_s table[] = {{3, "Three"}, {5, "Five"}, {-1, nullptr}};
    EXPECT_EQ(5, codeForJDFName(table, "Five"));
    EXPECT_EQ(0, codeForJDFName(table, "Four"));
}

struct ReaderConversionsOnJob : ::testing::Test {
    void SetUp() override {
        zundo_int_object_s *document = nullptr;
        ASSERT_EQ(ZUNDO_OK, newDocument(&document, nullptr));
        ASSERT_EQ(ZUNDO_OK, newJob(&job, document));
    }
    void TearDown() override { destroy(job); }
    zundo_int_object_s *job = nullptr;
};

TEST_F(ReaderConversionsOnJob, NumbersAreSetOnlyWhenTheyConvert) {
    EXPECT_EQ(ZUNDO_OK, setIntegerFromText(job, "job-copies", "0x0A"));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setIntegerFromText(job, "job-copies", "3 "));
    EXPECT_EQ(10, intOf(job, "job-copies"));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setRealFromText(job, "job-copies-actual", ""));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT,
              setRealPairFromText(job, "job-number-up-gutter-x", "job-number-up-gutter-y", "5"));
    EXPECT_EQ(ZUNDO_OK,
              setRealPairFromText(job, "job-number-up-gutter-x", "job-number-up-gutter-y", "1 2"));
    EXPECT_EQ(2, doubleOf(job, "job-number-up-gutter-y"));
    EXPECT_EQ(ZUNDO_OK, setIntegerPairFromText(job, "job-output-resolution-x",
                                               "job-output-resolution-y", "600 1200"));
    EXPECT_EQ(1200, intOf(job, "job-output-resolution-y"));
    const char *const box[4] = {"job-number-up-scb-lower-left-x", "job-number-up-scb-lower-left-y",
                                "job-number-up-scb-upper-right-x",
                                "job-number-up-scb-upper-right-y"};
    EXPECT_EQ(ZUNDO_OK, setRealQuadrupleFromText(job, box, "1 2 3 4"));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setRealQuadrupleFromText(job, box, "5 6 7 x"));
    EXPECT_EQ(4, doubleOf(job, box[3]));
    // A value the object refuses keeps the object's status.
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setIntegerFromText(job, "job-priority", "101"));
}

// Refused value objects must not leak: the sanitizer checks that.
TEST_F(ReaderConversionsOnJob, ValueObjectsFromText) {
    EXPECT_EQ(ZUNDO_OK, setDateTimeFromText(job, "job-print-after-time", "2009-03-07T14:05:00Z"));
    EXPECT_NE(ZUNDO_OK, setDateTimeFromText(job, "job-print-after-time", "tomorrow"));
    EXPECT_EQ("2009-03-07T14:05:00Z", dateTimeOf(job, "job-print-after-time"));
    EXPECT_NE(ZUNDO_OK, setDateTimeFromText(job, "job-name", "2009-03-07T14:05:00Z"));
    EXPECT_NE(ZUNDO_OK, setTimePeriodFromText(job, "job-name", "P0Y0M1DT02H00M"));

    zundo_int_object_s *media = nullptr;
    ASSERT_EQ(ZUNDO_OK, newMedia(&media, "plain"));
    EXPECT_EQ(ZUNDO_OK, setBinaryFromBase64(media, "media-engine-moses", "AAEC/w=="));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setBinaryFromBase64(media, "media-engine-moses", "no!"));
    EXPECT_NE(ZUNDO_OK, setBinaryFromBase64(media, "media-name", "AAEC/w=="));
    zundo_int_attribute_s *binary = get(media, "media-engine-moses");
    auto *data = static_cast<zundo_binary_object_s *>(nextValue(binary));
    ASSERT_EQ(4u, getBinaryDataLength(data));
    EXPECT_EQ(0xff, getBinaryData(data)[3]);
    destroyAttribute(binary);
    destroy(media);
}

TEST_F(ReaderConversionsOnJob, ListsGrowOrAreReleased) {
    EXPECT_EQ(ZUNDO_OK, setWordListFromText(job, "job-comments", "a  b", kBlankSeparators));
    EXPECT_EQ(ZUNDO_OK, appendAttributeValue(job, "job-comments", "c"));
    EXPECT_EQ((std::vector<std::string>{"a", "b", "c"}), textsOf(job, "job-comments"));
    EXPECT_EQ(ZUNDO_NOT_FOUND, appendAttributeValue(job, "job-no-such-list", "x"));
    EXPECT_EQ(ZUNDO_OK,
              appendAttributeValue(job, "job-destination-controller-available-functions", "Print"));
    EXPECT_EQ(
        ZUNDO_INVALID_ARGUMENT,
        appendAttributeValue(job, "job-destination-controller-available-functions", "Print Scan"));
    EXPECT_EQ(std::vector<std::string>{"Print"},
              textsOf(job, "job-destination-controller-available-functions"));

    zundo_int_object_s *first = nullptr, *second = nullptr;
    ASSERT_EQ(ZUNDO_OK, newNamedFeature(&first, "Duplex", "On"));
    ASSERT_EQ(ZUNDO_OK, newNamedFeature(&second, "Staple", "Off"));
    EXPECT_EQ(ZUNDO_OK, appendAttributeValue(job, "job-named-features", first));
    EXPECT_EQ(ZUNDO_OK, appendAttributeValue(job, "job-named-features", second));
    zundo_int_attribute_s *features = get(job, "job-named-features");
    ASSERT_EQ(2, getNumValues(features));
    EXPECT_EQ(first, nextValue(features));
    destroyAttribute(features);

    // A refused list takes its objects with it.
    zundo_int_attribute_s *list = nullptr;
    ASSERT_EQ(ZUNDO_OK, newAttribute(&list, "job-named-features", ZUNDO_KIND_OBJECT, nullptr));
    zundo_int_object_s *orphan = nullptr;
    ASSERT_EQ(ZUNDO_OK, newNamedFeature(&orphan, "Fold", "Half"));
    ASSERT_EQ(ZUNDO_OK, addValue(list, orphan));
    EXPECT_EQ(ZUNDO_NOT_FOUND, setAndReleaseAttribute(getDocuments(job)[0], list));
}

}  // namespace
