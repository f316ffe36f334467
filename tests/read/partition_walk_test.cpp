// The partition walk with a recording level setter.
#include "read/partition_walk.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "xml/index_lists.h"
#include "xml/xml_test_support.h"

namespace {

// A ticket whose job holds `documents` documents.
struct WalkTicket {
    explicit WalkTicket(int documents) {
        zundo_int_object_s *job = nullptr;
        newJobNoDocument(&job);
        for (int i = 0; i < documents; ++i) {
            zundo_int_object_s *document = nullptr;
            newDocument(&document, nullptr);
            addDocument(job, document);
        }
        newJobTicketInfoFromJob(&ticket, job);
    }
    ~WalkTicket() { destroy(ticket); }
    WalkTicket(const WalkTicket &) = delete;
    zundo_int_object_s *job() const { return getJob(ticket); }
    zundo_int_object_s *document(int i) const { return getDocuments(job())[i]; }

    zundo_int_object_s *ticket = nullptr;
};

std::string rangeText(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    std::string text;
    while (hasNextValue(attribute)) {
        auto *range = static_cast<zundo_range_s *>(nextValue(attribute));
        text += (text.empty() ? "" : " ") + std::to_string(getLower(range)) + "~" +
                std::to_string(getUpper(range));
    }
    destroyAttribute(attribute);
    return text;
}

std::vector<zundo_int_object_s *> pageRangesOf(zundo_int_object_s *owner, const char *name) {
    std::vector<zundo_int_object_s *> pageRanges;
    zundo_int_attribute_s *attribute = get(owner, name);
    while (hasNextValue(attribute))
        pageRanges.push_back(static_cast<zundo_int_object_s *>(nextValue(attribute)));
    destroyAttribute(attribute);
    return pageRanges;
}

std::string pagesOf(const std::vector<zundo_int_object_s *> &pageRanges) {
    std::string text;
    for (zundo_int_object_s *pageRange : pageRanges)
        text += (text.empty() ? "" : " ") + rangeText(pageRange, "page-range-pages");
    return text;
}

const WalkTicket *walked = nullptr;
std::vector<std::string> calls;

// "target|docFilter|runFilter|name=value ..." with the attributes the
// filters select, leaving out the resource's ID and PartIDKeys.
zundo_status_t recordCall(zundo_int_object_s **object, AttributeEntry *const *attrs,
                          ElementEntry *const *, const char *docFilter, const char *runFilter,
                          IdElement **) {
    std::string target = getObjectType(*object);
    if (target == "ZUNDO_JOB") target = "job";
    if (target == "ZUNDO_PAGE_RANGE") target = "pr" + rangeText(*object, "page-range-pages");
    zundo_int_object_s **documents = getDocuments(walked->job());
    for (int i = 0; target == "ZUNDO_DOCUMENT" && documents[i] != nullptr; ++i)
        if (*object == documents[i]) target = "doc" + std::to_string(i);
    std::string call = target + "|" + (docFilter ? docFilter : "-") + "|" +
                       (runFilter ? runFilter : "-") + "|";
    for (AttributeEntry *const *at = attrs; at != nullptr && *at != nullptr; ++at) {
        if (!partitionMatches(docFilter, runFilter, (*at)->firstKey, (*at)->secondKey) ||
            std::strcmp((*at)->name, "ID") == 0 || std::strcmp((*at)->name, "PartIDKeys") == 0)
            continue;
        call += std::string(" ") + (*at)->name + "=" + (*at)->value;
    }
    calls.push_back(call);
    return ZUNDO_OK;
}

// Reads the resource of `xml` with the recording setter.
std::vector<std::string> walk(const WalkTicket &ticket, const std::string &xml) {
    ParsedTicket parsed("<?xml version=\"1.0\"?>" + xml);
    EXPECT_EQ(ZUNDO_OK, parsed.result.status);
    walked = &ticket;
    calls.clear();
    EXPECT_EQ(ZUNDO_OK, readResource(parsed.root(), ticket.ticket, nullptr, recordCall));
    return calls;
}

// Document i is walked, once, when a DocIndex value contains i's digits;
// the setter applies only the partition whose DocIndex is i itself.
TEST(PartitionWalk, DocIndexValuesNameDocumentsBySubstring) {
    WalkTicket ticket(3);
    EXPECT_EQ((std::vector<std::string>{"job|-|-|", "doc0|0|-| A=zero", "doc1|1|-|"}),
              walk(ticket, "<DigitalPrintingParams ID=\"D\" PartIDKeys=\"DocIndex\">"
                           "<DigitalPrintingParams DocIndex=\"0\" A=\"zero\"/>"
                           "<DigitalPrintingParams DocIndex=\"10\" A=\"ten\"/>"
                           "</DigitalPrintingParams>"));
}

TEST(PartitionWalk, RunIndexTokensShareTheirPageRange) {
    WalkTicket ticket(1);
    EXPECT_EQ((std::vector<std::string>{"job|-|-| Sides=OneSided", "pr0~4|-|0~4| A=a B=b",
                                        "pr5~5|-|5| B=b", "pr10~10|-|10| C=c"}),
              walk(ticket, "<LayoutPreparationParams ID=\"L\" PartIDKeys=\"Run RunIndex\" "
                           "Sides=\"OneSided\"><LayoutPreparationParams Run=\"0\">"
                           "<LayoutPreparationParams RunIndex=\"0~4\" A=\"a\"/>"
                           "<LayoutPreparationParams RunIndex=\"0 ~ 4 5\" B=\"b\"/>"
                           "<LayoutPreparationParams RunIndex=\"10\" C=\"c\"/>"
                           "</LayoutPreparationParams></LayoutPreparationParams>"));
    std::vector<zundo_int_object_s *> before = pageRangesOf(ticket.job(), "job-page-ranges");
    EXPECT_EQ("0~4 5~5 10~10", pagesOf(before));
    // A second resource naming pages 5 reuses that page range.
    walk(ticket, "<DigitalPrintingParams ID=\"D\" PartIDKeys=\"RunIndex\">"
                 "<DigitalPrintingParams RunIndex=\"3 5\" D=\"d\"/></DigitalPrintingParams>");
    std::vector<zundo_int_object_s *> after = pageRangesOf(ticket.job(), "job-page-ranges");
    EXPECT_EQ("0~4 5~5 10~10 3~3", pagesOf(after));
    EXPECT_EQ(before[1], after[1]);
    EXPECT_EQ((std::vector<std::string>{"job|-|-|", "pr3~3|-|3| D=d", "pr5~5|-|5| D=d"}), calls);
}

TEST(PartitionWalk, DocRunIndexPartitionsMakeTheDocumentsPageRanges) {
    WalkTicket ticket(2);
    EXPECT_EQ((std::vector<std::string>{"job|-|-|", "doc1|1|-| A=one",
                                        "pr2~2|1|2| B=two C=also"}),
              walk(ticket, "<DigitalPrintingParams ID=\"D\" PartIDKeys=\"DocIndex DocRunIndex\">"
                           "<DigitalPrintingParams DocIndex=\"1\" A=\"one\">"
                           "<DigitalPrintingParams DocRunIndex=\"2\" B=\"two\" C=\"also\"/>"
                           "</DigitalPrintingParams></DigitalPrintingParams>"));
    EXPECT_EQ("2~2", pagesOf(pageRangesOf(ticket.document(1), "document-page-ranges")));
    EXPECT_TRUE(pageRangesOf(ticket.document(0), "document-page-ranges").empty());
    EXPECT_TRUE(pageRangesOf(ticket.job(), "job-page-ranges").empty());
}

// 100 documents of 100 page ranges each: every page range is made once and
// the setter sees exactly its own partition's attribute.
TEST(PartitionWalk, ManyDocumentPageRanges) {
    const int documents = 100, ranges = 100;
    std::string xml = "<DigitalPrintingParams ID=\"D\" PartIDKeys=\"DocIndex DocRunIndex\">";
    for (int d = 0; d < documents; ++d) {
        xml += "<DigitalPrintingParams DocIndex=\"" + std::to_string(d) + "\">";
        for (int r = 0; r < ranges; ++r)
            xml += "<DigitalPrintingParams DocRunIndex=\"" + std::to_string(r) + "\" P=\"" +
                   std::to_string(d) + "." + std::to_string(r) + "\"/>";
        xml += "</DigitalPrintingParams>";
    }
    WalkTicket ticket(documents);
    std::vector<std::string> seen = walk(ticket, xml + "</DigitalPrintingParams>");
    EXPECT_EQ("pr99~99|99|99| P=99.99", seen.back());
    for (int d = 0; d < documents; ++d)
        ASSERT_EQ(size_t(ranges), pageRangesOf(ticket.document(d), "document-page-ranges").size());
}

TEST(PartitionWalk, FindPageRangeAndRangeLists) {
    WalkTicket ticket(1);
    zundo_int_object_s *job = ticket.job();
    zundo_int_object_s *first = nullptr, *again = nullptr;
    EXPECT_EQ(ZUNDO_OK, findPageRangeObject(&first, job, "3~5"));
    EXPECT_EQ(ZUNDO_OK, findPageRangeObject(&again, job, "3~5"));
    EXPECT_EQ(first, again);
    EXPECT_EQ("3~5", pagesOf(pageRangesOf(job, "job-page-ranges")));

    EXPECT_EQ(ZUNDO_OK,
              readAndSetMultiplePageRangesAttribute(&job, "job-process-pages", "1 ~ 3 7 x 9"));
    EXPECT_EQ("1~3 7~7", rangeText(job, "job-process-pages"));
    EXPECT_EQ(ZUNDO_NOT_FOUND, readAndSetMultiplePageRangesAttribute(&job, "job-process-pages",
                                                                     nullptr));
}

}  // namespace
