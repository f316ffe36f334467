// Colour settings written into ColorSpaceConversionParams, ColorantControl,
// RenderingParams, Ink and PrintCondition, and read back from the written
// text.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "read/read_test_support.h"
#include "write/write_test_support.h"
#include "zundo.h"

namespace {

// The written ticket read back into a new ticket.
struct RoundTrip {
    explicit RoundTrip(const TestTicket &ticket) : written(ticket.ticket), read(written.text) {}
    zundo_int_object_s *job() const { return read.job(); }

    WrittenTicket written;
    ReadTicket read;
};

std::vector<xercesc::DOMElement *> operations(const xercesc::DOMElement *parent) {
    return childElements(parent, "ColorSpaceConversionOp");
}

zundo_int_object_s *colorPlane(const char *name) {
    zundo_int_object_s *plane = nullptr;
    EXPECT_EQ(newColorPlane(&plane, name), ZUNDO_OK);
    return plane;
}

TEST(ColourWriters, SettingsOfOneKindAndSpaceGatherOnOneOperationAndReadBack) {
    TestTicket ticket;
    const std::vector<std::pair<const char *, int>> settings = {
        {"job-color-rendering-intent", 3},
        {"job-color-rendering-intent-cmyk", 2},
        {"job-black-point-compensation-cmyk", 1},
        {"job-color-rendering-intent-gray-line-art", 4},
        {"job-color-rendering-intent-gray-line-art-source", 2},
        {"job-color-rendering-intent-text", 1},
        {"job-black-point-compensation-rgb-line-art-smooth-shades-text", 0},
        {"job-preserve-k-black-image", 1},
        {"job-preserve-k-black-image-mode", 3},
        {"job-preserve-cmy-colors-smooth-shades-secondaries", 0},
        {"job-preserve-cmy-colors-mode", 2},
        {"job-convert-rgb-gray-to-black", 1},
        {"job-convert-cmy-gray-to-black", 1},
        {"job-black-substitution-method", 3},
        {"job-black-substitution-cyan", 40},
    };
    for (const auto &setting : settings)
        ASSERT_EQ(setIntegerAttribute(ticket.job, setting.first, setting.second), ZUNDO_OK)
            << setting.first;
    ASSERT_EQ(setDoubleAttribute(ticket.job, "job-convert-rgb-gray-to-black-text-threshold", 0.25),
              ZUNDO_OK);
    // A source without its intent is not written.
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-color-rendering-intent-rgb-text-source", 1),
              ZUNDO_OK);
    RoundTrip trip(ticket);
    ASSERT_EQ(trip.written.status, ZUNDO_OK);
    ASSERT_EQ(trip.read.result.status, ZUNDO_OK);
    EXPECT_NE(trip.written.types().find("ColorSpaceConversion"), std::string::npos);

    xercesc::DOMElement *params = trip.written.resource("CSC0");
    ASSERT_NE(params, nullptr);
    xercesc::DOMElement *cmyk = childWith(params, "ColorSpaceConversionOp", "SourceCS", "ICCCMYK");
    ASSERT_NE(cmyk, nullptr);
    EXPECT_EQ(attribute(cmyk, "SourceObjects"), "All");
    EXPECT_EQ(attribute(cmyk, "RenderingIntent"), "Perceptual");
    EXPECT_EQ(attribute(cmyk, "morvellan:BlackPointCompensation"), "true");
    int allAll = 0;
    for (xercesc::DOMElement *op : operations(params))
        allAll += attribute(op, "SourceObjects") == "All" && attribute(op, "SourceCS") == "All";
    EXPECT_EQ(allAll, 1);
    xercesc::DOMElement *cmyGray =
        childWith(params, "ColorSpaceConversionOp", "SourceObjects", "LineArt Text");
    ASSERT_NE(cmyGray, nullptr);
    EXPECT_EQ(attribute(cmyGray, "SourceCS"), "All");

    for (const auto &setting : settings)
        EXPECT_EQ(intOf(trip.job(), setting.first), setting.second) << setting.first;
    EXPECT_DOUBLE_EQ(doubleOf(trip.job(), "job-convert-rgb-gray-to-black-text-threshold"), 0.25);
    EXPECT_EQ(intOf(trip.job(), "job-color-rendering-intent-rgb-text-source"), -12345);
}

