// Reading a job ticket from text: what the JDF node and its own children
// become, which failures fail the read and what is skipped.
#include <gtest/gtest.h>

#include "read/process_table.h"
#include "read_test_support.h"
#include "xml/jdf_test_support.h"

namespace {

const char kDeclaration[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

std::string comment(const std::string &name, const std::string &text,
                    const std::string &extra = "") {
    return "<Comment Name=\"" + name + "\" " + extra + ">" + text + "</Comment>\n";
}

TEST(ReadDriver, NodeAttributesBecomeTicketAndJobAttributes) {
    ReadTicket read(jdfTicket(pools(""),
                              "TemplateVersion=\"2.0\" JobPartID=\"part7\" "
                              "DescriptiveName=\"Brochure\" StatusDetails=\"JobHeld\" "
                              "JobID=\"J42\" morvellan:SnapshotName=\"snap\" "
                              "Comment=\"not read\""));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    EXPECT_EQ(0, read.result.line);
    zundo_int_object_s *ticket = read.ticket;
    zundo_int_object_s *job = read.job();
    EXPECT_EQ("2.0", textOf(ticket, "jt-version"));
    EXPECT_EQ("n0", textOf(ticket, "jt-jdf-node-id"));
    EXPECT_EQ("UTF-8", textOf(ticket, "jt-charset"));
    EXPECT_EQ("1.4", textOf(ticket, "jt-syntax-version-from-jt"));
    EXPECT_EQ("1.4", textOf(ticket, "jt-syntax-version"));
    EXPECT_EQ("part7", textOf(job, "job-internal-id"));
    EXPECT_EQ("Brochure", textOf(job, "job-jdf-node-name"));
    EXPECT_EQ("J42", textOf(job, "job-id"));
    EXPECT_EQ("snap", textOf(job, "job-snapshot-name"));
    EXPECT_EQ(6, intOf(job, "job-jdf-node-status"));
    EXPECT_EQ(9, intOf(job, "job-jdf-node-status-details"));
    zundo_int_object_s **documents = getDocuments(job);
    ASSERT_NE(nullptr, documents);
    EXPECT_NE(nullptr, documents[0]);
    EXPECT_EQ(nullptr, documents[1]);
}

TEST(ReadDriver, UnknownNodeValuesAndRefusedIdDoNotFailTheRead) {
    ReadTicket own(std::string(kDeclaration) +
                   "<JDF ID=\"1 bad\" Status=\"Sleeping\" StatusDetails=\"Napping\" "
                   "Version=\"9.9\"/>");
    ASSERT_EQ(ZUNDO_OK, own.result.status);
    EXPECT_EQ("-", textOf(own.ticket, "jt-jdf-node-id"));
    EXPECT_EQ("9.9", textOf(own.ticket, "jt-syntax-version-from-jt"));
    EXPECT_EQ("1.4", textOf(own.ticket, "jt-syntax-version"));
    EXPECT_EQ(-12345, intOf(own.job(), "job-jdf-node-status"));
    EXPECT_EQ(-12345, intOf(own.job(), "job-jdf-node-status-details"));
    ReadTicket unversioned(std::string(kDeclaration) + "<JDF/>");
    ASSERT_EQ(ZUNDO_OK, unversioned.result.status);
    EXPECT_EQ("", textOf(unversioned.ticket, "jt-syntax-version-from-jt"));
}

TEST(ReadDriver, NamedFeaturesArePairsAndALastNameIsDropped) {
    ReadTicket read(jdfTicket("", "NamedFeatures=\"a 1  b 2 c\""));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    zundo_int_attribute_s *features = get(read.job(), "job-named-features");
    std::vector<std::string> pairs;
    while (hasNextValue(features)) {
        auto *feature = static_cast<zundo_int_object_s *>(nextValue(features));
        zundo_int_attribute_s *values = get(feature, "named-feature-values");
        auto *value = static_cast<zundo_int_object_s *>(nextValue(values));
        pairs.push_back(textOf(feature, "named-feature-name") + "=" +
                        textOf(value, "named-feature-value-value"));
        destroyAttribute(values);
    }
    destroyAttribute(features);
    EXPECT_EQ((std::vector<std::string>{"a=1", "b=2"}), pairs);
}

TEST(ReadDriver, ActivationAndHoldActionDecideTheHold) {
    struct Case {
        const char *attributes;
        int hold;    // -12345: no value
        int action;  // -12345: no value
    } cases[] = {
        {"Activation=\"Held\"", 1, -12345},
        {"Activation=\"Held\" morvellan:ActivationDetails=\"HoldForeverBeforePrint\"", 1, 2},
        {"Activation=\"Held\" morvellan:ActivationDetails=\"PrintAndHold\"", 1, 3},
        {"Activation=\"Active\"", 0, -12345},
        {"Activation=\"Active\" morvellan:ActivationDetails=\"RIPAndHold\"", 0, 5},
        {"Activation=\"Active\" morvellan:ActivationDetails=\"HoldBeforePrint\"", -12345, 1},
        {"Activation=\"Informative\" morvellan:ActivationDetails=\"Print\"", -12345, 6},
        {"Activation=\"Dormant\" morvellan:ActivationDetails=\"\"", -12345, -12345},
        {"morvellan:ActivationDetails=\"Unheard\"", -12345, -12345},
    };
    for (const Case &c : cases) {
        ReadTicket read(jdfTicket("", c.attributes));
        ASSERT_EQ(ZUNDO_OK, read.result.status) << c.attributes;
        EXPECT_EQ(c.hold, intOf(read.job(), "job-hold")) << c.attributes;
        EXPECT_EQ(c.action, intOf(read.job(), "job-hold-action")) << c.attributes;
    }
}

TEST(ReadDriver, CommentsGoWhereTheirNameSays) {
    ReadTicket read(jdfTicket(
        comment("TemplateDescription", "template") +
        comment("JobDescription", "tagged", "ID=\"c1\"") + comment("JobDescription", "first") +
        comment("JobDescription", "second") + comment("Orientation", "Portrait") +
        comment("UserText", "user") + comment("morvellan:BannerPageText", "banner") +
        comment("morvellan:ApiVersion", "1.4.13") + comment("Unheard", "ignored") +
        "<Comment>no name</Comment>\n" + pools("")));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    EXPECT_EQ("template", textOf(read.ticket, "jt-comment"));
    EXPECT_EQ("1.4.13", textOf(read.ticket, "jt-api-version-from-jt"));
    EXPECT_EQ("first", textOf(read.job(), "job-comment"));
    EXPECT_EQ((std::vector<std::string>{"tagged", "second"}), textsOf(read.job(), "job-comments"));
    EXPECT_EQ("Portrait", textOf(read.job(), "job-orientation-hint"));
    EXPECT_EQ("user", textOf(read.job(), "job-processing-information"));
    EXPECT_EQ("banner", textOf(read.job(), "job-banner-page-text"));
}

TEST(ReadDriver, NodeInfoAndAuthentication) {
    ReadTicket read(
        jdfTicket("<NodeInfo JobPriority=\"0x20\" FirstStart=\"2009-03-07T14:05:00Z\" "
                  "LastEnd=\"0000-00-00T00:00:00+00:00\"/>\n"
                  "<morvellan:Authentication LoginName=\"ann\"/>\n"));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    EXPECT_EQ(32, intOf(read.job(), "job-priority"));
    EXPECT_NE("-", dateTimeOf(read.job(), "job-print-after-time"));
    EXPECT_EQ("-", dateTimeOf(read.job(), "job-print-before-time"));
    EXPECT_EQ("ann", textOf(read.job(), "job-authentication-login-name"));
    EXPECT_EQ("-", textOf(read.job(), "job-authentication-password"));

    // The NodeInfo resource of the pool is read the same way.
    ReadTicket pooled(jdfTicket(pools("<NodeInfo JobPriority=\"7\" LastEnd=\"yesterday\"/>")));
    ASSERT_EQ(ZUNDO_OK, pooled.result.status);
    EXPECT_EQ(7, intOf(pooled.job(), "job-priority"));
    EXPECT_EQ("-", dateTimeOf(pooled.job(), "job-print-before-time"));
}

TEST(ReadDriver, TheLinkPoolResetsCopiesAndRecordsProcesses) {
    ReadTicket bare(jdfTicket(comment("UserText", "no pools")));
    ASSERT_EQ(ZUNDO_OK, bare.result.status);
    EXPECT_EQ(1, intOf(bare.job(), "job-copies", 0));

    ReadTicket read(jdfTicket(pools("",
                                    "<StitchingParamsLink CombinedProcessIndex=\"1\"/>"
                                    "<MediaLink CombinedProcessIndex=\"0\"/>"
                                    "<DigitalPrintingParamsLink CombinedProcessIndex=\"0\"/>"
                                    "<FoldingParamsLink/>"
                                    "<TrimmingParamsLink CombinedProcessIndex=\"0 2\"/>"
                                    "<HoleMakingParamsLink CombinedProcessIndex=\"3\"/>")));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    EXPECT_EQ(0, intOf(read.job(), "job-copies", 0));
    zundo_read_env_s *env = getReadEnv(read.ticket);
    ASSERT_NE(nullptr, env);
    EXPECT_EQ(3, env->processCount);
    EXPECT_STREQ("Stitching", findProcessName(env, 1));
    EXPECT_STREQ("DigitalPrinting", findProcessName(env, 0));
    // Folding and Trimming had no usable index; HoleMaking took their pair.
    EXPECT_STREQ("HoleMaking", findProcessName(env, 3));
    EXPECT_EQ(nullptr, findProcessName(env, 2));
}

// Unknown elements in the pools are passed over; the resources around them
// are read as usual.
TEST(ReadDriver, UnknownResourcesAreSkipped) {
    std::string resources =
        "<FileSpec ID=\"F0\" URL=\"a.pdf\"/><Media ID=\"M0\"/><Mystery ID=\"X\"><Deep/></Mystery>"
        "<DigitalPrintingParams ID=\"DPP0\" Collate=\"Sheet\"/><Device ID=\"D0\"/>"
        "<Device ID=\"D1\"/><LayoutElement ID=\"LE0\"/><RunList ID=\"RL0\"/>";
    ReadTicket read(jdfTicket("<Unknown/>\n" + pools(resources, "<ComponentLink rRef=\"C\"/>") +
                              "<AuditPool><Created Author=\"x\"/></AuditPool>\n"));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    EXPECT_EQ(2, intOf(read.job(), "job-collate", 0));
}

TEST(ReadDriver, DeclarationMustSayXml10InUtf8) {
    ReadTicket lower("<?xml version=\"1.0\" encoding=\"utf-8\"?><JDF/>");
    ASSERT_EQ(ZUNDO_OK, lower.result.status);
    EXPECT_EQ("utf-8", textOf(lower.ticket, "jt-charset"));

    struct Case {
        const char *text;
        zundo_status_t status;
    } cases[] = {
        {"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><JDF/>", ZUNDO_UNSUPPORTED_ENCODING},
        {"<?xml version=\"1.0\"?><JDF/>", ZUNDO_UNSUPPORTED_ENCODING},
        {"<?xml version=\"1.1\" encoding=\"UTF-8\"?><JDF/>", ZUNDO_UNSUPPORTED_XML_VERSION},
        {"<JDF/>", ZUNDO_UNSUPPORTED_XML_VERSION},
        {"<?xml version=\"1.0\" encoding=\"UTF-8\"?><Ticket><JDF/></Ticket>", ZUNDO_WRONG_ELEMENT},
    };
    for (const Case &c : cases) {
        ReadTicket read(c.text);
        EXPECT_EQ(c.status, read.result.status) << c.text;
        EXPECT_EQ(0, read.result.line) << c.text;
        EXPECT_EQ(nullptr, read.ticket) << c.text;
    }
    ReadTicket broken(std::string(kDeclaration) + "<JDF>\n  <ResourcePool>\n</JDF>\n");
    EXPECT_EQ(ZUNDO_PARSE_FAILED, broken.result.status);
    EXPECT_EQ(4, broken.result.line);
    EXPECT_GT(broken.result.column, 0);
}

TEST(ReadDriver, ArgumentsAndExistingTickets) {
    zundo_result_t result = newJobTicketInfoFromString(nullptr, jdfTicket("").c_str());
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, result.status);
    EXPECT_EQ(723, result.line);
    zundo_int_object_s *ticket = reinterpret_cast<zundo_int_object_s *>(&result);
    EXPECT_EQ(ZUNDO_NULL_ARGUMENT, newJobTicketInfoFromString(&ticket, nullptr).status);
    EXPECT_EQ(nullptr, ticket);
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, readJobTicketString(jdfTicket("").c_str(), nullptr));

