// Marks, page cells with their partitions, insert, banner and separator
// sheets and the job's layout values: written with writeJobTicketString and
// read back with newJobTicketInfoFromString.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "read/read_test_support.h"
#include "write/write_test_support.h"
#include "zundo.h"

namespace {

zundo_int_object_s *firstObjectOf(zundo_int_object_s *object, const char *name) {
    std::vector<zundo_int_object_s *> values = objectsOf(object, name);
    return values.empty() ? nullptr : values.front();
}

// The first child of that tag, or null.
xercesc::DOMElement *firstChild(const xercesc::DOMElement *parent, const std::string &tag) {
    std::vector<xercesc::DOMElement *> children = childElements(parent, tag);
    return children.empty() ? nullptr : children.front();
}

void setIntegers(zundo_int_object_s *object, const char *name, const std::vector<int> &values) {
    zundo_int_attribute_s *attribute = nullptr;
    ASSERT_EQ(newAttribute(&attribute, name, "IL", nullptr), ZUNDO_OK);
    for (int value : values) ASSERT_EQ(addValue(attribute, &value), ZUNDO_OK);
    ASSERT_EQ(set(object, attribute), ZUNDO_OK);
    destroyAttribute(attribute);
}

zundo_range_s *range(int lower, int upper) {
    zundo_range_s *made = nullptr;
    EXPECT_EQ(newRange(&made, lower, upper), ZUNDO_OK);
    return made;
}

zundo_int_object_s *mark(const char *format, int rotation, double x, double y) {
    zundo_int_object_s *made = nullptr;
    EXPECT_EQ(newMark(&made, format, rotation, x, y), ZUNDO_OK);
    return made;
}

zundo_int_object_s *pageCell(int lower, int upper) {
    zundo_int_object_s *made = nullptr;
    EXPECT_EQ(newPageCellInfo(&made, range(lower, upper)), ZUNDO_OK);
    return made;
}

void setObjects(zundo_int_object_s *owner, const char *name,
                std::vector<zundo_int_object_s *> objects) {
    objects.push_back(nullptr);
    ASSERT_EQ(setObjectsAttribute(owner, name, objects.data()), ZUNDO_OK);
}

// Child partitions named like the parent, by one key's values.
std::vector<std::string> partitionKeys(const xercesc::DOMElement *parent, const char *key) {
    std::vector<std::string> values;
    for (xercesc::DOMElement *child : childElements(parent, tagName(parent)))
        values.push_back(attribute(child, key));
    return values;
}

TEST(LayoutWriters, MarksRoundTrip) {
    TestTicket ticket;
    zundo_int_object_s *first = mark("Page", 90, 10, 20);
    ASSERT_EQ(setIntegerAttribute(first, "mark-order", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(first, "mark-anchor", 3), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(first, "mark-tab", 1), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(first, "mark-text-font", "Helvetica"), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(first, "mark-text-font-size", 12.5), ZUNDO_OK);
    zundo_rgb_s *rgb = nullptr;
    ASSERT_EQ(newRGB(&rgb, 255, 0, 10), ZUNDO_OK);
    ASSERT_EQ(setRGBAttribute(first, "mark-text-font-color-rgb", rgb), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(first, "mark-text-font-transparency", 40), ZUNDO_OK);
    setIntegers(first, "mark-text-template", {2, 1});
    ASSERT_EQ(setIntegerAttribute(first, "mark-text-time-format", 4), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(first, "mark-placement-units", "mm"), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(first, "mark-image-filename", "logo.pdf"), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(first, "mark-image-format", "PDF/1.4"), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(first, "mark-image-width", 30), ZUNDO_OK);
    zundo_int_object_s *second = mark("Date", 270, 0, 5.5);
    ASSERT_EQ(setIntegerAttribute(second, "mark-anchor", 4), ZUNDO_OK);
    setObjects(ticket.job, "job-marks", {first, second});
    zundo_int_object_s *pageRange = nullptr;
    ASSERT_EQ(newPageRange(&pageRange, range(0, 3), nullptr), ZUNDO_OK);
    zundo_int_object_s *third = mark("Run", 180, 1, 1);
    ASSERT_EQ(setIntegerAttribute(third, "mark-order", 1), ZUNDO_OK);
    setObjects(pageRange, "page-range-marks", {third});
    setObjects(ticket.job, "job-page-ranges", {pageRange});

    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    xercesc::DOMElement *lpp = written.resource("LPP0");
    EXPECT_EQ(childNames(lpp),
              (std::vector<std::string>{"morvellan:ContentObject", "morvellan:MarkObject",
                                        "MarkObject", "LayoutPreparationParams"}));
    xercesc::DOMElement *markObject = firstChild(lpp, "morvellan:MarkObject");
    xercesc::DOMElement *plainMarkObject = firstChild(lpp, "MarkObject");
    xercesc::DOMElement *run = childWith(lpp, "LayoutPreparationParams", "RunIndex", "0 ~ 3");
    ASSERT_TRUE(markObject != nullptr && plainMarkObject != nullptr && run != nullptr);
    EXPECT_EQ(attribute(markObject, "CTM"), "0 1 -1 0 10 20");
    EXPECT_EQ(attribute(plainMarkObject, "CTM"), "0 -1 1 0 0 5.5");
    EXPECT_EQ(childNames(run), (std::vector<std::string>{"MarkObject", "morvellan:ContentObject"}));
    EXPECT_EQ(attribute(firstChild(run, "MarkObject"), "CTM"), "-1 0 0 -1 1 1");

    ReadTicket read(written.text);
    ASSERT_EQ(read.result.status, ZUNDO_OK);
    std::vector<zundo_int_object_s *> marks = objectsOf(read.job(), "job-marks");
    ASSERT_EQ(marks.size(), 2u);
    EXPECT_EQ(compareMark(first, marks[0]), 0);
    EXPECT_EQ(compareMark(second, marks[1]), 0);
    std::vector<zundo_int_object_s *> pageRanges = objectsOf(read.job(), "job-page-ranges");
    ASSERT_EQ(pageRanges.size(), 1u);
    std::vector<zundo_int_object_s *> rangeMarks = objectsOf(pageRanges[0], "page-range-marks");
    ASSERT_EQ(rangeMarks.size(), 1u);
    EXPECT_EQ(compareMark(third, rangeMarks[0]), 0);
}

TEST(LayoutWriters, PageCellsWithCellSideAndRunPartitionsRoundTrip) {
    TestTicket ticket;
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-number-up-x", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-number-up-y", 2), ZUNDO_OK);
    zundo_int_object_s *sided = pageCell(0, 1);
    ASSERT_EQ(setIntegerAttribute(sided, "page-cell-sheet-side", 2), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(sided, "page-cell-trim-size-x", 100), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(sided, "page-cell-trim-size-y", 200.5), ZUNDO_OK);
    const char *const corners[] = {"lower-left-x", "lower-left-y", "upper-right-x",
                                   "upper-right-y"};
    for (int i = 0; i < 4; ++i)
        ASSERT_EQ(
            setDoubleAttribute(sided, ("page-cell-clip-box-" + std::string(corners[i])).c_str(),
                               i == 2 ? 7 : 0),
            ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(sided, "page-cell-rotation", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(sided, "page-cell-fit-policy", 1), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(sided, "page-cell-rotate-to-match-binding-edge", 0), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(sided, "page-cell-image-shift-back-x", 5), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(sided, "page-cell-fit-policy-position-x", 3), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(sided, "page-cell-trim-size-units", "mm"), ZUNDO_OK);
    setObjects(sided, "page-cell-marks", {mark("Cell", 0, 1, 2)});
    zundo_int_object_s *whole = pageCell(0, -1);
    ASSERT_EQ(setIntegerAttribute(whole, "page-cell-rotation", 3), ZUNDO_OK);
    setObjects(ticket.job, "job-page-cells", {sided, whole});
    zundo_int_object_s *rangeCell = pageCell(0, -1);
    ASSERT_EQ(setDoubleAttribute(rangeCell, "page-cell-trim-size-x", 50), ZUNDO_OK);
    zundo_int_object_s *pageRange = nullptr;
    ASSERT_EQ(newPageRange(&pageRange, range(0, 3), nullptr), ZUNDO_OK);
    setObjects(pageRange, "page-range-page-cells", {rangeCell});
    ASSERT_EQ(setIntegerAttribute(pageRange, "page-range-sides", 3), ZUNDO_OK);
    setObjects(ticket.job, "job-page-ranges", {pageRange});

    WrittenTicket written(ticket.ticket);
    xercesc::DOMElement *lpp = written.resource("LPP0");
    ASSERT_NE(lpp, nullptr);
    EXPECT_EQ(attribute(lpp, "PartIDKeys"), "CellIndex Side RunIndex ");
    // The cells 2 and 3 that no page cell covers get a partition as well.
    EXPECT_EQ(partitionKeys(lpp, "CellIndex"), (std::vector<std::string>{"0 ~ 1", "2 ~ 3"}));
    xercesc::DOMElement *cells = childWith(lpp, "LayoutPreparationParams", "CellIndex", "0 ~ 1");
    xercesc::DOMElement *gap = childWith(lpp, "LayoutPreparationParams", "CellIndex", "2 ~ 3");
    ASSERT_TRUE(cells != nullptr && gap != nullptr);
    EXPECT_EQ(partitionKeys(cells, "Side"), (std::vector<std::string>{"Front", "Back"}));
    EXPECT_EQ(partitionKeys(gap, "Side"), (std::vector<std::string>{"Back", "Front"}));
    // Every cell-level leaf holds the page range's PageCell and values.
    for (xercesc::DOMElement *cell : {cells, gap}) {
        for (xercesc::DOMElement *side : childElements(cell, "LayoutPreparationParams")) {
            xercesc::DOMElement *run =
                childWith(side, "LayoutPreparationParams", "RunIndex", "0 ~ 3");
            ASSERT_NE(run, nullptr);
            EXPECT_EQ(childElements(run, "PageCell").size(), 1u);
            EXPECT_EQ(attribute(run, "Sides"), "OneSidedFront");
        }
    }
    xercesc::DOMElement *front = childWith(cells, "LayoutPreparationParams", "Side", "Front");
    xercesc::DOMElement *pageCellElement = firstChild(front, "PageCell");
    ASSERT_NE(pageCellElement, nullptr);
    EXPECT_EQ(attribute(pageCellElement, "ClipBox"), "0 0 7 0");
    EXPECT_EQ(attribute(pageCellElement, "TrimSize"), "100 200.5");

    ReadTicket read(written.text);
    std::vector<zundo_int_object_s *> readCells = objectsOf(read.job(), "job-page-cells");
    ASSERT_EQ(readCells.size(), 2u);
    EXPECT_EQ(comparePageCell(sided, readCells[0]), 0);
    EXPECT_EQ(comparePageCell(whole, readCells[1]), 0);
    std::vector<zundo_int_object_s *> pageRanges = objectsOf(read.job(), "job-page-ranges");
    ASSERT_EQ(pageRanges.size(), 1u);
    std::vector<zundo_int_object_s *> rangeCells =
        objectsOf(pageRanges[0], "page-range-page-cells");
    ASSERT_EQ(rangeCells.size(), 1u);
    EXPECT_EQ(comparePageCell(rangeCell, rangeCells[0]), 0);
}

TEST(LayoutWriters, WholeSheetPageCellsMakeNoPartitions) {
    TestTicket ticket;
    setObjects(ticket.job, "job-page-cells", {pageCell(0, -1), pageCell(0, -1)});
    WrittenTicket written(ticket.ticket);
    xercesc::DOMElement *lpp = written.resource("LPP0");
    ASSERT_NE(lpp, nullptr);
    EXPECT_EQ(attribute(lpp, "PartIDKeys"), "");
    EXPECT_EQ(childNames(lpp), (std::vector<std::string>{"PageCell", "PageCell"}));
}

TEST(LayoutWriters, InsertBannerAndSeparatorSheetsRoundTrip) {
    TestTicket ticket;
    zundo_int_object_s *media = nullptr;
    ASSERT_EQ(newMedia(&media, "Blue"), ZUNDO_OK);
    zundo_range_s *pages[] = {range(4, 4), nullptr};
    zundo_int_object_s *runSheet = nullptr;
    ASSERT_EQ(newInsertSheet(&runSheet, 1, pages, media), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(runSheet, "insert-sheet-copies", 2), ZUNDO_OK);
    setObjects(runSheet, "insert-sheet-marks", {mark("Tab", 90, 3, 4)});
    zundo_int_object_s *folding = nullptr;
    ASSERT_EQ(newFolding(&folding, "F6-1"), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(runSheet, "insert-sheet-folding", folding), ZUNDO_OK);
    zundo_range_s *sheets[] = {range(1, 2), range(5, 5), nullptr};
    zundo_int_object_s *jobSheet = nullptr;
    ASSERT_EQ(newInsertSheetWithSheets(&jobSheet, 2, sheets), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(jobSheet, "insert-sheet-content", 2), ZUNDO_OK);
    setObjects(ticket.job, "job-insert-sheets", {runSheet, jobSheet});
    zundo_int_object_s *banners[3] = {};
    for (int i = 0; i < 3; ++i) ASSERT_EQ(newBannerSheet(&banners[i], i == 1 ? 3 : 2), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(banners[0], "banner-sheet-text", "Hello"), ZUNDO_OK);
    setObjects(ticket.job, "job-banner-sheets", {banners[0], banners[1], banners[2]});
    zundo_int_object_s *slipCopy = nullptr;
    zundo_int_object_s *trailer = nullptr;
    ASSERT_EQ(newSeparatorSheet(&slipCopy, 3, nullptr), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(slipCopy, "separator-sheet-amount", 5), ZUNDO_OK);
    ASSERT_EQ(newSeparatorSheet(&trailer, 1, nullptr), ZUNDO_OK);
    setObjects(ticket.job, "job-separator-sheets", {slipCopy, trailer});

    WrittenTicket written(ticket.ticket);
    xercesc::DOMElement *lpp = written.resource("LPP0");
    ASSERT_NE(lpp, nullptr);
    std::vector<xercesc::DOMElement *> lppSheets = childElements(lpp, "InsertSheet");
    ASSERT_EQ(lppSheets.size(), 4u);
    EXPECT_EQ(attribute(lppSheets[0], "morvellan:SheetIndex"), "1 ~ 2 5");
    EXPECT_EQ(attribute(lppSheets[0], "SheetUsage"), "InterleavedBefore");
    EXPECT_EQ(attribute(lppSheets[1], "SheetType"), "JobSheet");
    // The banner sheet that asks for none ends the banner sheets.
    EXPECT_EQ(attribute(lppSheets[3], "morvellan:NoOp"), "true");
    xercesc::DOMElement *separator =
        firstChild(firstChild(written.resource("DPP0"), "Disjointing"), "InsertSheet");
    ASSERT_NE(separator, nullptr);
    EXPECT_EQ(attribute(separator, "SheetUsage"), "SlipCopy");
    EXPECT_EQ(attribute(separator, "morvellan:SeparatorAmount"), "5");

    ReadTicket read(written.text);
    std::vector<zundo_int_object_s *> readSheets = objectsOf(read.job(), "job-insert-sheets");
    ASSERT_EQ(readSheets.size(), 2u);
    EXPECT_EQ(intOf(readSheets[0], "insert-sheet-copies"), 2);
    EXPECT_EQ(textOf(firstObjectOf(readSheets[0], "insert-sheet-media"), "media-name"), "Blue");
    EXPECT_EQ(textOf(firstObjectOf(readSheets[0], "insert-sheet-folding"), "folding-type"), "F6-1");
    std::vector<zundo_int_object_s *> sheetMarks = objectsOf(readSheets[0], "insert-sheet-marks");
    ASSERT_EQ(sheetMarks.size(), 1u);
    EXPECT_EQ(intOf(sheetMarks[0], "mark-rotation"), 90);
    EXPECT_EQ(textOf(sheetMarks[0], "mark-text-format"), "Tab");
    EXPECT_EQ(intOf(readSheets[1], "insert-sheet-position"), 2);
    EXPECT_EQ(intOf(readSheets[1], "insert-sheet-content"), 2);
    std::vector<zundo_int_object_s *> readBanners = objectsOf(read.job(), "job-banner-sheets");
    ASSERT_EQ(readBanners.size(), 2u);
    EXPECT_EQ(textOf(readBanners[0], "banner-sheet-text"), "Hello");
    EXPECT_EQ(intOf(readBanners[1], "banner-sheet-type"), 3);
    std::vector<zundo_int_object_s *> separators = objectsOf(read.job(), "job-separator-sheets");
    ASSERT_EQ(separators.size(), 2u);
}

TEST(LayoutWriters, StripMarksColourBarAndNumberUpValuesRoundTrip) {
    TestTicket ticket;
    zundo_int_object_s *job = ticket.job;
    zundo_int_object_s *registerMark = nullptr;
    ASSERT_EQ(newRegisterMark(&registerMark, 2), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(registerMark, "register-mark-offset-x", 3), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(registerMark, "register-mark-offset-y", 4.5), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(registerMark, "register-mark-side", 3), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(registerMark, "register-mark-offset-units", "pt"), ZUNDO_OK);
    setObjects(job, "job-register-marks", {registerMark});
    zundo_int_object_s *trimMark = nullptr;
    ASSERT_EQ(newTrimBleedMark(&trimMark, 2), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(trimMark, "trim-bleed-mark-height", 2.5), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(trimMark, "trim-bleed-mark-print-to-margin-edge", 1), ZUNDO_OK);
    setObjects(job, "job-trim-bleed-marks", {trimMark});
    ASSERT_EQ(setStringAttribute(job, "job-color-control-bar-type", "None"), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(job, "job-orientation-hint", "Landscape"), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-binding-edge", 2), ZUNDO_OK);
    setIntegers(job, "job-number-up-presentation-order", {3, 1, 2});
    ASSERT_EQ(setDoubleAttribute(job, "job-number-up-gutter-x", 1.5), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(job, "job-number-up-gutter-y", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-number-up-fit-box", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-number-up-finishing-order", 1), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(job, "job-number-up-creep-x", 0.25), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(job, "job-number-up-creep-y", 1), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-number-up-double-imposition-cell-to-rotate", 3),
              ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(job, "job-number-up-creep-units", "mm"), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(job, "job-image-shift-units", "in"), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-fit-policy", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-rotate-policy", 4), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(job, "job-image-shift-front-x", 6), ZUNDO_OK);

    WrittenTicket written(ticket.ticket);
    xercesc::DOMElement *strip =
        firstChild(firstChild(written.resource("L0"), "MarkObject"), "ColorControlStrip");
    xercesc::DOMElement *imageShift = firstChild(written.resource("LPP0"), "ImageShift");
    ASSERT_TRUE(strip != nullptr && imageShift != nullptr);
    EXPECT_EQ(attribute(strip, "NoOp"), "true");
    EXPECT_EQ(attribute(strip, "StripType"), "");
    EXPECT_EQ(attribute(imageShift, "ShiftFront"), "6 0");

    ReadTicket read(written.text);
    zundo_int_object_s *readJob = read.job();
    std::vector<zundo_int_object_s *> registers = objectsOf(readJob, "job-register-marks");
    ASSERT_EQ(registers.size(), 1u);
    EXPECT_EQ(compareRegisterMark(registerMark, registers[0]), 0);
    std::vector<zundo_int_object_s *> trims = objectsOf(readJob, "job-trim-bleed-marks");
    ASSERT_EQ(trims.size(), 1u);
    EXPECT_EQ(compareTrimBleedMark(trimMark, trims[0]), 0);
    for (const char *name :
         {"job-color-control-bar-type", "job-orientation-hint", "job-binding-edge",
          "job-number-up-presentation-order", "job-number-up-gutter-x", "job-number-up-gutter-y",
          "job-number-up-fit-box", "job-number-up-finishing-order", "job-number-up-creep-x",
          "job-number-up-creep-y", "job-number-up-double-imposition-cell-to-rotate",
          "job-number-up-creep-units", "job-image-shift-units", "job-fit-policy",
          "job-rotate-policy", "job-image-shift-front-x"}) {
        zundo_int_attribute_s *before = get(job, name);
        zundo_int_attribute_s *after = get(readJob, name);
        EXPECT_EQ(attributesEqual(before, after), 1) << name;
        destroyAttribute(before);
        destroyAttribute(after);
    }
}

}  // namespace
