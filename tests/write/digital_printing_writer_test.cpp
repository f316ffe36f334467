// Job-level printing, interpreting and device settings written through the
// public API: copies, jog offset, AFP resources, RIP parameters, records,
// named features, retain and the destination controller.
#include <gtest/gtest.h>

#include <string>

#include "write/write_test_support.h"
#include "zundo.h"

namespace {

xercesc::DOMElement *onlyChild(const xercesc::DOMElement *parent, const std::string &tag) {
    std::vector<xercesc::DOMElement *> children = childElements(parent, tag);
    EXPECT_EQ(children.size(), 1u) << tag;
    return children.empty() ? nullptr : children.front();
}

// The RunList whose link names these processes: "4" for the printed
// output, "0 1" for the pages.
xercesc::DOMElement *runListFor(const WrittenTicket &written, const std::string &processes) {
    for (xercesc::DOMElement *runList : childElements(written.pool("ResourcePool"), "RunList"))
        if (attribute(written.link(attribute(runList, "ID")), "CombinedProcessIndex") == processes)
            return runList;
    return nullptr;
}

zundo_int_object_s *retainWith(int action, int format) {
    zundo_int_object_s *retain = nullptr;
    EXPECT_EQ(newRetain(&retain, action), ZUNDO_OK);
    EXPECT_EQ(setIntegerAttribute(retain, "retain-format", format), ZUNDO_OK);
    return retain;
}

TEST(WriteDigitalPrinting, CopiesAndJogOffset) {
    TestTicket ticket;
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-copies", 3), ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(ticket.job, "job-copies-actual", 2.5), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-jog-offset", 1), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-jog-offset-amount", 12), ZUNDO_OK);
    WrittenTicket none(ticket.ticket);
    ASSERT_EQ(none.status, ZUNDO_OK);

    xercesc::DOMElement *amounts = childWith(none.pool("ResourceLinkPool"), "ComponentLink",
                                             "Usage", "Output");
    ASSERT_NE(amounts, nullptr);
    EXPECT_EQ(attribute(amounts, "Amount"), "3");
    EXPECT_EQ(attribute(amounts, "ActualAmount"), "2.5");
    EXPECT_EQ(attribute(amounts, "CombinedProcessIndex"), "4");

    xercesc::DOMElement *disjointing = onlyChild(none.resource("DPP0"), "Disjointing");
    ASSERT_NE(disjointing, nullptr);
    EXPECT_EQ(attribute(disjointing, "OffsetDirection"), "None");
    EXPECT_FALSE(disjointing->hasAttribute(u"OffsetUnits"));
    EXPECT_EQ(attribute(disjointing, "OffsetAmount"), "12");

    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-jog-offset", 4), ZUNDO_OK);
    WrittenTicket copies(ticket.ticket);
    disjointing = onlyChild(copies.resource("DPP0"), "Disjointing");
    ASSERT_NE(disjointing, nullptr);
    EXPECT_EQ(attribute(disjointing, "OffsetUnits"), "JobCopies");
    EXPECT_EQ(attribute(disjointing, "OffsetDirection"), "Reset");
}

