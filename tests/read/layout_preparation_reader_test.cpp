// LayoutPreparationParams: what reaches the job, a document and a page
// range, the page cells, and the insert, banner and separator sheets.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "read/insert_sheet_reader.h"
#include "read_test_support.h"
#include "xml/xml_test_support.h"

namespace {

// "lower~upper" of each range, blank-separated.
std::string rangesOf(zundo_int_object_s *object, const char *name) {
    std::string text;
    zundo_int_attribute_s *attribute = get(object, name);
    while (hasNextValue(attribute)) {
        auto *range = static_cast<zundo_range_s *>(nextValue(attribute));
        if (!text.empty()) text += " ";
        text += std::to_string(getLower(range)) + "~" + std::to_string(getUpper(range));
    }
    destroyAttribute(attribute);
    return text;
}

std::string layoutTicket(const std::string &params) {
    return jdfTicket(pools("<LayoutPreparationParams ID=\"LPP\" Class=\"Parameter\" " + params +
                           "</LayoutPreparationParams>"));
}

TEST(LayoutPreparationReader, StepRepeatGivesCopiesOnlyOverTheNumberUpGrid) {
    struct Case {
        const char *attributes;
        int x;
        int copies;
    } cases[] = {
        {"NumberUp=\"2 1\" StepRepeat=\"2 1 1\"", 2, 1},
        {"NumberUp=\"2 1\" StepRepeat=\"2 2 1\"", 2, -12345},
        {"NumberUp=\"2 1\" StepRepeat=\"2 1\"", 2, -12345},
        {"StepRepeat=\"2 1 1\"", -12345, -12345},
    };
    for (const Case &c : cases) {
        ReadTicket read(layoutTicket(std::string(c.attributes) + ">"));
        ASSERT_EQ(ZUNDO_OK, read.result.status);
        EXPECT_EQ(c.x, intOf(read.job(), "job-number-up-x")) << c.attributes;
        EXPECT_EQ(c.copies, intOf(read.job(), "job-number-up-copies")) << c.attributes;
    }
}

TEST(LayoutPreparationReader, PartitionsReachTheirOwnObjectsOnly) {
    ReadTicket read(jdfTicket(pools(
        "<LayoutElement><FileSpec URL=\"a.pdf\"/></LayoutElement>"
        "<LayoutPreparationParams ID=\"LPP\" PartIDKeys=\"DocIndex\" Sides=\"TwoSidedFlipX\" "
        " BindingEdge=\"Left\" morvellan:Cover=\"Front\" CreepValue=\"1.5 2\" "
        " morvellan:PresentationOrder=\"3 x 1\">"
        " <Comment Attribute=\"CreepValue\">mm</Comment>"
        " <FitPolicy SizePolicy=\"ReduceToFit\" RotatePolicy=\"RotateClockwise\" "
        "  morvellan:RotateToMatchBindingEdge=\"true\"/>"
        " <ImageShift ShiftFront=\"1 2\"><Comment>pt</Comment></ImageShift>"
        " <LayoutPreparationParams DocIndex=\"0\" Sides=\"TwoSidedFlipY\" NumberUp=\"3 2\">"
        "  <FitPolicy SizePolicy=\"FitToPage\" morvellan:RotateToMatchBindingEdge=\"false\"/>"
        " </LayoutPreparationParams>"
        " <LayoutPreparationParams RunIndex=\"2~3\" Sides=\"OneSidedFront\" BindingEdge=\"Right\" "
        "  morvellan:Cover=\"Back\" NumberUp=\"4 1\"/>"
        "</LayoutPreparationParams>")));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    zundo_int_object_s *job = read.job();
    EXPECT_EQ(4, intOf(job, "job-sides"));
    EXPECT_EQ(2, intOf(job, "job-binding-edge"));
    EXPECT_EQ(1.5, doubleOf(job, "job-number-up-creep-x"));
    EXPECT_EQ("mm", textOf(job, "job-number-up-creep-units"));
    EXPECT_EQ(2, intOf(job, "job-fit-policy"));
    EXPECT_EQ(2, intOf(job, "job-rotate-policy"));
    EXPECT_EQ(1, intOf(job, "job-rotate-to-match-binding-edge"));
    EXPECT_EQ(1.0, doubleOf(job, "job-image-shift-front-x"));
    EXPECT_EQ("pt", textOf(job, "job-image-shift-units"));
    EXPECT_EQ(-12345, intOf(job, "job-number-up-x"));
    zundo_int_attribute_s *order = get(job, "job-number-up-presentation-order");
    std::vector<int> numbers;
    while (hasNextValue(order)) numbers.push_back(*static_cast<int *>(nextValue(order)));
    destroyAttribute(order);
    EXPECT_EQ((std::vector<int>{3, 3, 1}), numbers);

    // A document takes its sides and fit policy, but no n-up.
    zundo_int_object_s *document = getDocuments(job)[0];
    EXPECT_EQ(5, intOf(document, "document-sides"));
    EXPECT_EQ(1, intOf(document, "document-fit-policy"));
    EXPECT_EQ(-12345, intOf(document, "document-number-up-x"));

    std::vector<zundo_int_object_s *> pageRanges = objectsOf(job, "job-page-ranges");
    ASSERT_EQ(1u, pageRanges.size());
    zundo_int_object_s *pageRange = pageRanges[0];
    EXPECT_EQ("2~3", rangesOf(pageRange, "page-range-pages"));
    EXPECT_EQ(3, intOf(pageRange, "page-range-sides"));
    EXPECT_EQ(1, intOf(pageRange, "page-range-cover-type"));
    EXPECT_EQ(4, intOf(pageRange, "page-range-number-up-x"));
}

TEST(LayoutPreparationReader, PageCellsOfTheResourceAndItsCellAndSidePartitions) {
    ReadTicket read(layoutTicket(
        "PartIDKeys=\"CellIndex Side\">"
        "<PageCell Rotate=\"Rotate90\" TrimSize=\"100 200\" ClipBox=\"0 0 10 20\">"
        " <Comment Attribute=\"TrimSize\">mm</Comment>"
        " <ImageShift PositionX=\"Center\" ShiftBack=\"3 4\"/>"
        " <FitPolicy SizePolicy=\"ClipToMaxPage\" RotatePolicy=\"NoRotate\"/>"
        "</PageCell>"
        "<LayoutPreparationParams Side=\"Back\"><PageCell Rotate=\"Rotate180\"/>"
        "</LayoutPreparationParams>"
        "<LayoutPreparationParams CellIndex=\"0 ~ 1\">"
        " <LayoutPreparationParams Side=\"Front\"><PageCell/></LayoutPreparationParams>"
        "</LayoutPreparationParams>"));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    std::vector<zundo_int_object_s *> cells = objectsOf(read.job(), "job-page-cells");
    ASSERT_EQ(3u, cells.size());
    EXPECT_EQ("0~-1", rangesOf(cells[0], "page-cell-cells"));
    EXPECT_EQ(2, intOf(cells[0], "page-cell-rotation"));
    EXPECT_EQ(200.0, doubleOf(cells[0], "page-cell-trim-size-y"));
    EXPECT_EQ(20.0, doubleOf(cells[0], "page-cell-clip-box-upper-right-y"));
    EXPECT_EQ("mm", textOf(cells[0], "page-cell-trim-size-units"));
    EXPECT_EQ(2, intOf(cells[0], "page-cell-fit-policy-position-x"));
    EXPECT_EQ(4.0, doubleOf(cells[0], "page-cell-image-shift-back-y"));
    EXPECT_EQ(3, intOf(cells[0], "page-cell-fit-policy"));
    EXPECT_EQ(1, intOf(cells[0], "page-cell-rotate-policy"));
    EXPECT_EQ(-12345, intOf(cells[0], "page-cell-sheet-side"));

    EXPECT_EQ("0~-1", rangesOf(cells[1], "page-cell-cells"));
    EXPECT_EQ(1, intOf(cells[1], "page-cell-sheet-side"));
    EXPECT_EQ(3, intOf(cells[1], "page-cell-rotation"));

    EXPECT_EQ("0~1", rangesOf(cells[2], "page-cell-cells"));
    EXPECT_EQ(2, intOf(cells[2], "page-cell-sheet-side"));
}

TEST(InsertSheetReader, SheetsAreClassifiedByTypeUsageAndNoOp) {
    ReadTicket read(layoutTicket(
        ">"
        "<InsertSheet SheetType=\"InsertSheet\" SheetUsage=\"Interleaved\" SheetFormat=\"Blank\">"
        " <RunList PageCopies=\"2\"/></InsertSheet>"
        "<InsertSheet SheetType=\"InsertSheet\" SheetUsage=\"InterleavedBefore\" "
        " morvellan:SheetIndex=\"1 3 ~ 4\"/>"
        "<InsertSheet SheetType=\"SeparatorSheet\" morvellan:NoOp=\"true\"/>"
        "<InsertSheet SheetType=\"JobSheet\" SheetUsage=\"Header\" morvellan:BannerSheet=\"true\">"
        " <Layout><Mark><JobField JobFormat=\"Job %s\"/></Mark></Layout></InsertSheet>"
        "<InsertSheet SheetType=\"JobSheet\" SheetUsage=\"Header\"/>"
        "<InsertSheet SheetType=\"JobSheet\" morvellan:NoOp=\"true\"/>"
        "<InsertSheet SheetType=\"SeparatorSheet\" SheetUsage=\"SlipCopy\" "
        " morvellan:SeparatorAmount=\"3\"/>"
        "<InsertSheet SheetType=\"InsertSheet\"/>"));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    zundo_int_object_s *job = read.job();

    std::vector<zundo_int_object_s *> inserts = objectsOf(job, "job-insert-sheets");
    ASSERT_EQ(3u, inserts.size());
    EXPECT_EQ(1, intOf(inserts[0], "insert-sheet-position"));
    EXPECT_EQ("0~-1", rangesOf(inserts[0], "insert-sheet-pages"));
    EXPECT_EQ(1, intOf(inserts[0], "insert-sheet-content"));
    EXPECT_EQ(2, intOf(inserts[0], "insert-sheet-copies"));
    EXPECT_EQ(2, intOf(inserts[1], "insert-sheet-position"));
    EXPECT_EQ("1~1 3~4", rangesOf(inserts[1], "insert-sheet-sheets"));
    EXPECT_EQ("", rangesOf(inserts[1], "insert-sheet-pages"));
    EXPECT_EQ(4, intOf(inserts[2], "insert-sheet-content"));

    std::vector<zundo_int_object_s *> banners = objectsOf(job, "job-banner-sheets");
    ASSERT_EQ(1u, banners.size());
    EXPECT_EQ(2, intOf(banners[0], "banner-sheet-type"));
    EXPECT_EQ("Job %s", textOf(banners[0], "banner-sheet-text"));

    std::vector<zundo_int_object_s *> separators = objectsOf(job, "job-separator-sheets");
    ASSERT_EQ(3u, separators.size());
    EXPECT_EQ(2, intOf(separators[0], "separator-sheet-type"));
    EXPECT_EQ(4, intOf(separators[1], "separator-sheet-type"));
    EXPECT_EQ(3, intOf(separators[2], "separator-sheet-type"));
    EXPECT_EQ(3, intOf(separators[2], "separator-sheet-amount"));
}

// The Disjointing of DigitalPrintingParams holds separator sheets only.
TEST(InsertSheetReader, NoOpInDisjointingIsSeparatorOfType5) {
    ParsedTicket parsed(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
        "<Disjointing><InsertSheet SheetType=\"SeparatorSheet\" morvellan:NoOp=\"true\"/>"
        "<InsertSheet SheetType=\"SeparatorSheet\"/></Disjointing>");
    ASSERT_EQ(ZUNDO_OK, parsed.result.status);
    zundo_int_object_s *job = nullptr;
    ASSERT_EQ(ZUNDO_OK, newJobNoDocument(&job));
    ElementEntry entry = {parsed.root()->getFirstElementChild(), "InsertSheet", nullptr, nullptr};
    EXPECT_EQ(ZUNDO_OK, readInsertSheetFromParams(job, &entry, nullptr));
    std::vector<zundo_int_object_s *> separators = objectsOf(job, "job-separator-sheets");
    ASSERT_EQ(1u, separators.size());
    EXPECT_EQ(5, intOf(separators[0], "separator-sheet-type"));
    // Without a SheetUsage a sheet that is not a no-operation says nothing.
    ElementEntry unclassified = {entry.element->getNextElementSibling(), "InsertSheet", nullptr,
                                 nullptr};
    EXPECT_EQ(ZUNDO_ERROR, readInsertSheetFromParams(job, &unclassified, nullptr));
    EXPECT_EQ(1u, objectsOf(job, "job-separator-sheets").size());
    destroy(job);
}

}  // namespace
