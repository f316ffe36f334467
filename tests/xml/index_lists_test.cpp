// Index lists of partitioned resources, the partition match rule and page
// tokens.
#include "xml/index_lists.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "jdf_test_support.h"

XERCES_CPP_NAMESPACE_USE

namespace {

using Texts = std::vector<std::string>;

Texts pages(const char *text) {
    char **tokens = nullptr;
    EXPECT_EQ(ZUNDO_OK, parsePages(text, &tokens));
    Texts flat = flatten(tokens);
    freePageTokens(tokens);
    return flat;
}

TEST(IndexLists, PageTokens) {
    EXPECT_EQ((Texts{"1~3", "8"}), pages("1 ~ 3 5~ 8"));
    EXPECT_EQ((Texts{"0", "2", "5~7"}), pages("  0 2  5~7 "));
    EXPECT_EQ((Texts{"4~9"}), pages("4  ~  9 ~5 ~"));
    EXPECT_TRUE(pages("").empty());
    char **tokens = nullptr;
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, parsePages("1", nullptr));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, parsePages(nullptr, &tokens));
    freePageTokens(nullptr);
}

TEST(IndexLists, RunIndexContainsWholeTokensOnly) {
    EXPECT_EQ(1, runIndexContains("0 ~ 3 7", "7"));
    EXPECT_EQ(1, runIndexContains("0 ~ 3 7", "0~3"));
    EXPECT_EQ(0, runIndexContains("0 ~ 3 7", "3"));
    EXPECT_EQ(1, runIndexContains("0~4", "0~4"));
    EXPECT_EQ(0, runIndexContains("0~4", "2"));
    EXPECT_EQ(1, runIndexContains("10 11 1", "1"));
    EXPECT_EQ(0, runIndexContains("10 11", "1"));
    EXPECT_EQ(0, runIndexContains("~1 1", "1"));
    EXPECT_EQ(0, runIndexContains(nullptr, "1"));

    EXPECT_EQ(1, partitionMatches(nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(1, partitionMatches("1", nullptr, "1", nullptr));
    EXPECT_EQ(0, partitionMatches("1", nullptr, "10", "1"));
    EXPECT_EQ(0, partitionMatches("1", nullptr, nullptr, "1"));
    EXPECT_EQ(1, partitionMatches(nullptr, "5", nullptr, "0 5~6 5"));
    EXPECT_EQ(1, partitionMatches("0", "2", "0", "0 2"));
    EXPECT_EQ(0, partitionMatches("0", "2", "1", "0 2"));
    EXPECT_EQ(0, partitionMatches("0", "2", "0", "0 3"));
}

TEST(IndexLists, ConsecutiveRepeatsCollapse) {
    AttributeEntry entries[] = {{"A", "v", "d0", "0"},
                                {"B", "v", "d0", "0"},
                                {"C", "v", "d1", "1"},
                                {"D", "v", "d0", "0"},
                                {"E", "v", nullptr, nullptr}};
    AttributeEntry *list[] = {&entries[0], &entries[1], &entries[2],
                              &entries[3], &entries[4], nullptr};
    const char **index = nullptr;
    ASSERT_EQ(ZUNDO_OK, createRunIndexListFromAttrs(list, &index));
    EXPECT_EQ((Texts{"0", "1", "0"}), flatten(index));
    EXPECT_EQ(entries[0].secondKey, index[0]);
    std::free(index);
    ASSERT_EQ(ZUNDO_OK, createDocIndexListFromAttrs(list, &index));
    EXPECT_EQ((Texts{"d0", "d1", "d0"}), flatten(index));
    std::free(index);
    ASSERT_EQ(ZUNDO_OK, createDocIndexListFromElements(nullptr, &index));
    EXPECT_TRUE(flatten(index).empty());
    std::free(index);
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, createRunIndexListFromElements(nullptr, nullptr));

    ElementEntry elements[] = {{nullptr, "MediaRef", "d0", "2"},
                               {nullptr, "MediaRef", "d1", "3"},
                               {nullptr, "MediaRef", "d0", "4"}};
    ElementEntry *elementList[] = {&elements[0], &elements[1], &elements[2], nullptr};
    AttributeEntry *attrList[] = {&entries[2], &entries[0], nullptr};
    index = static_cast<const char **>(std::calloc(1, sizeof(char *)));
    ASSERT_EQ(ZUNDO_OK, getDocSpecificRunIndexList(elementList, attrList, "d0", &index));
    EXPECT_EQ((Texts{"2", "4", "0"}), flatten(index));
    ASSERT_EQ(ZUNDO_OK, getDocSpecificRunIndexList(elementList, attrList, "7", &index));
    EXPECT_TRUE(flatten(index).empty());
    std::free(index);
}

const char *const kPartitionedDpp =
    "<DigitalPrintingParams ID=\"DPP0\" PartIDKeys=\"DocIndex DocRunIndex\">"
    "<DigitalPrintingParams DocIndex=\"0\" Sides=\"OneSided\">"
    "<DigitalPrintingParams DocRunIndex=\"0~1\" Collate=\"true\"/>"
    "<DigitalPrintingParams DocRunIndex=\"2\"><MediaRef rRef=\"M0\"/></DigitalPrintingParams>"
    "</DigitalPrintingParams>"
    "<DigitalPrintingParams DocIndex=\"0\" Sides=\"TwoSided\"/>"
    "<DigitalPrintingParams DocIndex=\"1\"><MediaRef rRef=\"M1\"/></DigitalPrintingParams>"
    "<DigitalPrintingParams Run=\"r0\"><DigitalPrintingParams RunIndex=\"3 4\" "
    "Collate=\"false\"/></DigitalPrintingParams>"
    "</DigitalPrintingParams>";

TEST(IndexLists, DocumentIndexListOfAResource) {
    ParsedTicket ticket(kPartitionedDpp);
    const char **index = nullptr;
    AttributeEntry **attrs = nullptr;
    ElementEntry **elements = nullptr;
    TraceCapture trace;
    ASSERT_EQ(ZUNDO_OK, getDocIndexList(ticket.root(), &index, &attrs, &elements));
    // Attribute values first, then element values, each collapsed.
    EXPECT_EQ((Texts{"0", "0", "1"}), flatten(index));
    EXPECT_EQ((Texts{"Sides=OneSided [0|-]", "Sides=TwoSided [0|-]"}), flatten(attrs));
    EXPECT_EQ(">> Entering getDocIndexList \n", TraceCapture::lines().front());
    EXPECT_EQ("<< Leaving getDocIndexList \n", TraceCapture::lines().back());
    std::free(index);
    freeAttrList(attrs);
    freeElementList(elements);

    EXPECT_EQ(ZUNDO_ERROR, getDocIndexList(nullptr, &index, &attrs, &elements));
    EXPECT_TRUE(trace.saw("call to getDocIndexLvlAttrs failed for resource \n"));
    EXPECT_EQ(nullptr, index);
}

TEST(IndexLists, RunIndexListDependsOnTheOwner) {
    ParsedTicket ticket(kPartitionedDpp);
    zundo_int_object_s *job = nullptr;
    zundo_int_object_s *document = nullptr;
    ASSERT_EQ(ZUNDO_OK, newJobNoDocument(&job));
    ASSERT_EQ(ZUNDO_OK, newDocument(&document, nullptr));
    const char **index = nullptr;
    AttributeEntry **attrs = nullptr;
    ElementEntry **elements = nullptr;

    ASSERT_EQ(ZUNDO_OK, getRunIndexList(ticket.root(), job, &index, &attrs, &elements));
    EXPECT_EQ((Texts{"3 4"}), flatten(index));
    EXPECT_EQ((Texts{"Collate=false [r0|3 4]"}), flatten(attrs));
    std::free(index);
    freeAttrList(attrs);
    freeElementList(elements);

    ASSERT_EQ(ZUNDO_OK, getRunIndexList(ticket.root(), document, &index, &attrs, &elements));
    EXPECT_EQ((Texts{"0~1", "2"}), flatten(index));
    EXPECT_EQ((Texts{"MediaRef [0|2]"}), flatten(elements));
    // Narrowed to one document, the list keeps the element values first.
    ASSERT_EQ(ZUNDO_OK, getDocSpecificRunIndexList(elements, attrs, "0", &index));
    EXPECT_EQ((Texts{"2", "0~1"}), flatten(index));
    std::free(index);
    freeAttrList(attrs);
    freeElementList(elements);
    destroy(job);
    destroy(document);
}

}  // namespace
