// Writing job tickets through the public API: the root node, its Types,
// pools and comments, node attributes from job and ticket, and the text.
#include <gtest/gtest.h>

#include <string>

#include "write/write_test_support.h"
#include "zundo.h"

namespace {

const char kBaseTypes[] = "LayoutPreparation Imposition Interpreting Rendering DigitalPrinting";

zundo_int_object_s *newTestMedia() {
    zundo_int_object_s *media = nullptr;
    EXPECT_EQ(newMedia(&media, "Plain"), ZUNDO_OK);
    return media;
}

TEST(WriteTicket, EmptyJobGivesTheFixedRoot) {
    TestTicket ticket;
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    ASSERT_NE(written.root(), nullptr);
    xercesc::DOMElement *root = written.root();
    EXPECT_EQ(tagName(root), "JDF");
    EXPECT_EQ(attribute(root, "ID"), "JDF1");
    EXPECT_EQ(attribute(root, "Type"), "Combined");
    EXPECT_EQ(written.types(), kBaseTypes);
    EXPECT_EQ(attribute(root, "Status"), "Ready");
    EXPECT_EQ(attribute(root, "Activation"), "Informative");
    EXPECT_EQ(attribute(root, "Version"), "1.4");
    EXPECT_EQ(attribute(root, "ICSVersions"), "IDP_L0-1.3");
    EXPECT_EQ(attribute(root, "Category"), "IDP.DigitalPrinting");
    EXPECT_EQ(attribute(root, "xmlns"), "http://www.CIP4.org/JDFSchema_1_1");
    EXPECT_EQ(attribute(root, "xmlns:morvellan"), "Morvellan");
    EXPECT_FALSE(root->hasAttribute(u"JobID"));

    // The link pool comes first because the first resource asks for it first.
    EXPECT_EQ(childNames(root),
              (std::vector<std::string>{"Comment", "ResourceLinkPool", "ResourcePool"}));
    xercesc::DOMElement *comment = childElements(root, "Comment").front();
    EXPECT_EQ(attribute(comment, "Name"), "morvellan:ApiVersion");
    EXPECT_EQ(utf8(comment->getTextContent()), "1.4.13 Drop 382");

    // In pool order, whatever the order of creation: the one document's
    // LayoutElement and RunList come first; every write makes
    // RenderingParams, and the Component carries the default copy count.
    EXPECT_EQ(childNames(written.pool("ResourcePool")),
              (std::vector<std::string>{"LayoutElement", "RunList", "LayoutPreparationParams",
                                        "InterpretingParams", "RenderingParams", "Component",
                                        "DigitalPrintingParams"}));
    const char *const ids[] = {"LPP0", "IIP0", "DPP0"};
    const char *const indexes[] = {"0", "2", "4"};
    for (int i = 0; i < 3; ++i) {
        SCOPED_TRACE(ids[i]);
        ASSERT_NE(written.resource(ids[i]), nullptr);
        EXPECT_EQ(attribute(written.resource(ids[i]), "Class"), "Parameter");
        EXPECT_EQ(attribute(written.resource(ids[i]), "Status"), "Available");
        ASSERT_NE(written.link(ids[i]), nullptr);
        EXPECT_EQ(attribute(written.link(ids[i]), "Usage"), "Input");
        EXPECT_EQ(attribute(written.link(ids[i]), "CombinedProcessIndex"), indexes[i]);
    }
}

TEST(WriteTicket, TextIsPrettyPrintedStandaloneUtf8) {
    TestTicket ticket;
    const std::string name = "Gr\xC3\xBC\xC3\x9F" "e \xE2\x98\x83";
    ASSERT_EQ(setStringAttribute(ticket.job, "job-jdf-node-name", name.c_str()), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    EXPECT_EQ(written.text.rfind("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"", 0),
              0u);
    EXPECT_NE(written.text.find("\n  <ResourcePool>\n    <"), std::string::npos);
    // Written as UTF-8 bytes, not as character references.
    EXPECT_NE(written.text.find("DescriptiveName=\"" + name + "\""), std::string::npos);
    EXPECT_EQ(attribute(written.root(), "DescriptiveName"), name);
}

TEST(WriteTicket, NodeAttributesComeFromJobAndTicket) {
    TestTicket ticket;
    ASSERT_EQ(setStringAttribute(ticket.job, "job-id", "J-42"), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(ticket.ticket, "jt-jdf-node-id", "_node7"), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-jdf-node-status", 4), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-jdf-node-status-details", 15), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(ticket.job, "job-internal-id", "part 3"), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(ticket.ticket, "jt-comment", "Weekly <report>"), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(ticket.ticket, "jt-version", "2.1"), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    xercesc::DOMElement *root = written.root();
    EXPECT_EQ(attribute(root, "JobID"), "J-42");
    EXPECT_EQ(attribute(root, "ID"), "_node7");
    EXPECT_EQ(attribute(root, "Status"), "Stopped");
    EXPECT_EQ(attribute(root, "StatusDetails"), "Processing");
    EXPECT_EQ(attribute(root, "JobPartID"), "part 3");
    EXPECT_EQ(attribute(root, "TemplateVersion"), "2.1");
    std::vector<xercesc::DOMElement *> comments = childElements(root, "Comment");
    ASSERT_EQ(comments.size(), 2u);
    EXPECT_EQ(attribute(comments[1], "Name"), "TemplateDescription");
    EXPECT_EQ(utf8(comments[1]->getTextContent()), "Weekly <report>");
    // Without a project there is no Created audit and no AuditPool.
    EXPECT_EQ(written.pool("AuditPool"), nullptr);
}

TEST(WriteTicket, ProjectGoesOnTheCreatedAudit) {
    TestTicket ticket;
    ASSERT_EQ(setStringAttribute(ticket.ticket, "jt-project-id", "Brochures"), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(ticket.ticket, "jt-project-version", "7"), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    EXPECT_EQ(childNames(written.root()).back(), "AuditPool");
    std::vector<xercesc::DOMElement *> audits = childElements(written.pool("AuditPool"));
    ASSERT_EQ(audits.size(), 1u);
    EXPECT_EQ(tagName(audits[0]), "Created");
    EXPECT_EQ(attribute(audits[0], "AgentName"), "Brochures");
    EXPECT_EQ(attribute(audits[0], "AgentVersion"), "7");
    EXPECT_EQ(attribute(audits[0], "TimeStamp"), "0000-00-00T00:00:00-00:00");
}

TEST(WriteTicket, UnknownStatusCodesKeepTheDefaults) {
    TestTicket ticket;
    ASSERT_EQ(setIntegerAttribute(ticket.job, "job-jdf-node-status", 8), ZUNDO_OK);
    WrittenTicket written(ticket.ticket);
    ASSERT_EQ(written.status, ZUNDO_OK);
    EXPECT_EQ(attribute(written.root(), "Status"), "Ready");
    EXPECT_FALSE(written.root()->hasAttribute(u"StatusDetails"));
}

TEST(WriteTicket, ControlCharactersAreEncodedWhenAskedFor) {
    TestTicket ticket;
    ASSERT_EQ(setStringAttribute(ticket.job, "job-jdf-node-name", "a\x01z"), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(ticket.ticket, "jt-comment", "line\x1Bmore"), ZUNDO_OK);
    setControlCharacterEncoding(1);
    setControlCharacterDecoding(1);
    WrittenTicket written(ticket.ticket);
    setControlCharacterEncoding(0);
    EXPECT_EQ(getControlCharacterDecodingFlag(), 1);
    setControlCharacterDecoding(0);
    ASSERT_EQ(written.status, ZUNDO_OK);
    EXPECT_EQ(attribute(written.root(), "DescriptiveName"), "a&#x01;z");
    EXPECT_EQ(utf8(childElements(written.root(), "Comment")[1]->getTextContent()),
              "line&#x1B;more");
}

TEST(WriteTicket, TypesFollowTheFinishingOfJobDocumentsAndPageRanges) {
    {
        TestTicket ticket;
        zundo_int_object_s *stitching = nullptr;
        ASSERT_EQ(newStitching(&stitching, 2, 2, 3), ZUNDO_OK);
        ASSERT_EQ(setObjectAttribute(ticket.job, "job-stitching", stitching), ZUNDO_OK);
        EXPECT_EQ(WrittenTicket(ticket.ticket).types(), std::string(kBaseTypes) + " Stitching");
    }
    {
        // Document level: the documents' own finishing counts.
        TestTicket ticket;
        zundo_int_object_s *folding = nullptr;
        ASSERT_EQ(newFolding(&folding, "F4-1"), ZUNDO_OK);
        ASSERT_EQ(setIntegerAttribute(ticket.job, "job-level-pages", 0), ZUNDO_OK);
        ASSERT_EQ(setObjectAttribute(getDocuments(ticket.job)[0], "document-folding", folding),
                  ZUNDO_OK);
        EXPECT_EQ(WrittenTicket(ticket.ticket).types(), std::string(kBaseTypes) + " Folding");
    }
    {
        // Job level: the job's page ranges count, the documents' do not.
        TestTicket ticket;
        zundo_int_object_s *holeMaking = nullptr;
        zundo_int_object_s *pageRange = nullptr;
        zundo_int_object_s *trapping = nullptr;
        ASSERT_EQ(newHoleMaking(&holeMaking, 3, 2), ZUNDO_OK);
        ASSERT_EQ(newPageRange(&pageRange, nullptr, nullptr), ZUNDO_OK);
        ASSERT_EQ(setObjectAttribute(pageRange, "page-range-hole-making", holeMaking), ZUNDO_OK);
        ASSERT_EQ(setObjectAttribute(ticket.job, "job-page-ranges", pageRange), ZUNDO_OK);
        ASSERT_EQ(newTrapping(&trapping, 2), ZUNDO_OK);
        ASSERT_EQ(setObjectAttribute(getDocuments(ticket.job)[0], "document-trapping", trapping),
                  ZUNDO_OK);
        EXPECT_EQ(WrittenTicket(ticket.ticket).types(), std::string(kBaseTypes) + " HoleMaking");
    }
    {
        TestTicket ticket;
        ASSERT_EQ(setStringAttribute(ticket.job, "job-trimming-units", "mm"), ZUNDO_OK);
        EXPECT_EQ(WrittenTicket(ticket.ticket).types(), std::string(kBaseTypes) + " Trimming");
    }
}

TEST(WriteTicket, BindingTypeChoosesTheBindingProcesses) {
    const struct {
        int type;
        const char *processes;
    } cases[] = {
        {1, " CoverApplication SpineTaping RingBinding WireCombBinding"},
        {2, " CoverApplication"},
        {3, " SpineTaping"},
        {6, " RingBinding"},
        {8, " WireCombBinding"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.type);
        TestTicket ticket;
        zundo_int_object_s *binding = nullptr;
        ASSERT_EQ(newBinding(&binding, c.type, 2), ZUNDO_OK);
        ASSERT_EQ(setObjectAttribute(ticket.job, "job-binding", binding), ZUNDO_OK);
        EXPECT_EQ(WrittenTicket(ticket.ticket).types(), std::string(kBaseTypes) + c.processes);
    }
}

TEST(WriteTicket, ColourSettingsAddColorSpaceConversion) {
    const std::string withConversion =
        "LayoutPreparation Imposition Interpreting Rendering ColorSpaceConversion "
        "DigitalPrinting";
    {
        TestTicket ticket;
        ASSERT_EQ(setIntegerAttribute(ticket.job, "job-black-point-compensation-rgb-image", 1),
                  ZUNDO_OK);
        WrittenTicket written(ticket.ticket);
        EXPECT_EQ(written.types(), withConversion);
        // The processes after it move up one index.
        EXPECT_EQ(attribute(written.link("DPP0"), "CombinedProcessIndex"), "5");
    }
    {
        // "false" is a value too.
        TestTicket ticket;
        ASSERT_EQ(setIntegerAttribute(ticket.job, "job-use-pdfx-output-intent-profile", 0),
                  ZUNDO_OK);
        EXPECT_EQ(WrittenTicket(ticket.ticket).types(), withConversion);
    }
    {
        // Grey-to-black conversion of CMY is not a colour space conversion.
        TestTicket ticket;
        ASSERT_EQ(setIntegerAttribute(ticket.job, "job-convert-cmy-gray-to-black", 1), ZUNDO_OK);
        EXPECT_EQ(WrittenTicket(ticket.ticket).types(), kBaseTypes);
    }
    {
        TestTicket ticket;
        zundo_int_object_s *media = newTestMedia();
        ASSERT_EQ(setStringAttribute(media, "media-color-profile-output-front", "paper.icc"),
                  ZUNDO_OK);
        ASSERT_EQ(setObjectAttribute(ticket.job, "job-media", media), ZUNDO_OK);
        EXPECT_EQ(WrittenTicket(ticket.ticket).types(), withConversion);
    }
    {
        TestTicket ticket;
        zundo_int_object_s *binding = nullptr;
        zundo_int_object_s *media = newTestMedia();
        ASSERT_EQ(setIntegerAttribute(media, "media-color-rendering-intent", 1), ZUNDO_OK);
        ASSERT_EQ(newBinding(&binding, 2, 2), ZUNDO_OK);
        ASSERT_EQ(setObjectAttribute(binding, "binding-media", media), ZUNDO_OK);
        ASSERT_EQ(setObjectAttribute(ticket.job, "job-binding", binding), ZUNDO_OK);
        EXPECT_EQ(WrittenTicket(ticket.ticket).types(),
                  withConversion + " CoverApplication");
    }
}

TEST(WriteTicket, RefusedTicketsGiveNoText) {
    TestTicket ticket;
    EXPECT_EQ(writeJobTicketString(ticket.ticket, nullptr), ZUNDO_INVALID_ARGUMENT);
    char *text = reinterpret_cast<char *>(1);
    EXPECT_EQ(writeJobTicketString(nullptr, &text), ZUNDO_ERROR);
    EXPECT_EQ(text, nullptr);
    text = reinterpret_cast<char *>(1);
    EXPECT_EQ(writeJobTicketString(ticket.job, &text), ZUNDO_ERROR);
    EXPECT_EQ(text, nullptr);
    releaseJobTicketString(nullptr);

    // The charset is not written, but the document is not made without it.
    zundo_int_attribute_s *noCharset = nullptr;
    ASSERT_EQ(newAttribute(&noCharset, "jt-charset", ZUNDO_KIND_STRING, nullptr), ZUNDO_OK);
    ASSERT_EQ(set(ticket.ticket, noCharset), ZUNDO_OK);
    destroyAttribute(noCharset);
    TraceCapture trace;
    text = reinterpret_cast<char *>(1);
    EXPECT_EQ(writeJobTicketString(ticket.ticket, &text), ZUNDO_ERROR);
    EXPECT_EQ(text, nullptr);
    EXPECT_TRUE(trace.saw("parser_error 12, \n"));
}

}  // namespace