TEST(ColourWriters, ProfilesOfJobAndMediaGoToSidesAndOperationsOfTheirOwn) {
    TestTicket ticket;
    ASSERT_EQ(
        setStringAttribute(ticket.job, "job-color-profile-output-smooth-shades-back", "b.icc"),
        ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(ticket.job, "job-color-profile-output-front", "f.icc"), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(ticket.job, "job-color-profile-input-gray-image", "g.icc"),
              ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-color-rendering-intent-gray-image", 2),
              ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-ignore-embedded-rgb-profile", 1), ZUNDO_OK);
    zundo_int_object_s *media = nullptr;
    ASSERT_EQ(newMedia(&media, "Coated"), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(media, "media-color-profile-input-cmyk-text", "m.icc"), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(media, "media-color-profile-output-back", "mb.icc"), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-media", media), ZUNDO_OK);
    RoundTrip trip(ticket);
    ASSERT_EQ(trip.written.status, ZUNDO_OK);

    xercesc::DOMElement *params = trip.written.resource("CSC0");
    ASSERT_NE(params, nullptr);
    EXPECT_EQ(attribute(params, "PartIDKeys"), "Side");
    EXPECT_EQ(attribute(params, "ICCProfileUsage"), "UseSupplied");
    EXPECT_EQ(attribute(params, "morvellan:IgnoreEmbeddedRGBProfile"), "true");
    xercesc::DOMElement *back = childWith(params, "ColorSpaceConversionParams", "Side", "Back");
    ASSERT_NE(back, nullptr);
    // The media's profile was written with its Media resource, before the job's.
    std::vector<xercesc::DOMElement *> backOps = operations(back);
    ASSERT_EQ(backOps.size(), 2u);
    xercesc::DOMElement *mediaRef =
        childElements(childElements(backOps[0], "SourceResource").at(0), "MediaRef").at(0);
    EXPECT_EQ(attribute(mediaRef, "rRef"), "Media0");
    xercesc::DOMElement *fileSpec = childElements(backOps[1], "morvellan:FileSpec").at(0);
    EXPECT_EQ(attribute(fileSpec, "ResourceUsage"), "FinalTargetDevice");
    EXPECT_EQ(attribute(fileSpec, "UserFileName"), "b.icc");
    EXPECT_EQ(attribute(backOps[1], "SourceObjects"), "SmoothShades");
    // A profile operation is never shared with settings.
    std::vector<xercesc::DOMElement *> grayImage;
    for (xercesc::DOMElement *op : operations(params))
        if (attribute(op, "SourceCS") == "ICCGray") grayImage.push_back(op);
    ASSERT_EQ(grayImage.size(), 2u);
    EXPECT_EQ(attribute(childElements(grayImage[0], "FileSpec").at(0), "ResourceUsage"),
              "SourceProfile");
    EXPECT_EQ(attribute(grayImage[1], "RenderingIntent"), "Perceptual");

    ASSERT_EQ(trip.read.result.status, ZUNDO_OK);
    zundo_int_object_s *job = trip.job();
    EXPECT_EQ(textOf(job, "job-color-profile-output-smooth-shades-back"), "b.icc");
    EXPECT_EQ(textOf(job, "job-color-profile-output-front"), "f.icc");
    EXPECT_EQ(textOf(job, "job-color-profile-input-gray-image"), "g.icc");
    EXPECT_EQ(textOf(job, "job-color-profile-input-cmyk-text"), "-");
    EXPECT_EQ(intOf(job, "job-ignore-embedded-rgb-profile"), 1);
    std::vector<zundo_int_object_s *> readMedia = objectsOf(job, "job-media");
    ASSERT_EQ(readMedia.size(), 1u);
    EXPECT_EQ(textOf(readMedia[0], "media-color-profile-input-cmyk-text"), "m.icc");
    EXPECT_EQ(textOf(readMedia[0], "media-color-profile-output-back"), "mb.icc");
}

TEST(ColourWriters, RenderingParamsAlwaysExistAndCarryTheRenderingSettings) {
    TestTicket bare;
    WrittenTicket empty(bare.ticket);
    xercesc::DOMElement *renderingParams = empty.resource("RP0");
    ASSERT_NE(renderingParams, nullptr);
    EXPECT_EQ(attribute(empty.link("RP0"), "CombinedProcessIndex"), "3");
    EXPECT_TRUE(childElements(renderingParams).empty());
    EXPECT_EQ(empty.resource("CSC0"), nullptr);

    TestTicket ticket;
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-black-overprint-text", 1), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-black-overprint-text-threshold", 12), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(ticket.job, "job-black-overprint-line-art-level", 0.5), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-cmyk-overprint-mode", 4), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-thin-line-enhancement", 0), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(ticket.job, "job-anti-aliasing", "High"), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-output-resolution-x", 600), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-output-resolution-y", 1200), ZUNDO_OK);
    RoundTrip trip(ticket);
    xercesc::DOMElement *overprint =
        childElements(trip.written.resource("RP0"), "AutomatedOverPrintParams").at(0);
    EXPECT_EQ(attribute(overprint, "LineArtBlackLevel"), "0.5");
    EXPECT_EQ(attribute(overprint, "morvellan:CMYKOverprintMode"), "PrintFileElseEnable");
    zundo_int_object_s *job = trip.job();
    EXPECT_EQ(intOf(job, "job-black-overprint-text"), 1);
    EXPECT_EQ(intOf(job, "job-black-overprint-text-threshold"), 12);
    EXPECT_DOUBLE_EQ(doubleOf(job, "job-black-overprint-line-art-level"), 0.5);
    EXPECT_EQ(intOf(job, "job-cmyk-overprint-mode"), 4);
    EXPECT_EQ(intOf(job, "job-thin-line-enhancement"), 0);
    EXPECT_EQ(textOf(job, "job-anti-aliasing"), "High");
    EXPECT_EQ(intOf(job, "job-output-resolution-x"), 600);
    EXPECT_EQ(intOf(job, "job-output-resolution-y"), 1200);
}