    // A failed read leaves what an earlier one set.
    zundo_int_object_s *document = nullptr, *job = nullptr;
    ASSERT_EQ(ZUNDO_OK, newDocument(&document, nullptr));
    ASSERT_EQ(ZUNDO_OK, newJob(&job, document));
    ASSERT_EQ(ZUNDO_OK, newJobTicketInfoFromJob(&ticket, job));
    EXPECT_EQ(ZUNDO_OK,
              readJobTicketString(jdfTicket("", "DescriptiveName=\"one\"").c_str(), ticket));
    EXPECT_EQ(ZUNDO_PARSE_FAILED, readJobTicketString("<?xml version=\"1.0\"?><JDF", ticket));
    EXPECT_EQ("one", textOf(job, "job-jdf-node-name"));
    destroy(ticket);
}

TEST(ReadDriver, TracesTheDriversOwnFailures) {
    TraceCapture trace;
    ReadTicket version("<?xml version=\"1.1\" encoding=\"UTF-8\"?><JDF/>");
    EXPECT_TRUE(trace.saw("invalid job ticket: unsupported XML version, 1.1 \n"));
    ReadTicket encoding("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><JDF/>");
    EXPECT_TRUE(trace.saw("invalid job ticket: unsupported encoding, ISO-8859-1 \n"));
    ReadTicket noNode(std::string(kDeclaration) + "<Ticket/>");
    EXPECT_TRUE(trace.saw("call to getJDFNode failed: no jdf node \n"));
    ReadTicket noPools(jdfTicket(""));
    EXPECT_TRUE(trace.saw("invalid job ticket: no ResourcePool or ResourceLinkPool \n"));
    EXPECT_TRUE(trace.saw("<< Leaving readJDFString \n"));
}

}  // namespace
