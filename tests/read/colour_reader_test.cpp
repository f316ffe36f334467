// ColorSpaceConversionParams, ColorantControl, Ink, PrintCondition and
// RenderingParams read from small tickets: the texts that select an
// attribute and those that select none.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "read_test_support.h"

namespace {

std::string op(const std::string &attributes, const std::string &children = "") {
    return "<ColorSpaceConversionOp Operation=\"Convert\" " + attributes + ">" + children +
           "</ColorSpaceConversionOp>";
}

std::string conversion(const std::string &content) {
    return "<ColorSpaceConversionParams ID=\"CSC\" Class=\"Parameter\">" + content +
           "</ColorSpaceConversionParams>";
}

const char kMediaRef[] = "<SourceResource><MediaRef rRef=\"M1\"/></SourceResource>";

TEST(ColourConversionReader, ObjectKindAndColourSpaceSelectTheAttribute) {
    const std::string fileSpec = "<FileSpec UserFileName=\"old.icc\"/><FileSpec/>"
                                 "<FileSpec UserFileName=\"text.icc\"/>";
    ReadTicket read(jdfTicket(pools(
        "<Media ID=\"M1\" Class=\"Consumable\" DescriptiveName=\"Coated\"/>" +
        conversion(
            op("SourceObjects=\"Text\" SourceCS=\"ICCCMYK\"", fileSpec) +
            op("SourceObjects=\"Text\" SourceCS=\"ICCRGB\"",
               std::string(kMediaRef) + "<FileSpec UserFileName=\"media.icc\"/>") +
            op("SourceObjects=\"LineArt\" RenderingIntent=\"Perceptual\" "
               "morvellan:RenderingIntentSource=\"PDL\"") +
            op("SourceObjects=\"LineArt\" SourceCS=\"ICCGray\" RenderingIntent=\"Saturation\" "
               "morvellan:RenderingIntentSource=\"PDL\"") +
            op("SourceObjects=\"All\" SourceCS=\"ICCRGB\" PreserveBlack=\"true\"") +
            op("SourceObjects=\"All\" morvellan:PreserveCMY=\"true\" RGBGray2Black=\"true\" "
               "RGBGray2BlackThreshold=\"x\"") +
            op("SourceObjects=\"Text LineArt\" SourceCS=\"All\" morvellan:CMYGray2Black=\"true\"") +
            op("SourceObjects=\"LineArt SmoothShades Text\" SourceCS=\"ICCGray\" "
               "morvellan:BlackPointCompensation=\"true\"") +
            op("SourceCS=\"ICCGray\" morvellan:BlackSubstitutionMethod=\"KBlack\"") +
            "<ColorSpaceConversionParams Side=\"Back\">" +
            op("SourceObjects=\"SmoothShades\"",
               "<morvellan:FileSpec UserFileName=\"back.icc\"/>") +
            "</ColorSpaceConversionParams><ColorSpaceConversionParams Side=\"Left\">" +
            op("SourceObjects=\"All\"", "<morvellan:FileSpec UserFileName=\"left.icc\"/>") +
            "</ColorSpaceConversionParams>") +
        "<DigitalPrintingParams ID=\"DPP\" Class=\"Parameter\"><MediaRef rRef=\"M1\"/>"
        "</DigitalPrintingParams>")));
    ASSERT_EQ(read.result.status, ZUNDO_OK);
    zundo_int_object_s *job = read.job();
    EXPECT_EQ(textOf(job, "job-color-profile-input-cmyk-text"), "text.icc");
    EXPECT_EQ(textOf(job, "job-color-profile-input-rgb-text"), "-");
    std::vector<zundo_int_object_s *> media = objectsOf(job, "job-media");
    ASSERT_EQ(media.size(), 1u);
    EXPECT_EQ(textOf(media[0], "media-color-profile-input-rgb-text"), "media.icc");
    // Without SourceCS only the intent counts.
    EXPECT_EQ(intOf(job, "job-color-rendering-intent-line-art"), 2);
    EXPECT_EQ(intOf(job, "job-color-rendering-intent-gray-line-art"), 4);
    EXPECT_EQ(intOf(job, "job-color-rendering-intent-gray-line-art-source"), 2);
    EXPECT_EQ(intOf(job, "job-preserve-k-black"), -12345);
    EXPECT_EQ(intOf(job, "job-preserve-cmy-colors"), -12345);
    EXPECT_EQ(intOf(job, "job-convert-rgb-gray-to-black"), 1);
    EXPECT_DOUBLE_EQ(doubleOf(job, "job-convert-rgb-gray-to-black-threshold"), -12345.0);
    EXPECT_EQ(intOf(job, "job-convert-cmy-gray-to-black"), -12345);
    EXPECT_EQ(intOf(job, "job-black-point-compensation-gray-line-art-smooth-shades-text"), 1);
    EXPECT_EQ(intOf(job, "job-black-substitution-method"), -12345);
    EXPECT_EQ(textOf(job, "job-color-profile-output-smooth-shades-back"), "back.icc");
    EXPECT_EQ(textOf(job, "job-color-profile-output-front"), "-");
    EXPECT_EQ(textOf(job, "job-color-profile-output-back"), "-");
}

TEST(ColorantReader, PoolPlanesReplaceTheOrderAndTakeTheirSettingsFromAround) {
    ReadTicket read(jdfTicket(pools(
        conversion(op("SourceObjects=\"Text LineArt\" SourceCS=\"Separation\"",
                      "<SeparationSpec Name=\"Gold\"/>")) +
        "<ColorantControl ID=\"CC\" Class=\"Parameter\" ProcessColorModel=\"DeviceCMYK\" "
        " PartIDKeys=\"RunIndex\" morvellan:SpotColorMatching=\"true\">"
        " <ColorantControl RunIndex=\"0 ~ 1 4\" ProcessColorModel=\"DeviceGray\"/>"
        " <ColorantControl RunIndex=\"7\"/>"
        " <ColorantOrder><SeparationSpec Name=\"Silver\"/></ColorantOrder>"
        " <ColorantOrder><SeparationSpec Name=\"Gold\"/></ColorantOrder>"
        " <ColorantConvertProcess><SeparationSpec Name=\"Silver\"/></ColorantConvertProcess>"
        " <ColorantAlias ReplacementColorantName=\"Gold\"><SeparationSpec Name=\"Au\"/>"
        " </ColorantAlias>"
        " <ColorPoolRef rRef=\"Pool\"/>"
        " <ColorSpaceSubstitute><PDLResourceAlias ResourceType=\"NoSubstituteColorTable\"/>"
        "  <PDLResourceAlias ResourceType=\"SubstituteColorTable\"/></ColorSpaceSubstitute>"
        "</ColorantControl>"
        "<ColorPool ID=\"Other\" Class=\"Parameter\"><Color Name=\"Wrong\"/></ColorPool>"
        "<ColorPool ID=\"Pool\" Class=\"Parameter\">"
        " <Color Name=\"Gold\" CMYK=\"0.1 0.2 0.3\" morvellan:RunIndexToSave=\"2 ~ 3\">"
        "  <TransferCurve Curve=\"0 0 1 0.5\"/></Color>"
        " <Color Name=\"Silver\"><TransferCurve Curve=\"1 1\"/></Color>"
        " <Color CMYK=\"1 1 1 1\"/>"
        "</ColorPool>")));
    ASSERT_EQ(read.result.status, ZUNDO_OK);
    zundo_int_object_s *job = read.job();
    EXPECT_EQ(textOf(job, "job-process-color-model"), "DeviceCMYK");
    EXPECT_EQ(intOf(job, "job-spot-color-matching"), 1);
    EXPECT_EQ(intOf(job, "job-use-substitute-color-table"), 1);
    std::vector<zundo_int_object_s *> ranges = objectsOf(job, "job-page-ranges");
    ASSERT_EQ(ranges.size(), 2u);
    for (zundo_int_object_s *range : ranges)
        EXPECT_EQ(textOf(range, "page-range-process-color-model"), "DeviceGray");

    std::vector<zundo_int_object_s *> planes = objectsOf(job, "job-color-planes");
    ASSERT_EQ(planes.size(), 2u);
    zundo_int_object_s *gold = planes[0];
    EXPECT_EQ(textOf(gold, "color-plane-name"), "Gold");
    EXPECT_DOUBLE_EQ(doubleOf(gold, "color-plane-color-yellow"), 0.3);
    EXPECT_DOUBLE_EQ(doubleOf(gold, "color-plane-color-black"), -12345.0);
    EXPECT_DOUBLE_EQ(doubleOf(gold, "color-plane-curve-end-y"), 0.5);
    EXPECT_EQ(intOf(gold, "color-plane-print"), 1);
    EXPECT_EQ(intOf(gold, "color-plane-convert-to-process"), -12345);
    EXPECT_EQ(textsOf(gold, "color-plane-names-in-print-file"), std::vector<std::string>{"Au"});
    zundo_int_attribute_s *kinds = get(gold, "color-plane-object-types");
    ASSERT_EQ(getNumValues(kinds), 2);
    EXPECT_EQ(*static_cast<int *>(nextValue(kinds)), 5);
    EXPECT_EQ(*static_cast<int *>(nextValue(kinds)), 3);
    destroyAttribute(kinds);
    zundo_int_object_s *silver = planes[1];
    EXPECT_EQ(intOf(silver, "color-plane-print"), 0);
    EXPECT_EQ(intOf(silver, "color-plane-convert-to-process"), 1);
    EXPECT_DOUBLE_EQ(doubleOf(silver, "color-plane-curve-end-y"), -12345.0);
}

TEST(RenderingReader, TonerLimitsDensitiesAndResolutionNeedAllTheirParts) {
    ReadTicket read(jdfTicket(pools(
        "<Ink ID=\"I\" Class=\"Consumable\">"
        " <morvellan:TonerDetails TonerLimit=\"9\" SourceObjects=\"Text\"/>"
        " <morvellan:TonerDetails TonerLimit=\"10\"/>"
        " <morvellan:TonerDetails TonerLimit=\"lots\" SourceObjects=\"All\"/>"
        " <morvellan:TonerDetails SpecialTonerPrintMode=\"ImageQuality\"/>"
        "</Ink>"
        "<PrintCondition ID=\"PC\" Class=\"Parameter\" PartIDKeys=\"Separation\">"
        " <PrintCondition Separation=\"Cyan\" morvellan:MaxColorPlaneDensity=\"true\"/>"
        " <PrintCondition Separation=\"Magenta\"/>"
        "</PrintCondition>"
        "<RenderingParams ID=\"RP\" Class=\"Parameter\" morvellan:EdgeEnhancement=\"false\">"
        " <AutomatedOverPrintParams TextSizeThreshold=\"big\" TextBlackLevel=\"dark\"/>"
        " <ObjectResolution Resolution=\"600\" AntiAliasing=\"Low\"/>"
        "</RenderingParams>")));
    ASSERT_EQ(read.result.status, ZUNDO_OK);
    zundo_int_object_s *job = read.job();
    EXPECT_EQ(intOf(job, "job-toner-limit-text"), 9);
    EXPECT_EQ(intOf(job, "job-toner-limit"), -12345);
    EXPECT_EQ(intOf(job, "job-toner-limit-print-mode"), 1);
    EXPECT_EQ(intOf(job, "job-maximum-c-density"), 1);
    EXPECT_EQ(intOf(job, "job-maximum-m-density"), -12345);
    EXPECT_EQ(intOf(job, "job-edge-enhancement"), 0);
    // Given but unreadable: the fallbacks.
    EXPECT_EQ(intOf(job, "job-black-overprint-text-threshold"), 0);
    EXPECT_DOUBLE_EQ(doubleOf(job, "job-black-overprint-text-level"), -12345.0);
    EXPECT_EQ(textOf(job, "job-anti-aliasing"), "Low");
    EXPECT_EQ(intOf(job, "job-output-resolution-x"), -12345);
    EXPECT_EQ(intOf(job, "job-output-resolution-y"), -12345);
}

}  // namespace
