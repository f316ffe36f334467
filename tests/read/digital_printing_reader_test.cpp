// DigitalPrintingParams, Component and ComponentLink, Disposition and the
// job-level device and interpreting resources, read from small tickets.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "read_test_support.h"

namespace {

zundo_int_object_s *firstObject(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    auto *first =
        hasNextValue(attribute) ? static_cast<zundo_int_object_s *>(nextValue(attribute)) : nullptr;
    destroyAttribute(attribute);
    return first;
}

int countOf(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    int count = getNumValues(attribute);
    destroyAttribute(attribute);
    return count;
}

// The text form of a time-period value, "-" without one.
std::string periodOf(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    char text[64] = "-";
    if (hasNextValue(attribute))
        toStringTimePeriodN(text, sizeof text,
                            static_cast<zundo_time_period_s *>(nextValue(attribute)));
    destroyAttribute(attribute);
    return text;
}

const char kMedia[] = "<Media ID=\"M1\" Class=\"Consumable\" DescriptiveName=\"Plain\"/>";

TEST(DigitalPrintingReader, PartitionsReachTheJobDocumentsAndPageRanges) {
    ReadTicket read(jdfTicket(pools(
        std::string(kMedia) +
        "<DigitalPrintingParams ID=\"DPP\" Class=\"Parameter\" PartIDKeys=\"RunIndex\" "
        " DirectProofAmount=\"3\" Collate=\"Bogus\" morvellan:EjectToFrontFace=\"maybe\" "
        " OutputBin=\"Top\" morvellan:InterfaceBoxFunction=\"None\" PrintingType=\"WebFed\">"
        " <morvellan:AFPResources FormDef=\"F1\" PageDef=\"P1\"/>"
        " <DigitalPrintingParams RunIndex=\"2~3\" OutputBin=\"Side\" "
        "  morvellan:InterfaceBoxFunction=\"4\" morvellan:FuserSetting=\"Standard\">"
        "  <MediaRef rRef=\"M1\"/>"
        " </DigitalPrintingParams>"
        " <DigitalPrintingParams DocIndex=\"0\" OutputBin=\"Doc\"><MediaRef rRef=\"M1\"/>"
        " </DigitalPrintingParams>"
        "</DigitalPrintingParams>")));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    zundo_int_object_s *job = read.job();
    // Unknown texts give the not-set values.
    EXPECT_EQ(0, intOf(job, "job-collate", 0));
    EXPECT_EQ(-1, intOf(job, "job-eject-to-front-face", -1));
    EXPECT_EQ("Top", textOf(job, "job-output-bin-name"));
    EXPECT_EQ(10, intOf(job, "job-interface-box-function"));
    EXPECT_EQ(2, intOf(job, "job-printing-type"));
    EXPECT_EQ(-12345, intOf(job, "job-fuser-setting"));
    EXPECT_EQ("F1", textOf(job, "job-form-definition"));
    EXPECT_EQ("P1", textOf(job, "job-page-definition"));
    zundo_int_object_s *proof = firstObject(job, "job-proof-print");
    ASSERT_NE(nullptr, proof);
    EXPECT_EQ(3, intOf(proof, "proof-print-copies"));
    EXPECT_EQ(nullptr, firstObject(job, "job-media"));

    zundo_int_object_s *pageRange = firstObject(job, "job-page-ranges");
    ASSERT_NE(nullptr, pageRange);
    EXPECT_EQ("Side", textOf(pageRange, "page-range-output-bin-name"));
    EXPECT_EQ(4, intOf(pageRange, "page-range-interface-box-function"));
    zundo_int_object_s *media = firstObject(pageRange, "page-range-media");
    ASSERT_NE(nullptr, media);
    EXPECT_EQ("Plain", textOf(media, "media-name"));

    zundo_int_object_s *document = getDocuments(job)[0];
    zundo_int_object_s *documentMedia = firstObject(document, "document-media");
    ASSERT_NE(nullptr, documentMedia);
    EXPECT_NE(media, documentMedia);
    EXPECT_EQ(0, compareMedia(media, documentMedia));
    EXPECT_EQ("-", textOf(document, "document-output-bin-name"));
}

// The units of one call count for every Disjointing after them; within
// one Disjointing the parser hands OffsetDirection before OffsetUnits.
TEST(DigitalPrintingReader, DisjointingDirectionCountsOnlyWithoutUnits) {
    struct Case {
        const char *disjointings;
        int jogOffset;
    } cases[] = {
        {"<Disjointing OffsetDirection=\"Straight\"/>", 2},
        {"<Disjointing OffsetUnits=\"Jobs\"/><Disjointing OffsetDirection=\"Straight\"/>", 3},
        {"<Disjointing OffsetUnits=\"Jobs\"/><Disjointing OffsetDirection=\"None\"/>", 1},
        {"<Disjointing OffsetUnits=\"Sets\" OffsetDirection=\"Straight\"/>", 5},
    };
    for (const Case &c : cases) {
        ReadTicket read(jdfTicket(pools("<DigitalPrintingParams ID=\"DPP\">" +
                                        std::string(c.disjointings) +
                                        "<Disjointing OffsetAmount=\"7\"/>"
                                        "</DigitalPrintingParams>")));
        ASSERT_EQ(ZUNDO_OK, read.result.status);
        EXPECT_EQ(c.jogOffset, intOf(read.job(), "job-jog-offset")) << c.disjointings;
        EXPECT_EQ(7, intOf(read.job(), "job-jog-offset-amount")) << c.disjointings;
    }
}

TEST(ComponentReader, LinkGivesCopiesAndThePrintedComponentsBins) {
    ReadTicket read(jdfTicket(
        pools("<DigitalPrintingParams ID=\"DPP\"/>"
              "<Component ID=\"C1\" Class=\"Quantity\" PartIDKeys=\"RunIndex\" "
              " morvellan:PIN=\"1234\">"
              " <Location LocationName=\"Tray1\"/>"
              " <Component RunIndex=\"1~2\"><Location LocationName=\"Tray2\"/></Component>"
              " <Component Condition=\"morvellan:UnusedTabs\">"
              "  <Location LocationName=\"Tabs\"/>"
              "  <Component RunIndex=\"4\"><Location LocationName=\"Tray4\"/></Component>"
              " </Component>"
              "</Component>",
              "<DigitalPrintingParamsLink rRef=\"DPP\" Usage=\"Input\" CombinedProcessIndex=\"1\"/>"
              "<ComponentLink rRef=\"C1\" Usage=\"Output\" CombinedProcessIndex=\"1\" "
              " Amount=\"5\" ActualAmount=\"4.5\"/>")));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    zundo_int_object_s *job = read.job();
    EXPECT_EQ("1234", textOf(job, "job-pin"));
    EXPECT_EQ(5, intOf(job, "job-copies"));
    EXPECT_EQ(4.5, doubleOf(job, "job-copies-actual"));
    EXPECT_EQ("Tray1", textOf(job, "job-output-bin-name"));
    EXPECT_EQ("Tabs", textOf(job, "job-output-bin-name-unused-tabs"));
    zundo_int_attribute_s *pageRanges = get(job, "job-page-ranges");
    ASSERT_EQ(2, getNumValues(pageRanges));
    EXPECT_EQ("Tray2", textOf(static_cast<zundo_int_object_s *>(nextValue(pageRanges)),
                              "page-range-output-bin-name"));
    EXPECT_EQ("Tray4", textOf(static_cast<zundo_int_object_s *>(nextValue(pageRanges)),
                              "page-range-output-bin-name"));
    destroyAttribute(pageRanges);
}

TEST(ComponentReader, LinkOfAnUnknownProcessStillGivesCopies) {
    ReadTicket read(jdfTicket(pools("<Component ID=\"C1\"/>",
                                    "<ComponentLink rRef=\"C1\" CombinedProcessIndex=\"9\" "
                                    " Amount=\"0x10\" ActualAmount=\"many\"/>")));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    EXPECT_EQ(16, intOf(read.job(), "job-copies"));
    EXPECT_EQ(-12345.0, doubleOf(read.job(), "job-copies-actual"));
}

TEST(ComponentReader, ComponentMediaReachesTheCoverBindingInEitherOrder) {
    const std::string binding = "<CoverApplicationParams ID=\"CA\" Class=\"Parameter\"/>";
    const std::string component = "<Component ID=\"C1\"><MediaRef rRef=\"M1\"/></Component>";
    for (const std::string &resources : {binding + component, component + binding}) {
        ReadTicket read(jdfTicket(pools(kMedia + resources)));
        ASSERT_EQ(ZUNDO_OK, read.result.status);
        zundo_int_object_s *cover = firstObject(read.job(), "job-binding");
        ASSERT_NE(nullptr, cover) << resources;
        zundo_int_object_s *media = firstObject(cover, "binding-media");
        ASSERT_NE(nullptr, media) << resources;
        EXPECT_EQ("Plain", textOf(media, "media-name"));
    }
}

TEST(DispositionReader, MinimumDurationWinsAndTheFormatFollowsTheDigitalPrintingInput) {
    struct Case {
        const char *combinedProcessIndex;
        int format;
    } cases[] = {{"1", 2}, {"0", 0}};
    for (const Case &c : cases) {
        ReadTicket read(jdfTicket(pools(
            "<RunList ID=\"RL\" Class=\"Parameter\">"
            " <Disposition Until=\"2024-01-02T03:04:05+00:00\" MinDuration=\"P1D\" "
            "  Priority=\"high\"/>"
            "</RunList>",
            "<RunListLink rRef=\"RL\" Usage=\"Input\" CombinedProcessIndex=\"" +
                std::string(c.combinedProcessIndex) + "\"/>")));
        ASSERT_EQ(ZUNDO_OK, read.result.status);
        zundo_int_object_s *retain = firstObject(read.job(), "job-retain");
        ASSERT_NE(nullptr, retain);
        EXPECT_EQ(3, intOf(retain, "retain-action"));
        EXPECT_EQ("-", dateTimeOf(retain, "retain-until"));
        EXPECT_EQ("P0Y0M1DT00H00M", periodOf(retain, "retain-time-period"));
        EXPECT_EQ(-1, intOf(retain, "retain-priority", -1));
        EXPECT_EQ(c.format, intOf(retain, "retain-format", 0)) << c.combinedProcessIndex;
    }
}

TEST(DeviceReader, JobLevelResourcesConvertTheirValues) {
    ReadTicket read(jdfTicket(pools(
        "<Device ID=\"D1\" DeviceID=\"press\">"
        " <morvellan:ControllerInfo InstalledMemory=\"512MB\" "
        "  AvailableFunctions=\"Staple  Punch\"/>"
        "</Device>"
        "<Device ID=\"D2\" DeviceID=\"second\"/>"
        "<morvellan:RecordInfo ID=\"R\" RecordIndex=\"1~3 7\"/>"
        "<PDLResourceAlias ID=\"A\" ResourceType=\"PageDefinition\" SourceName=\"PD\"/>"
        "<morvellan:CalibrationTypeParams ID=\"CT\" BaseScreen=\"175Line\" Locked=\"true\">"
        " <DensityConversionParameter FormatVersion=\"2\">AAEC</DensityConversionParameter>"
        "</morvellan:CalibrationTypeParams>"
        "<InterpretingParams ID=\"IP\" MirrorAround=\"MediaWidth\">"
        " <ObjectResolution Resolution=\"600 300\"/>"
        " <morvellan:MorvellanInterpretingParams Brightness=\"105% Dark\" UseMaster=\"12abc\"/>"
        "</InterpretingParams>")));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    zundo_int_object_s *job = read.job();
    EXPECT_EQ("press", textOf(job, "job-destination-name"));
    EXPECT_EQ(512.0, doubleOf(job, "job-destination-controller-installed-memory"));
    EXPECT_EQ((std::vector<std::string>{"Staple", "Punch"}),
              textsOf(job, "job-destination-controller-available-functions"));
    EXPECT_EQ(2, countOf(job, "job-process-records"));
    EXPECT_EQ("PD", textOf(job, "job-page-definition"));

    zundo_int_object_s *calibration = firstObject(job, "job-calibration-type");
    ASSERT_NE(nullptr, calibration);
    EXPECT_EQ(5, intOf(calibration, "calibration-type-base-screen"));
    EXPECT_EQ(1, intOf(calibration, "calibration-type-read-only"));
    EXPECT_EQ("2", textOf(calibration, "calibration-type-density-conversion-param-version"));
    zundo_int_attribute_s *density = get(calibration, "calibration-type-density-conversion-param");
    ASSERT_TRUE(hasNextValue(density));
    EXPECT_EQ(3u, getBinaryDataLength(static_cast<zundo_binary_object_s *>(nextValue(density))));
    destroyAttribute(density);

    EXPECT_EQ(1, intOf(job, "job-mirror-surface"));
    EXPECT_EQ(600, intOf(job, "job-resolution-image-x"));
    EXPECT_EQ(300, intOf(job, "job-resolution-image-y"));
    zundo_int_object_s *rip = firstObject(job, "job-rip-params");
    ASSERT_NE(nullptr, rip);
    EXPECT_EQ(5, intOf(rip, "rip-params-brightness"));
    EXPECT_EQ(12, intOf(rip, "rip-params-use-master"));
    EXPECT_EQ(-1, intOf(rip, "rip-params-create-master", -1));
}

TEST(DeviceReader, InterpretingParamsWithoutTheVendorChildKeepWhatItRead) {
    ReadTicket read(jdfTicket(pools("<InterpretingParams ID=\"IP\" MirrorAround=\"None\">"
                                    " <PDFInterpretingParams morvellan:CacheXObjects=\"On\"/>"
                                    "</InterpretingParams>")));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    EXPECT_EQ(2, intOf(read.job(), "job-mirror-surface"));
    EXPECT_EQ(3, intOf(read.job(), "job-pdf-cache-xobjects"));
    EXPECT_EQ(nullptr, firstObject(read.job(), "job-rip-params"));
}

TEST(ComponentReader, LinkOfAFinishingProcessSetsItsEdgeAndBin) {
    ReadTicket read(jdfTicket(
        pools("<StitchingParams ID=\"S\" Class=\"Parameter\" StitchType=\"Saddle\" "
              " NumberOfStitches=\"2\"/>"
              "<TrimmingParams ID=\"T\" Class=\"Parameter\" TrimmingType=\"Detailed\"/>"
              "<Component ID=\"C1\"><Location LocationName=\"Stacker\"/></Component>",
              "<StitchingParamsLink rRef=\"S\" Usage=\"Input\" CombinedProcessIndex=\"2\"/>"
              "<TrimmingParamsLink rRef=\"T\" Usage=\"Input\" CombinedProcessIndex=\"3\"/>"
              "<ComponentLink rRef=\"C1\" Usage=\"Output\" CombinedProcessIndex=\"2\" "
              " Orientation=\"Rotate90\"/>"
              "<ComponentLink rRef=\"C1\" Usage=\"Output\" CombinedProcessIndex=\"3\"/>")));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    zundo_int_object_s *stitching = firstObject(read.job(), "job-stitching");
    ASSERT_NE(nullptr, stitching);
    EXPECT_EQ(4, intOf(stitching, "stitching-reference-edge"));
    zundo_int_object_s *trimming = firstObject(read.job(), "job-trimming");
    ASSERT_NE(nullptr, trimming);
    EXPECT_EQ("Stacker", textOf(trimming, "trimming-output-bin-name"));
}

}  // namespace