TEST(WriteDigitalPrinting, InterpretingParamsAndAFPResources) {
    TestTicket ticket;
    zundo_int_object_s *job = ticket.job;
    ASSERT_EQ(setStringAttribute(job, "job-form-definition", "F1FORM"), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(job, "job-page-definition", "P1PAGE"), ZUNDO_OK);
    zundo_int_object_s *rip = nullptr;
    ASSERT_EQ(newRipParams(&rip, 1, 4, 0, 2, 0, 5, 0, 1, 2, 0, 1, -1), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(job, "job-rip-params", rip), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-mirror-surface", 1), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-pdf-cache-xobjects", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-resolution-image-x", 300), ZUNDO_OK);
    WrittenTicket onlyX(ticket.ticket);
    EXPECT_TRUE(childElements(onlyX.resource("IIP0"), "ObjectResolution").empty());

    ASSERT_EQ(setIntegerAttribute(job, "job-resolution-image-y", 600), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    const char *const aliases[][2] = {{"PRA0", "F1FORM"}, {"PRA1", "P1PAGE"}};
    const char *const types[] = {"FormDefinition", "PageDefinition"};
    for (int i = 0; i < 2; ++i) {
        xercesc::DOMElement *alias = written.resource(aliases[i][0]);
        ASSERT_NE(alias, nullptr) << aliases[i][0];
        EXPECT_EQ(attribute(alias, "SourceName"), aliases[i][1]);
        EXPECT_EQ(attribute(alias, "ResourceType"), types[i]);
        EXPECT_EQ(attribute(written.link(aliases[i][0]), "CombinedProcessIndex"), "2");
    }

    xercesc::DOMElement *params = written.resource("IIP0");
    EXPECT_EQ(attribute(params, "MirrorAround"), "MediaWidth");
    EXPECT_EQ(childNames(params),
              (std::vector<std::string>{"morvellan:MorvellanInterpretingParams",
                                        "PDFInterpretingParams", "ObjectResolution"}));
    xercesc::DOMElement *vendor = onlyChild(params, "morvellan:MorvellanInterpretingParams");
    EXPECT_EQ(attribute(vendor, "BlackDetection"), "true");
    EXPECT_EQ(attribute(vendor, "CombinedSeparations"), "false");
    EXPECT_EQ(attribute(vendor, "Brightness"), "100% Normal");
    EXPECT_EQ(attribute(vendor, "CreateMaster"), "2");
    EXPECT_EQ(attribute(vendor, "UseMaster"), "-1");
    EXPECT_EQ(attribute(vendor, "ImageSmooth"), "Below 300 ppi");
    EXPECT_EQ(attribute(vendor, "PrintMode"), "Grayscale");
    // Choices without a value are left out rather than written empty.
    EXPECT_FALSE(vendor->hasAttribute(u"DigitalPressMode"));
    EXPECT_EQ(attribute(onlyChild(params, "PDFInterpretingParams"), "morvellan:CacheXObjects"),
              "Off");
    xercesc::DOMElement *resolution = onlyChild(params, "ObjectResolution");
    EXPECT_EQ(attribute(resolution, "Resolution"), "300 600");
    EXPECT_EQ(attribute(resolution, "SourceObjects"), "ImagePhotographic");
}

TEST(WriteDigitalPrinting, RecordsNeedBothCounts) {
    TestTicket ticket;
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-number-records", 4), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-unstructure-allowed", 0), ZUNDO_OK);
    WrittenTicket without(ticket.ticket);
    ASSERT_EQ(without.status, ZUNDO_OK);
    EXPECT_EQ(without.resource("RI0"), nullptr);

    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-max-pages-per-record", 8), ZUNDO_OK);
    zundo_range_s *first = nullptr;
    zundo_range_s *second = nullptr;
    ASSERT_EQ(newRange(&first, 1, 3), ZUNDO_OK);
    ASSERT_EQ(newRange(&second, 5, 5), ZUNDO_OK);
    zundo_int_attribute_s *records = nullptr;
    ASSERT_EQ(newAttribute(&records, "job-process-records", "R", first), ZUNDO_OK);
    ASSERT_EQ(addValue(records, second), ZUNDO_OK);
    ASSERT_EQ(set(ticket.job, records), ZUNDO_OK);
    destroyAttribute(records);
    WrittenTicket with(ticket.ticket);
    xercesc::DOMElement *info = with.resource("RI0");
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(tagName(info), "morvellan:RecordInfo");
    EXPECT_EQ(attribute(info, "MaxPagesPerRecord"), "8");
    EXPECT_EQ(attribute(info, "NRecord"), "4");
    EXPECT_FALSE(info->hasAttribute(u"MinPagesPerRecord"));
    EXPECT_EQ(attribute(info, "UnstructureAllowed"), "false");
    EXPECT_EQ(attribute(info, "RecordIndex"), "1 ~ 3 5");
}

