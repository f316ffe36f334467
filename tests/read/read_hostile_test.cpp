// Tickets come from untrusted clients: whatever the text, the read returns
// a status and hands out either a whole ticket or none.
#include <gtest/gtest.h>

#include <chrono>
#include <random>

#include "read_test_support.h"

namespace {

const char kDeclaration[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

// Fails the read: no ticket may be handed out.
void expectRefused(const std::string &text, const std::string &what) {
    ReadTicket read(text);
    EXPECT_NE(ZUNDO_OK, read.result.status) << what;
    EXPECT_EQ(nullptr, read.ticket) << what;
}

TEST(ReadHostile, EveryTruncationIsRefused) {
    std::string full = jdfTicket(
        "<Comment Name=\"UserText\">text &amp; more</Comment>\n" +
            pools("<FileSpec ID=\"F0\" URL=\"a.pdf\"/><Media ID=\"M0\" Dimension=\"1 2\"/>",
                  "<MediaLink rRef=\"M0\" CombinedProcessIndex=\"0\"/>"),
        "NamedFeatures=\"a 1\"");
    size_t end = full.rfind("</JDF>") + 5;
    for (size_t length = 0; length < end; ++length)
        expectRefused(full.substr(0, length), "prefix of " + std::to_string(length));
    EXPECT_EQ(ZUNDO_OK, ReadTicket(full.substr(0, end + 1)).result.status);
}

TEST(ReadHostile, TextThatIsNotAJobTicket) {
    expectRefused("", "empty");
    expectRefused("   \n\t", "blank");
    expectRefused("JDF", "plain text");
    expectRefused(std::string(kDeclaration), "declaration only");
    expectRefused(std::string(kDeclaration) + "<html><body>JDF</body></html>", "other XML");
    expectRefused("<?xml version=\"1.1\" encoding=\"UTF-8\"?><JDF/>", "XML 1.1");
    expectRefused(std::string(kDeclaration) + "<JDF a=\"\xff\xfe\x80\"/>", "bytes not UTF-8");
    expectRefused(std::string(kDeclaration) + "<JDF a=\"\xe2\x82\"/>", "cut UTF-8 sequence");
    expectRefused("\xef\xbb\xbf<?xml version=\"1.0\" encoding=\"UTF-16\"?><JDF/>", "UTF-16");
}

TEST(ReadHostile, BinaryGarbage) {
    std::mt19937 random(20240229);
    std::uniform_int_distribution<int> byte(1, 255);
    for (int sample = 0; sample < 50; ++sample) {
        std::string garbage(64 + sample * 37, ' ');
        for (char &c : garbage) c = static_cast<char>(byte(random));
        expectRefused(garbage, "garbage " + std::to_string(sample));
        expectRefused(kDeclaration + garbage, "declared garbage " + std::to_string(sample));
    }
}

TEST(ReadHostile, DeepNestingReadsWithoutRecursion) {
    const int depth = 100000;
    std::string open, close;
    for (int i = 0; i < depth; ++i) open += "<Part>";
    for (int i = 0; i < depth; ++i) close += "</Part>";
    auto start = std::chrono::steady_clock::now();
    // Below the JDF node, inside a resource and as the JDF node's child.
    ReadTicket inResource(jdfTicket(pools("<Component ID=\"C\">" + open + close + "</Component>" +
                                          "<NodeInfo>" + open + close + "</NodeInfo>")));
    EXPECT_EQ(ZUNDO_OK, inResource.result.status);
    ReadTicket asChild(jdfTicket(open + close));
    EXPECT_EQ(ZUNDO_OK, asChild.result.status);
    // Without any JDF element, and with the JDF node at the bottom.
    expectRefused(kDeclaration + open + close, "no JDF node");
    ReadTicket atBottom(
        kDeclaration + open +
        "<JDF Type=\"Combined\" Types=\"DigitalPrinting\" DescriptiveName=\"deep\"/>" + close);
    ASSERT_EQ(ZUNDO_OK, atBottom.result.status);
    EXPECT_EQ("deep", textOf(atBottom.job(), "job-jdf-node-name"));
    expectRefused(kDeclaration + open, "never closed");
    std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    EXPECT_LT(elapsed.count(), 60.0);
}

TEST(ReadHostile, HugeValuesAndManyChildren) {
    std::string huge(8 * 1024 * 1024, 'x');
    std::string features;
    for (int i = 0; i < 20000; ++i) features += "f" + std::to_string(i) + " v ";
    std::string comments;
    for (int i = 0; i < 5000; ++i) comments += "<Comment Name=\"JobDescription\">c</Comment>";
    ReadTicket read(
        jdfTicket(comments + pools("<Mystery ID=\"" + huge + "\"/>"),
                  "DescriptiveName=\"" + huge + "\" NamedFeatures=\"" + features + "\""));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    EXPECT_EQ(huge.size(), textOf(read.job(), "job-jdf-node-name").size());
    zundo_int_attribute_s *named = get(read.job(), "job-named-features");
    EXPECT_EQ(20000, getNumValues(named));
    destroyAttribute(named);
    EXPECT_EQ(4999u, textsOf(read.job(), "job-comments").size());
}

}  // namespace