TEST(ColourWriters, TonerLimitsAndMaximumDensities) {
    TestTicket modeOnly;
    ASSERT_EQ(setIntegerAttribute(modeOnly.job, "job-toner-limit-print-mode", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(modeOnly.job, "job-maximum-k-density", 1), ZUNDO_OK);
    WrittenTicket written(modeOnly.ticket);
    std::vector<xercesc::DOMElement *> details =
        childElements(written.resource("I0"), "morvellan:TonerDetails");
    ASSERT_EQ(details.size(), 1u);
    EXPECT_EQ(attribute(details[0], "SpecialTonerPrintMode"), "Productivity");
    EXPECT_EQ(attribute(details[0], "TonerLimit"), "");
    EXPECT_EQ(attribute(details[0], "SourceObjects"), "");
    xercesc::DOMElement *condition = written.resource("PC0");
    ASSERT_NE(condition, nullptr);
    EXPECT_EQ(attribute(condition, "PartIDKeys"), "Separation");
    EXPECT_EQ(attribute(condition, "Name"), "MaxDensity");
    std::vector<xercesc::DOMElement *> separations = childElements(condition, "PrintCondition");
    ASSERT_EQ(separations.size(), 1u);
    EXPECT_EQ(attribute(separations[0], "Separation"), "Black");
    EXPECT_EQ(attribute(separations[0], "morvellan:MaxColorPlaneDensity"), "true");

    TestTicket ticket;
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-toner-limit-print-mode", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-toner-limit-text", 8), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-toner-limit", 11), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-maximum-c-density", 0), ZUNDO_OK);
    RoundTrip trip(ticket);
    details = childElements(trip.written.resource("I0"), "morvellan:TonerDetails");
    ASSERT_EQ(details.size(), 2u);
    EXPECT_EQ(attribute(details[1], "TonerLimit"), "8");
    EXPECT_EQ(attribute(details[1], "SourceObjects"), "Text");
    EXPECT_EQ(attribute(details[1], "SpecialTonerPrintMode"), "Productivity");
    EXPECT_EQ(intOf(trip.job(), "job-toner-limit"), 11);
    EXPECT_EQ(intOf(trip.job(), "job-toner-limit-text"), 8);
    EXPECT_EQ(intOf(trip.job(), "job-toner-limit-print-mode"), 2);
    EXPECT_EQ(intOf(trip.job(), "job-maximum-c-density"), 0);
    EXPECT_EQ(intOf(trip.job(), "job-maximum-k-density"), -12345);
}

