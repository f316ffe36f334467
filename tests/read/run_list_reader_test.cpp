// RunLists and RunListLinks read through the public entry point.
#include "read/run_list_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "read/read_test_support.h"
#include "read/reader_conversions.h"
#include "xml/xml_test_support.h"

namespace {

std::string rangeText(const zundo_range_s *range) {
    return std::to_string(getLower(range)) + "~" + std::to_string(getUpper(range));
}

// "lower~upper" per range, blank-separated.
std::string rangesOf(zundo_int_object_s *object, const char *name) {
    std::string texts;
    zundo_int_attribute_s *attribute = get(object, name);
    while (hasNextValue(attribute))
        texts += (texts.empty() ? "" : " ") +
                 rangeText(static_cast<zundo_range_s *>(nextValue(attribute)));
    destroyAttribute(attribute);
    return texts;
}

// "position:pages copies content" per insert sheet.
std::vector<std::string> insertSheetsOf(zundo_int_object_s *owner, const char *name) {
    std::vector<std::string> sheets;
    zundo_int_attribute_s *attribute = get(owner, name);
    while (hasNextValue(attribute)) {
        auto *sheet = static_cast<zundo_int_object_s *>(nextValue(attribute));
        sheets.push_back(std::to_string(intOf(sheet, "insert-sheet-position")) + ":" +
                         rangesOf(sheet, "insert-sheet-pages") + " " +
                         std::to_string(intOf(sheet, "insert-sheet-copies")) + " " +
                         std::to_string(intOf(sheet, "insert-sheet-content")));
    }
    destroyAttribute(attribute);
    return sheets;
}

// "page/side/description" per start page.
std::vector<std::string> startPagesOf(zundo_int_object_s *owner, const char *name) {
    std::vector<std::string> pages;
    zundo_int_attribute_s *attribute = get(owner, name);
    while (hasNextValue(attribute)) {
        auto *page = static_cast<zundo_start_page_s *>(nextValue(attribute));
        pages.push_back(std::to_string(getPage(page)) + "/" + std::to_string(getSheetSide(page)) +
                        "/" + std::to_string(getDescription(page)));
    }
    destroyAttribute(attribute);
    return pages;
}

std::string runListTicket(const std::string &runs, const std::string &linkAttributes = "",
                          const std::string &pageList = "") {
    return jdfTicket(pools(
        "<LayoutElement ID=\"LE0\"/><LayoutElement ID=\"LE1\"/>"
        "<RunList ID=\"RL\" Class=\"Parameter\" Status=\"Available\" PartIDKeys=\"Run\">" +
            pageList + runs + "</RunList>",
        "<RunListLink rRef=\"RL\" Usage=\"Input\" " + linkAttributes + "/>"));
}

const int kUnset = -1;

TEST(RunListReader, InsertSheetsAndStartPagesOfTheJobsRuns) {
    ReadTicket read(runListTicket(
        "<RunList Run=\"0\" Pages=\"0~4\"><LayoutElementRef rRef=\"LE0\"/></RunList>"
        "<RunList Run=\"1\" Pages=\"5~6 8~9\"><LayoutElementRef rRef=\"LE1\"/>"
        " <InsertSheet SheetType=\"InsertSheet\" SheetUsage=\"Header\" DescriptiveName=\"Tab\">"
        "  <RunList PageCopies=\"2\"/></InsertSheet>"
        " <InsertSheet SheetType=\"InsertSheet\" SheetUsage=\"Trailer\"/>"
        " <InsertSheet SheetType=\"FillSheet\" SheetUsage=\"FillForceFront\" "
        "  DescriptiveName=\"Cover\"/>"
        " <InsertSheet SheetType=\"InsertSheet\"/>"
        "</RunList>"));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    EXPECT_EQ(1, intOf(read.job(), "job-level-pages"));
    // A header goes before the first page of each page record of its Run, a
    // trailer after the last; each sheet is read once although both Runs
    // name a layout element.
    EXPECT_EQ((std::vector<std::string>{"2:5~5 8~8 2 3", "1:6~6 9~9 -12345 -12345"}),
              insertSheetsOf(read.job(), "job-insert-sheets"));
    // One start page, at the first page of the Run's first record.
    EXPECT_EQ((std::vector<std::string>{"5/2/1"}), startPagesOf(read.job(), "job-start-pages"));
}

TEST(RunListReader, EndOfDocumentHandsTheSheetsToTheDocuments) {
    ReadTicket read(runListTicket(
        "<RunList Run=\"0\" Pages=\"0~4\"><LayoutElementRef rRef=\"LE0\"/></RunList>"
        "<RunList Run=\"1\" Pages=\"0~2\" EndOfDocument=\"true\">"
        " <LayoutElementRef rRef=\"LE1\"/>"
        " <InsertSheet SheetType=\"InsertSheet\" SheetUsage=\"Trailer\"/>"
        " <InsertSheet SheetType=\"FillSheet\" SheetUsage=\"FillForceBack\"/></RunList>"));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    EXPECT_EQ(0, intOf(read.job(), "job-level-pages"));
    zundo_int_object_s **documents = getDocuments(read.job());
    ASSERT_NE(nullptr, documents[0]);
    ASSERT_NE(nullptr, documents[1]);
    EXPECT_TRUE(insertSheetsOf(documents[0], "document-insert-sheets").empty());
    EXPECT_EQ((std::vector<std::string>{"1:2~2 -12345 -12345"}),
              insertSheetsOf(documents[1], "document-insert-sheets"));
    EXPECT_EQ((std::vector<std::string>{"0/1/0"}),
              startPagesOf(documents[1], "document-start-pages"));
    EXPECT_TRUE(insertSheetsOf(read.job(), "job-insert-sheets").empty());
}

// A RunList that feeds a single process is not the job's content; its
// PageList is read all the same.
TEST(RunListReader, SingleCombinedProcessIndexStopsAfterThePageList) {
    const std::string runs = "<RunList Run=\"0\" Pages=\"0~4\" EndOfDocument=\"true\"/>";
    const std::string pageList =
        "<PageList><PageData morvellan:Pages=\"0~3\" PageLabelPrefix=\"A-\" "
        "morvellan:PrintPages=\"false\"/><ColorPool ColorantSetName=\"SWOP\"/></PageList>";
    const struct {
        const char *link;
        int levelPages;
    } cases[] = {
        {"CombinedProcessIndex=\"2\"", kUnset}, {"CombinedProcessIndex=\"0 1\"", 0}, {"", 0}};
    for (const auto &c : cases) {
        ReadTicket read(runListTicket(runs, c.link, pageList));
        ASSERT_EQ(ZUNDO_OK, read.result.status) << c.link;
        EXPECT_EQ(c.levelPages, intOf(read.job(), "job-level-pages", kUnset)) << c.link;
        EXPECT_EQ(3, intOf(read.job(), "job-color-standard")) << c.link;
        zundo_int_attribute_s *paginations = get(read.job(), "job-paginations");
        ASSERT_EQ(1, getNumValues(paginations)) << c.link;
        auto *pagination = static_cast<zundo_int_object_s *>(nextValue(paginations));
        EXPECT_EQ("0~3", rangesOf(pagination, "pagination-pages"));
        EXPECT_EQ("A-", textOf(pagination, "pagination-prefix"));
        EXPECT_EQ(0, intOf(pagination, "pagination-print"));
        destroyAttribute(paginations);
    }
}

zundo_status_t mediaNamedById(zundo_int_object_s **out, xercesc::DOMElement *element) {
    return newMedia(out, utf8(element->getAttribute(u"ID")).c_str());
}

// Media list entries carry media objects only once Media resources are
// read, so the list is made here.
TEST(RunListReader, InsertSheetTakesACopyOfTheLastMediaItNames) {
    ParsedTicket media("<?xml version=\"1.0\"?><Pool><Media ID=\"M1\"/><Media ID=\"M2\"/></Pool>");
    ParsedTicket runList(
        "<?xml version=\"1.0\"?><RunList PartIDKeys=\"Run\"><RunList Run=\"0\" Pages=\"3\">"
        "<LayoutElementRef rRef=\"LE0\"/>"
        "<InsertSheet SheetType=\"InsertSheet\" SheetUsage=\"Header\">"
        " <Layout PartIDKeys=\"SheetName\"><MediaRef rRef=\"M2\"/><MediaRef rRef=\"none\"/>"
        "  <Layout SheetName=\"S\"><MediaRef rRef=\"M1\"/></Layout></Layout>"
        "</InsertSheet></RunList></RunList>");
    ResourceReadContext context{nullptr, nullptr, nullptr, nullptr, nullptr};
    for (ElementEntry *entry : ChildElements(media.root()))
        addIdElementToList(entry->element, &context.mediaList, mediaNamedById);
    zundo_int_object_s *job = nullptr;
    newJobNoDocument(&job);
    newJobTicketInfoFromJob(&context.ticket, job);
    readRunListResource(runList.root(), "RunList", &context);
    zundo_int_attribute_s *sheets = get(job, "job-insert-sheets");
    ASSERT_EQ(1, getNumValues(sheets));
    auto *sheet = static_cast<zundo_int_object_s *>(nextValue(sheets));
    zundo_int_attribute_s *sheetMedia = get(sheet, "insert-sheet-media");
    ASSERT_EQ(1, getNumValues(sheetMedia));
    auto *copy = static_cast<zundo_int_object_s *>(nextValue(sheetMedia));
    EXPECT_EQ("M1", textOf(copy, "media-name"));
    EXPECT_NE(context.mediaList[0]->media, copy);
    destroyAttribute(sheetMedia);
    destroyAttribute(sheets);
    destroy(context.ticket);
    freeIdElementList(context.mediaList);
}

TEST(RunListReader, UnpartitionedPagesAreTheIncludePagesVariant) {
    ReadTicket read(jdfTicket(pools("<RunList ID=\"RL\" Pages=\"0 ~ 3 x 7\" NPage=\"0x10\"/>")));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    EXPECT_EQ("0~3 7~7", rangesOf(read.job(), "job-include-pages-variant"));
    EXPECT_EQ(16, intOf(read.job(), "job-include-npage-variant"));
}

TEST(RunListReader, LastRunListLinkGivesTheProcessPages) {
    const std::string resources = "<RunList ID=\"A\"/><RunList ID=\"B\"/>";
    ReadTicket one(jdfTicket(pools(
        resources, "<RunListLink rRef=\"A\" Usage=\"Input\"><Part RunIndex=\"0~2\"/>"
                   "<Part RunIndex=\"4 6~7\"/></RunListLink>")));
    EXPECT_EQ("0~2 4~4 6~7", rangesOf(one.job(), "job-process-pages"));
    ReadTicket two(jdfTicket(pools(
        resources, "<RunListLink rRef=\"A\" Usage=\"Input\"><Part RunIndex=\"0~2\"/>"
                   "</RunListLink><RunListLink rRef=\"B\" Usage=\"Input\">"
                   "<Part RunIndex=\"x\"/><Part RunIndex=\"9\"/></RunListLink>")));
    EXPECT_EQ("9~9", rangesOf(two.job(), "job-process-pages"));
}

}  // namespace
