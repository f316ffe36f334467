// Writing the RunList (pages) of a ticket: runs split at insert sheets and
// start pages, run numbers across documents, the documents' LayoutElements
// and FileSpecs, and shared containers.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "write/write_test_support.h"
#include "zundo.h"

namespace {

// The Run partitions of the RunList (pages) in document order.
std::vector<xercesc::DOMElement *> runs(const WrittenTicket &written) {
    for (xercesc::DOMElement *resource : childElements(written.pool("ResourcePool"), "RunList"))
        if (attribute(resource, "PartIDKeys") == "Run") return childElements(resource, "RunList");
    return {};
}

std::vector<std::string> runPages(const std::vector<xercesc::DOMElement *> &list) {
    std::vector<std::string> pages;
    for (xercesc::DOMElement *run : list) pages.push_back(attribute(run, "Pages"));
    return pages;
}

// "SheetType/SheetUsage/DescriptiveName" of each InsertSheet of a run.
std::vector<std::string> sheetsOf(const xercesc::DOMElement *run) {
    std::vector<std::string> sheets;
    for (xercesc::DOMElement *sheet : childElements(run, "InsertSheet"))
        sheets.push_back(attribute(sheet, "SheetType") + "/" + attribute(sheet, "SheetUsage") +
                         "/" + attribute(sheet, "DescriptiveName"));
    return sheets;
}

std::string layoutElementRef(const xercesc::DOMElement *run) {
    std::vector<xercesc::DOMElement *> refs = childElements(run, "LayoutElementRef");
    return refs.size() == 1 ? attribute(refs.front(), "rRef") : "(none)";
}

xercesc::DOMElement *fileSpecOf(const WrittenTicket &written, const std::string &documentId) {
    xercesc::DOMElement *layoutElement = written.resource(documentId);
    if (layoutElement == nullptr) return nullptr;
    std::vector<xercesc::DOMElement *> fileSpecs = childElements(layoutElement, "FileSpec");
    return fileSpecs.size() == 1 ? fileSpecs.front() : nullptr;
}

zundo_int_object_s *insertSheet(int position, int lower, int upper) {
    zundo_range_s *range = nullptr;
    EXPECT_EQ(newRange(&range, lower, upper), ZUNDO_OK);
    zundo_range_s *pages[] = {range, nullptr};
    zundo_int_object_s *sheet = nullptr;
    EXPECT_EQ(newInsertSheet(&sheet, position, pages, nullptr), ZUNDO_OK);
    return sheet;
}

zundo_int_object_s *container(const char *fileName) {
    zundo_int_object_s *made = nullptr;
    EXPECT_EQ(newContainer(&made, "application/zip", fileName), ZUNDO_OK);
    return made;
}

const int kTrailer = 1;
const int kHeader = 2;

TEST(WriteRuns, JobLevelWritesOneRunForTheFirstDocumentOnly) {
    TestTicket ticket;
    const std::string longName(5000, 'x');
    ASSERT_EQ(setStringAttribute(getDocuments(ticket.job)[0], "document-file-name",
                                 longName.c_str()),
              ZUNDO_OK);
    zundo_int_object_s *second = nullptr;
    ASSERT_EQ(newDocument(&second, "b.pdf"), ZUNDO_OK);
    ASSERT_EQ(addDocument(ticket.job, second), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);

    std::vector<xercesc::DOMElement *> list = runs(written);
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(attribute(list[0], "Run"), "0");
    EXPECT_EQ(attribute(list[0], "Pages"), "0 ~ -1");
    EXPECT_EQ(layoutElementRef(list[0]), "doc0");
    EXPECT_FALSE(list[0]->hasAttribute(u"EndOfDocument"));
    EXPECT_TRUE(sheetsOf(list[0]).empty());

    ASSERT_NE(written.resource("doc0"), nullptr);
    EXPECT_EQ(written.resource("doc1"), nullptr);
    EXPECT_EQ(written.link("doc0"), nullptr);
    EXPECT_EQ(attribute(written.resource("doc0"), "Class"), "Parameter");
    ASSERT_NE(fileSpecOf(written, "doc0"), nullptr);
    EXPECT_EQ(attribute(fileSpecOf(written, "doc0"), "URL"), longName.substr(0, 4095));
}

TEST(WriteRuns, InsertSheetsAndStartPagesSplitTheRuns) {
    TestTicket ticket;
    zundo_int_object_s *header = insertSheet(kHeader, 2, 3);
    ASSERT_EQ(setIntegerAttribute(header, "insert-sheet-content", 3), ZUNDO_OK);
    zundo_int_object_s *trailer = insertSheet(kTrailer, 6, 6);
    // Left out of the runs: an open end, and the whole document.
    zundo_int_object_s *openEnded = insertSheet(kHeader, 8, -1);
    zundo_int_object_s *wholeDocument = insertSheet(kHeader, 0, -1);
    zundo_int_object_s *sheets[] = {header, trailer, openEnded, wholeDocument, nullptr};
    ASSERT_EQ(setObjectsAttribute(ticket.job, "job-insert-sheets", sheets), ZUNDO_OK);

    zundo_start_page_s *back = nullptr;
    ASSERT_EQ(newStartPage(&back, 3, 1), ZUNDO_OK);
    ASSERT_EQ(setDescription(back, 1), ZUNDO_OK);
    zundo_start_page_s *front = nullptr;
    ASSERT_EQ(newStartPage(&front, 10, 2), ZUNDO_OK);
    zundo_int_attribute_s *startPages = nullptr;
    ASSERT_EQ(newAttribute(&startPages, "job-start-pages", "SP", back), ZUNDO_OK);
    ASSERT_EQ(addValue(startPages, front), ZUNDO_OK);
    ASSERT_EQ(set(ticket.job, startPages), ZUNDO_OK);
    destroyAttribute(startPages);

    TraceCapture trace;
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    EXPECT_TRUE(trace.saw("Invalid page range for insert sheet. Not adding to run.\n"));

    std::vector<xercesc::DOMElement *> list = runs(written);
    ASSERT_EQ(runPages(list), (std::vector<std::string>{"0 ~ 1", "2", "3 ~ 6", "7 ~ 9",
                                                        "10 ~ -1"}));
    for (size_t i = 0; i < list.size(); ++i) {
        EXPECT_EQ(attribute(list[i], "Run"), std::to_string(i));
        EXPECT_EQ(layoutElementRef(list[i]), "doc0");
    }
    EXPECT_TRUE(sheetsOf(list[0]).empty());
    EXPECT_EQ(sheetsOf(list[1]), (std::vector<std::string>{"InsertSheet/Header/Cover"}));
    // Start pages come first, then headers, then trailers.
    EXPECT_EQ(sheetsOf(list[2]),
              (std::vector<std::string>{"FillSheet/FillForceBack/Cover", "InsertSheet/Header/Cover",
                                        "InsertSheet/Trailer/"}));
    EXPECT_TRUE(sheetsOf(list[3]).empty());
    EXPECT_EQ(sheetsOf(list[4]), (std::vector<std::string>{"FillSheet/FillForceFront/"}));
    EXPECT_EQ(attribute(childElements(list[4], "InsertSheet").front(), "SheetFormat"), "Blank");
}

TEST(WriteRuns, DocumentLevelRunsNumberOnAndShareContainers) {
    TestTicket ticket;
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-level-pages", 0), ZUNDO_OK);
    zundo_int_object_s *first = getDocuments(ticket.job)[0];
    zundo_int_object_s *sheets[] = {insertSheet(kTrailer, 4, 4), nullptr};
    ASSERT_EQ(setObjectsAttribute(first, "document-insert-sheets", sheets), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(first, "document-container", container("box.zip")), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(first, "document-format", "PDF/1.4"), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(first, "document-number-pages", 12), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(first, "document-checksum", "0123456789abcdef0123456789ABCDEF"),
              ZUNDO_OK);
    const char *discard[] = {"Cyan", "Spot 1", nullptr};
    ASSERT_EQ(setStringsAttribute(first, "document-separations-to-discard", discard), ZUNDO_OK);
    zundo_int_object_s *second = nullptr;
    ASSERT_EQ(newDocument(&second, nullptr), ZUNDO_OK);
    ASSERT_EQ(addDocument(ticket.job, second), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(second, "document-container", container("box.zip")), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(second, "document-format", "application/pdf"), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);

    std::vector<xercesc::DOMElement *> list = runs(written);
    ASSERT_EQ(runPages(list), (std::vector<std::string>{"0 ~ 4", "5 ~ -1", "0 ~ -1"}));
    EXPECT_EQ(sheetsOf(list[0]), (std::vector<std::string>{"InsertSheet/Trailer/"}));
    const char *const refs[] = {"doc0", "doc0", "doc1"};
    const char *const ends[] = {"", "true", "true"};
    for (size_t i = 0; i < list.size(); ++i) {
        EXPECT_EQ(attribute(list[i], "Run"), std::to_string(i));
        EXPECT_EQ(layoutElementRef(list[i]), refs[i]);
        EXPECT_EQ(attribute(list[i], "EndOfDocument"), ends[i]);
    }

    xercesc::DOMElement *firstSpec = fileSpecOf(written, "doc0");
    xercesc::DOMElement *secondSpec = fileSpecOf(written, "doc1");
    ASSERT_NE(firstSpec, nullptr);
    ASSERT_NE(secondSpec, nullptr);
    EXPECT_EQ(attribute(firstSpec, "morvellan:NPage"), "12");
    EXPECT_EQ(attribute(firstSpec, "MimeType"), "application/pdf");
    EXPECT_EQ(attribute(firstSpec, "MimeTypeVersion"), "PDF/1.4");
    EXPECT_EQ(attribute(firstSpec, "Checksum"), "0123456789abcdef0123456789ABCDEF");
    std::vector<std::string> discarded;
    for (xercesc::DOMElement *d : childElements(firstSpec, "morvellan:DiscardPDLSeparation"))
        discarded.push_back(attribute(d, "Name"));
    EXPECT_EQ(discarded, (std::vector<std::string>{"Cyan", "Spot 1"}));
    EXPECT_TRUE(secondSpec->hasAttribute(u"URL"));
    EXPECT_EQ(attribute(secondSpec, "URL"), "");
    EXPECT_EQ(attribute(secondSpec, "MimeType"), "application/pdf");
    EXPECT_FALSE(secondSpec->hasAttribute(u"MimeTypeVersion"));

    // Equal containers are written once and referenced by both.
    ASSERT_NE(written.resource("Container0"), nullptr);
    EXPECT_EQ(written.resource("Container1"), nullptr);
    EXPECT_EQ(attribute(written.resource("Container0"), "URL"), "box.zip");
    EXPECT_EQ(attribute(written.resource("Container0"), "MimeType"), "application/zip");
    for (xercesc::DOMElement *fileSpec : {firstSpec, secondSpec}) {
        EXPECT_EQ(attribute(fileSpec, "Compression"), "Deflate");
        std::vector<xercesc::DOMElement *> holders = childElements(fileSpec, "Container");
        ASSERT_EQ(holders.size(), 1u);
        std::vector<xercesc::DOMElement *> refsTo = childElements(holders[0], "FileSpecRef");
        ASSERT_EQ(refsTo.size(), 1u);
        EXPECT_EQ(attribute(refsTo[0], "rRef"), "Container0");
    }
}

}  // namespace
