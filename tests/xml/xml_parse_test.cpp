// Parsing job-ticket texts: declarations, names as written, failures with
// their positions and traces, depth.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "xml_test_support.h"

XERCES_CPP_NAMESPACE_USE

namespace {

std::vector<std::string> traced;
void collectTrace(const char *message) { traced.push_back(message); }

TEST(XmlParse, ReadsDeclarationNamesAsWrittenAndUtf8Values) {
    ParsedTicket ticket(
        "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
        "<JDF xmlns=\"http://www.CIP4.org/JDFSchema_1_1\" xmlns:morvellan=\"urn:m\" "
        "DescriptiveName=\"Brosch\xC3\xBCre \xE2\x82\xAC\">\n"
        "  <morvellan:Authentication User=\"anna\"/><x:Unbound/>\n</JDF>\n");
    ASSERT_EQ(ZUNDO_OK, ticket.result.status);
    EXPECT_STREQ("1.0", ticket.info.xmlVersion);
    EXPECT_STREQ("UTF-8", ticket.info.xmlEncoding);
    EXPECT_EQ(1, ticket.info.standalone);
    EXPECT_EQ("Brosch\xC3\xBCre \xE2\x82\xAC", utf8(ticket.root()->getAttribute(u"DescriptiveName")));
    // Namespaces are not processed: prefixes are part of the names.
    DOMElement *first = ticket.root()->getFirstElementChild();
    EXPECT_EQ("morvellan:Authentication", utf8(first->getTagName()));
    EXPECT_EQ("x:Unbound", utf8(first->getNextElementSibling()->getTagName()));

    ParsedTicket bare("<JDF/>");
    ASSERT_EQ(ZUNDO_OK, bare.result.status);
    EXPECT_EQ(nullptr, bare.info.xmlVersion);
    EXPECT_EQ(nullptr, bare.info.xmlEncoding);
    EXPECT_EQ(0, bare.info.standalone);
}

TEST(XmlParse, MalformedTicketGivesPositionAndTraces) {
    traced.clear();
    setenv("DEBUG_ZUNDO", "", 1);
    enableTraceCallback(1, collectTrace);
    ParsedTicket ticket("<?xml version=\"1.0\"?>\n<JDF>\n  <ResourcePool>\n  </AuditPool>\n");
    disableTraceCallback();
    unsetenv("DEBUG_ZUNDO");
    EXPECT_EQ(ZUNDO_PARSE_FAILED, ticket.result.status);
    EXPECT_EQ(4, ticket.result.line);
    EXPECT_EQ(5, ticket.result.column);
    EXPECT_EQ(nullptr, ticket.info.document);
    ASSERT_GE(traced.size(), 2u);
    EXPECT_EQ(0u, traced[traced.size() - 2].find("Parsing error at line 4, col 5 \n"));
    EXPECT_EQ("parsing failed with message\n", traced.back());
}

TEST(XmlParse, BrokenInputFailsWithoutCrashing) {
    for (const char *text : {"", "   ", "<JDF", "<JDF a=\"1\" a=\"2\"/>", "<JDF>\xFF\xFE</JDF>",
                             "<JDF/><JDF/>", "<JDF>&undeclared;</JDF>"}) {
        ParsedTicket ticket(text);
        EXPECT_EQ(ZUNDO_PARSE_FAILED, ticket.result.status) << text;
        EXPECT_GT(ticket.result.line, 0) << text;
    }
    DOMDocumentInfo info;
    info.xmlVersion = "stale";
    EXPECT_EQ(ZUNDO_NULL_ARGUMENT, getDOMDocument(nullptr, &info).status);
    EXPECT_EQ(nullptr, info.xmlVersion);
    EXPECT_EQ(nullptr, info.parser);
}

TEST(XmlParse, DeepNestingParsesAndUnclosedDepthFails) {
    const int depth = 20000;
    std::string open, close;
    for (int i = 0; i < depth; ++i) open += "<L>", close += "</L>";
    ParsedTicket ticket("<JDF>" + open + close + "</JDF>");
    ASSERT_EQ(ZUNDO_OK, ticket.result.status);
    int levels = 0;
    for (DOMElement *e = ticket.root(); e->getFirstElementChild() != nullptr;
         e = e->getFirstElementChild())
        ++levels;
    EXPECT_EQ(depth, levels);
    EXPECT_EQ(ZUNDO_PARSE_FAILED, ParsedTicket("<JDF>" + open + "</JDF>").result.status);
}

}  // namespace