TEST(ColourWriters, ColourPlanesAndColourModelsReadBack) {
    TestTicket ticket;
    ASSERT_EQ(setStringAttribute(ticket.job, "job-process-color-model", "DeviceCMYK"), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-use-substitute-color-table", 0), ZUNDO_OK);
    zundo_range_s *pages = nullptr;
    ASSERT_EQ(newRange(&pages, 2, 5), ZUNDO_OK);
    zundo_int_object_s *pageRange = nullptr;
    ASSERT_EQ(newPageRange(&pageRange, pages, nullptr), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(pageRange, "page-range-process-color-model", "DeviceGray"),
              ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-page-ranges", pageRange), ZUNDO_OK);

    zundo_int_object_s *black = colorPlane("Black");
    zundo_int_object_s *spot = colorPlane("Gold");
    ASSERT_EQ(setDoubleAttribute(spot, "color-plane-color-cyan", 0.25), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(spot, "color-plane-curve-end-y", 0.75), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(spot, "color-plane-priority", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(spot, "color-plane-convert-to-process", 1), ZUNDO_OK);
    const char *aliases[] = {"Au", "Gold 871", nullptr};
    ASSERT_EQ(setStringsAttribute(spot, "color-plane-names-in-print-file", aliases), ZUNDO_OK);
    zundo_range_s *spotPages = nullptr;
    ASSERT_EQ(newRangeFromString(&spotPages, "1 ~ 3"), ZUNDO_OK);
    zundo_int_attribute_s *rangeList = nullptr;
    ASSERT_EQ(newAttribute(&rangeList, "color-plane-pages", ZUNDO_KIND_RANGE, spotPages), ZUNDO_OK);
    ASSERT_EQ(set(spot, rangeList), ZUNDO_OK);
    destroyAttribute(rangeList);
    int kinds[] = {3, 5};
    zundo_int_attribute_s *kindList = nullptr;
    ASSERT_EQ(
        newAttribute(&kindList, "color-plane-object-types", ZUNDO_KIND_INTEGER_LIST, &kinds[0]),
        ZUNDO_OK);
    ASSERT_EQ(addValue(kindList, &kinds[1]), ZUNDO_OK);
    ASSERT_EQ(set(spot, kindList), ZUNDO_OK);
    destroyAttribute(kindList);
    zundo_int_object_s *other = colorPlane("Vesko Other");
    ASSERT_EQ(setIntegerAttribute(other, "color-plane-print", 0), ZUNDO_OK);
    zundo_int_object_s *planes[] = {black, spot, other, nullptr};
    ASSERT_EQ(setObjectsAttribute(ticket.job, "job-color-planes", planes), ZUNDO_OK);
    RoundTrip trip(ticket);
    ASSERT_EQ(trip.written.status, ZUNDO_OK);

    xercesc::DOMElement *colorantControl = trip.written.resource("CC0");
    ASSERT_NE(colorantControl, nullptr);
    EXPECT_EQ(attribute(colorantControl, "PartIDKeys"), "RunIndex");
    xercesc::DOMElement *params = childElements(colorantControl, "ColorantParams").at(0);
    ASSERT_EQ(childElements(params).size(), 2u);  // Black is a process colorant of DeviceCMYK
    xercesc::DOMElement *pool = childElements(colorantControl, "ColorPool").at(0);
    EXPECT_EQ(attribute(childWith(pool, "Color", "Name", "Gold"), "CMYK"), "0.25 0 0 0");
    EXPECT_EQ(attribute(childWith(pool, "Color", "Name", "Vesko Other"), "CMYK"), "");
    std::vector<xercesc::DOMElement *> parts = childElements(trip.written.link("CC0"), "Part");
    ASSERT_EQ(parts.size(), 2u);
    EXPECT_EQ(attribute(parts[1], "RunIndex"), "1 ~ 3");

    zundo_int_object_s *job = trip.job();
    EXPECT_EQ(textOf(job, "job-process-color-model"), "DeviceCMYK");
    EXPECT_EQ(intOf(job, "job-use-substitute-color-table"), 0);
    std::vector<zundo_int_object_s *> readRanges = objectsOf(job, "job-page-ranges");
    ASSERT_EQ(readRanges.size(), 1u);
    EXPECT_EQ(textOf(readRanges[0], "page-range-process-color-model"), "DeviceGray");
    std::vector<zundo_int_object_s *> read = objectsOf(job, "job-color-planes");
    ASSERT_EQ(read.size(), 3u);
    EXPECT_EQ(intOf(read[0], "color-plane-print"), 1);
    EXPECT_EQ(textOf(read[1], "color-plane-name"), "Gold");
    EXPECT_DOUBLE_EQ(doubleOf(read[1], "color-plane-color-cyan"), 0.25);
    EXPECT_DOUBLE_EQ(doubleOf(read[1], "color-plane-curve-end-y"), 0.75);
    EXPECT_EQ(intOf(read[1], "color-plane-priority"), 2);
    EXPECT_EQ(intOf(read[1], "color-plane-convert-to-process"), 1);
    EXPECT_EQ(textsOf(read[1], "color-plane-names-in-print-file"),
              (std::vector<std::string>{"Au", "Gold 871"}));
    zundo_int_attribute_s *readKinds = get(read[1], "color-plane-object-types");
    ASSERT_EQ(getNumValues(readKinds), 2);
    EXPECT_EQ(*static_cast<int *>(nextValue(readKinds)), 3);
    EXPECT_EQ(*static_cast<int *>(nextValue(readKinds)), 5);
    destroyAttribute(readKinds);
    zundo_int_attribute_s *readPages = get(read[1], "color-plane-pages");
    char text[ZUNDO_RANGE_TEXT_SIZE] = "";
    ASSERT_TRUE(hasNextValue(readPages));
    EXPECT_STREQ(toStringRange(text, static_cast<zundo_range_s *>(nextValue(readPages))), "1 ~ 3");
    destroyAttribute(readPages);
    EXPECT_EQ(intOf(read[2], "color-plane-print"), 0);
}

TEST(ColourWriters, CalibrationTypeIsAnUnlinkedResourceThatReadsBack) {
    TestTicket ticket;
    zundo_int_object_s *calibration = nullptr;
    ASSERT_EQ(newCalibrationType(&calibration, "P-7"), ZUNDO_OK);
    const char *extraInfo[] = {"warm", "dry", nullptr};
    ASSERT_EQ(setStringsAttribute(calibration, "calibration-type-extra-info", extraInfo), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(calibration, "calibration-type-base-screen", 12), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(calibration, "calibration-type-read-only", 1), ZUNDO_OK);
    zundo_binary_object_s *binary = nullptr;
    ASSERT_EQ(newBinaryObject(&binary, "\x01\x02\x03", 3), ZUNDO_OK);
    ASSERT_EQ(setBinaryAttribute(calibration, "calibration-type-density-conversion-param", binary),
              ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(ticket.job, "job-calibration-type", calibration), ZUNDO_OK);
    RoundTrip trip(ticket);
    xercesc::DOMElement *resource = trip.written.resource("CTP0");
    ASSERT_NE(resource, nullptr);
    EXPECT_EQ(tagName(resource), "morvellan:CalibrationTypeParams");
    EXPECT_EQ(trip.written.link("CTP0"), nullptr);
    EXPECT_EQ(attribute(resource, "ExtraInfo"), "warm dry");
    EXPECT_EQ(attribute(resource, "BaseScreen"), "FMScreen");

    std::vector<zundo_int_object_s *> read = objectsOf(trip.job(), "job-calibration-type");
    ASSERT_EQ(read.size(), 1u);
    EXPECT_EQ(textOf(read[0], "calibration-type-product-id"), "P-7");
    EXPECT_EQ(textsOf(read[0], "calibration-type-extra-info"),
              (std::vector<std::string>{"warm", "dry"}));
    EXPECT_EQ(intOf(read[0], "calibration-type-base-screen"), 12);
    EXPECT_EQ(intOf(read[0], "calibration-type-read-only"), 1);
    zundo_int_attribute_s *data = get(read[0], "calibration-type-density-conversion-param");
    ASSERT_TRUE(hasNextValue(data));
    EXPECT_EQ(getBinaryDataLength(static_cast<zundo_binary_object_s *>(nextValue(data))), 3u);
    destroyAttribute(data);
}

}  // namespace
