// Tickets come from untrusted clients: no file is read on a ticket's behalf
// and entity expansion cannot exhaust memory, while ordinary internal
// entities still work.
#include <gtest/gtest.h>

#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>

#include "xml_test_support.h"

namespace {

const char kProlog[] = "<?xml version=\"1.0\"?>\n<!DOCTYPE JDF ";

std::string writeFile(const char *name, const char *content) {
    std::string path = ::testing::TempDir() + name;
    std::ofstream(path) << content;
    return path;
}

long peakResidentKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

TEST(XmlHardening, NoExternalFileIsRead) {
    std::string secret = writeFile("zundo_secret.txt", "TOPSECRET");
    std::string entities = writeFile("zundo_entities.dtd", "<!ENTITY leak \"TOPSECRET\">");
    // Not a DTD: reading it would fail the parse.
    std::string dtd = writeFile("zundo_external.dtd", "TOPSECRET <not a dtd");
    for (const std::string &doctype :
         {"[<!ENTITY leak SYSTEM \"file://" + secret + "\">]>",
          "[<!ENTITY leak SYSTEM \"" + secret + "\">]>",
          "[<!ENTITY % ext SYSTEM \"file://" + entities + "\"> %ext;]>"}) {
        ParsedTicket ticket(kProlog + doctype + "\n<JDF>&leak;</JDF>");
        EXPECT_EQ(ZUNDO_PARSE_FAILED, ticket.result.status) << doctype;
    }
    ParsedTicket skipped(kProlog + ("SYSTEM \"file://" + dtd + "\">\n<JDF Type=\"Combined\"/>"));
    ASSERT_EQ(ZUNDO_OK, skipped.result.status);
    EXPECT_EQ("Combined", utf8(skipped.root()->getAttribute(u"Type")));
    for (const std::string &path : {secret, entities, dtd}) std::remove(path.c_str());
}

TEST(XmlHardening, InternalEntitiesStillExpand) {
    std::string body;
    for (int i = 0; i < 5000; ++i) body += "&amp;&#x41;";
    ParsedTicket ticket(kProlog + std::string("[<!ENTITY co \"Acme &amp; Sons\">]>\n") +
                        "<JDF DescriptiveName=\"&co; job\">&co;" + body + "</JDF>");
    ASSERT_EQ(ZUNDO_OK, ticket.result.status);
    EXPECT_EQ("Acme & Sons job", utf8(ticket.root()->getAttribute(u"DescriptiveName")));
    EXPECT_EQ(11u + 2 * 5000, utf8(ticket.root()->getTextContent()).size());
}

TEST(XmlHardening, BillionLaughsFailsFastInLittleMemory) {
    std::string text = kProlog + std::string("[\n<!ENTITY lol \"lol\">\n");
    for (int level = 1; level <= 9; ++level) {
        std::string inner = level == 1 ? "&lol;" : "&lol" + std::to_string(level - 1) + ";";
        text += "<!ENTITY lol" + std::to_string(level) + " \"";
        for (int i = 0; i < 10; ++i) text += inner;
        text += "\">\n";
    }
    long peakBefore = peakResidentKilobytes();
    auto start = std::chrono::steady_clock::now();
    for (const char *use : {"<JDF>&lol9;</JDF>", "<JDF a=\"&lol9;\"/>"})
        EXPECT_EQ(ZUNDO_PARSE_FAILED, ParsedTicket(text + "]>\n" + use).result.status) << use;
    std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    EXPECT_LT(elapsed.count(), 5.0);
    // Unbounded, the expansion needs gigabytes; the allowance covers the
    // parser's own buffers under a sanitizer.
    EXPECT_LT(peakResidentKilobytes() - peakBefore, 256 * 1024);
}

TEST(XmlHardening, LongEntityRepeatedIsRefused) {
    // No nesting, but one long text repeated grows quadratically.
    std::string text = kProlog + ("[<!ENTITY big \"" + std::string(20000, 'x') + "\">]>\n<JDF>");
    for (int i = 0; i < 500; ++i) text += "&big;";
    ParsedTicket ticket(text + "</JDF>");
    EXPECT_EQ(ZUNDO_PARSE_FAILED, ticket.result.status);
    EXPECT_EQ(2, ticket.result.line);
}

}  // namespace