TEST(WriteDigitalPrinting, NamedFeaturesOnTheNode) {
    TestTicket ticket;
    zundo_int_object_s *duplex = nullptr;
    zundo_int_object_s *stapling = nullptr;
    ASSERT_EQ(newNamedFeature(&duplex, "Duplex", "On"), ZUNDO_OK);
    ASSERT_EQ(newNamedFeature(&stapling, "Stapling", "Off"), ZUNDO_OK);
    zundo_int_object_s *features[] = {duplex, stapling, nullptr};
    ASSERT_EQ(setObjectsAttribute(ticket.job, "job-named-features", features), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    EXPECT_EQ(attribute(written.root(), "NamedFeatures"), "Duplex On Stapling Off");
}

TEST(WriteDigitalPrinting, RetainPicksItsRunListAndAction) {
    TestTicket until;
    zundo_int_object_s *retain = retainWith(4, 2);
    zundo_date_time_s *time = nullptr;
    ASSERT_EQ(newDateTimeFromString(&time, "2024-05-06T07:08:09+02:00"), ZUNDO_OK);
    ASSERT_EQ(setDateTimeAttribute(retain, "retain-until", time), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(retain, "retain-print-first", 0), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(retain, "retain-priority", 40), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(until.job, "job-retain", retain), ZUNDO_OK);
    WrittenTicket kept(until.ticket);
    ASSERT_EQ(kept.status, ZUNDO_OK);
    xercesc::DOMElement *disposition = onlyChild(runListFor(kept, "4"), "Disposition");
    ASSERT_NE(disposition, nullptr);
    EXPECT_EQ(attribute(disposition, "Until"), "2024-05-06T07:08:09+02:00");
    EXPECT_EQ(attribute(disposition, "ExtraDuration"), "P0Y0M0DT00H00M");
    EXPECT_EQ(attribute(disposition, "DispositionAction"), "Delete");
    EXPECT_EQ(attribute(disposition, "Priority"), "40");
    EXPECT_EQ(attribute(kept.resource("DPP0"), "Status"), "Unavailable");
    EXPECT_EQ(attribute(kept.resource("LPP0"), "Status"), "Available");

    TestTicket archived;
    ASSERT_EQ(setObjectAttribute(archived.job, "job-retain", retainWith(2, 1)), ZUNDO_OK);
    WrittenTicket pages(archived.ticket);
    ASSERT_EQ(pages.status, ZUNDO_OK);
    disposition = onlyChild(runListFor(pages, "0 1"), "Disposition");
    ASSERT_NE(disposition, nullptr);
    EXPECT_EQ(attribute(disposition, "DispositionAction"), "Archive");
    EXPECT_FALSE(disposition->hasAttribute(u"ExtraDuration"));
}

TEST(WriteDigitalPrinting, DestinationConnectorAndController) {
    TestTicket ticket;
    zundo_int_object_s *job = ticket.job;
    ASSERT_EQ(setStringAttribute(job, "job-destination-connector-file-format", "PDF/1.4"),
              ZUNDO_OK);
    const char *const functions[] = {"Print", "Scan", nullptr};
    ASSERT_EQ(setStringsAttribute(job, "job-destination-controller-available-functions",
                                  functions),
              ZUNDO_OK);
    ASSERT_EQ(setDoubleAttribute(job, "job-destination-controller-installed-memory", 512.25),
              ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(job, "job-destination-controller-version", "2.1"), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    xercesc::DOMElement *device = written.resource("D0");
    ASSERT_NE(device, nullptr);
    EXPECT_EQ(attribute(onlyChild(device, "morvellan:ConnectorInfo"), "PrintFileFormat"),
              "application/pdf");
    xercesc::DOMElement *controller = onlyChild(device, "morvellan:ControllerInfo");
    EXPECT_EQ(attribute(controller, "AvailableFunctions"), "Print Scan");
    EXPECT_EQ(attribute(controller, "InstalledMemory"), "512.25");
    EXPECT_EQ(attribute(controller, "Version"), "2.1");
    EXPECT_FALSE(controller->hasAttribute(u"Name"));
}

}  // namespace
