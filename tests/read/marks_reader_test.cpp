// Marks read through the public entry point: mark lists with their order,
// placement, content and image; strip marks; the colour control strip.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "read_test_support.h"

namespace {

std::vector<int> integersOf(zundo_int_object_s *object, const char *name) {
    std::vector<int> values;
    zundo_int_attribute_s *attribute = get(object, name);
    while (hasNextValue(attribute)) values.push_back(*static_cast<int *>(nextValue(attribute)));
    destroyAttribute(attribute);
    return values;
}

TEST(MarksReader, MarkListOrderPlacementContentAndImage) {
    ReadTicket read(jdfTicket(
        pools("<RunList ID=\"RLM\" Class=\"Parameter\" PartIDKeys=\"Run\">"
              " <RunList Run=\"7\"><ByteMap FrameHeight=\"40\" FrameWidth=\"30\">"
              "  <FileSpec URL=\"file:///logo.pdf\" MimeType=\"application/pdf\""
              "   MimeTypeVersion=\"PDF/1.4\"/></ByteMap></RunList></RunList>"
              "<LayoutPreparationParams ID=\"LPP\" Class=\"Parameter\">"
              " <MarkObject CTM=\"0 1 -1 0 100 200\" morvellan:MediaTabRefAnchor=\"TopRight\""
              "  morvellan:MarkRunListRun=\"7\">"
              "  <DeviceMark Font=\"Helvetica\" FontSize=\"12.5\" morvellan:FontColor=\"Red\""
              "   morvellan:FontColorRGB=\"255 0 10\" morvellan:FontTransparency=\"40\"/>"
              "  <JobField JobFormat=\"Page\" JobTemplate=\"page,Date Time\""
              "   morvellan:DateFormat=\"YYYYMMDD_HyphenDelimiter\"/>"
              "  <Comment>mm</Comment></MarkObject>"
              " <morvellan:ContentObject CTM=\"1 0 0 1 0 0\"/>"
              " <morvellan:ContentObject/>"
              " <morvellan:MarkObject CTM=\"0 -1 1 0 0 0\"/>"
              " <Other/><MarkObject/>"
              "</LayoutPreparationParams>",
              "<RunListLink rRef=\"RLM\" Usage=\"Input\" ProcessUsage=\"Marks\"/>")));
    ASSERT_EQ(read.result.status, ZUNDO_OK);
    std::vector<zundo_int_object_s *> marks = objectsOf(read.job(), "job-marks");
    ASSERT_EQ(marks.size(), 3u);

    zundo_int_object_s *first = marks[0];
    EXPECT_EQ(intOf(first, "mark-order"), 1);
    EXPECT_EQ(intOf(first, "mark-rotation"), 90);
    EXPECT_EQ(doubleOf(first, "mark-placement-x"), 100.0);
    EXPECT_EQ(doubleOf(first, "mark-placement-y"), 200.0);
    EXPECT_EQ(intOf(first, "mark-tab"), 1);
    EXPECT_EQ(intOf(first, "mark-anchor"), 3);
    EXPECT_EQ(textOf(first, "mark-text-font"), "Helvetica");
    EXPECT_EQ(doubleOf(first, "mark-text-font-size"), 12.5);
    EXPECT_EQ(intOf(first, "mark-text-font-color"), 6);
    EXPECT_EQ(intOf(first, "mark-text-font-transparency"), 40);
    EXPECT_EQ(textOf(first, "mark-text-format"), "Page");
    EXPECT_EQ(integersOf(first, "mark-text-template"), (std::vector<int>{2, 1, 3}));
    EXPECT_EQ(intOf(first, "mark-text-date-format"), 9);
    EXPECT_EQ(textOf(first, "mark-placement-units"), "mm");
    EXPECT_EQ(intOf(first, "mark-image-height"), 40);
    EXPECT_EQ(intOf(first, "mark-image-width"), 30);
    EXPECT_EQ(textOf(first, "mark-image-filename"), "file:///logo.pdf");
    EXPECT_EQ(textOf(first, "mark-image-format"), "PDF/1.4");
    zundo_int_attribute_s *rgb = get(first, "mark-text-font-color-rgb");
    char text[ZUNDO_RGB_TEXT_SIZE] = "-";
    if (hasNextValue(rgb)) toStringRGB(text, static_cast<zundo_rgb_s *>(nextValue(rgb)));
    destroyAttribute(rgb);
    EXPECT_STREQ(text, "255 0 10");

    EXPECT_EQ(intOf(marks[1], "mark-order"), 2);
    EXPECT_EQ(intOf(marks[1], "mark-rotation"), 270);
    EXPECT_EQ(intOf(marks[2], "mark-order"), -12345);
    EXPECT_EQ(intOf(marks[2], "mark-rotation"), 0);
}

// Without a RunList used for marks the image stays empty; a CTM that is
// not a matrix gives no rotation.
TEST(MarksReader, ImageNeedsTheMarksRunList) {
    ReadTicket read(
        jdfTicket(pools("<RunList ID=\"RLM\" Class=\"Parameter\" PartIDKeys=\"Run\">"
                        " <RunList Run=\"0\"><ByteMap FrameHeight=\"40\"/></RunList></RunList>"
                        "<LayoutPreparationParams ID=\"LPP\" Class=\"Parameter\">"
                        " <MarkObject CTM=\"x 1,0 1 5 6\" morvellan:MarkRunListRun=\"0\"/>"
                        "</LayoutPreparationParams>",
                        "<RunListLink rRef=\"RLM\" Usage=\"Input\"/>")));
    std::vector<zundo_int_object_s *> marks = objectsOf(read.job(), "job-marks");
    ASSERT_EQ(marks.size(), 1u);
    EXPECT_EQ(intOf(marks[0], "mark-image-height"), -12345);
    EXPECT_EQ(intOf(marks[0], "mark-rotation"), 0);
    EXPECT_EQ(doubleOf(marks[0], "mark-placement-x"), 5.0);
    EXPECT_EQ(doubleOf(marks[0], "mark-placement-y"), 6.0);
}

TEST(MarksReader, StripMarksAndColourControlStrip) {
    ReadTicket read(jdfTicket(pools(
        "<morvellan:StrippingParams ID=\"STR\" Class=\"Parameter\">"
        " <StripMark MarkName=\"TrimMark\" AbsoluteHeight=\"2.5\" morvellan:NoOp=\"false\""
        "  MarkSide=\"TwoSidedBackToBack\"><Comment Attribute=\"AbsoluteHeight\">mm</Comment>"
        " </StripMark>"
        " <StripMark MarkName=\"RegisterMark\" Offset=\"3 4\" morvellan:NoOp=\"true\">"
        "  <Comment Attribute=\"Other\">in</Comment><Comment Attribute=\"Offset\">pt</Comment>"
        " </StripMark>"
        " <StripMark MarkName=\"CutMark\"/>"
        "</morvellan:StrippingParams>"
        "<Layout ID=\"L\" Class=\"Parameter\"><MarkObject>"
        " <ColorControlStrip NoOp=\"true\"/></MarkObject></Layout>")));
    std::vector<zundo_int_object_s *> trimBleed = objectsOf(read.job(), "job-trim-bleed-marks");
    std::vector<zundo_int_object_s *> registers = objectsOf(read.job(), "job-register-marks");
    ASSERT_EQ(trimBleed.size(), 1u);
    ASSERT_EQ(registers.size(), 1u);
    EXPECT_EQ(intOf(trimBleed[0], "trim-bleed-mark-name"), 2);
    EXPECT_EQ(doubleOf(trimBleed[0], "trim-bleed-mark-height"), 2.5);
    EXPECT_EQ(intOf(trimBleed[0], "trim-bleed-mark-off"), 0);
    EXPECT_EQ(intOf(trimBleed[0], "trim-bleed-mark-side"), 3);
    EXPECT_EQ(textOf(trimBleed[0], "trim-bleed-mark-height-units"), "mm");
    EXPECT_EQ(intOf(registers[0], "register-mark-name"), 1);
    EXPECT_EQ(doubleOf(registers[0], "register-mark-offset-y"), 4.0);
    EXPECT_EQ(intOf(registers[0], "register-mark-off"), 1);
    EXPECT_EQ(textOf(registers[0], "register-mark-offset-units"), "pt");
    EXPECT_EQ(textOf(read.job(), "job-color-control-bar-type"), "None");
}

}  // namespace
