// LayoutElements as the job's documents: which document each fills, the
// file attributes it takes and its container.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "read_test_support.h"

namespace {

std::vector<zundo_int_object_s *> documentsOf(zundo_int_object_s *job) {
    std::vector<zundo_int_object_s *> documents;
    for (zundo_int_object_s **at = getDocuments(job); at != nullptr && *at != nullptr; ++at)
        documents.push_back(*at);
    return documents;
}

zundo_int_object_s *containerOf(zundo_int_object_s *document) {
    zundo_int_attribute_s *attribute = get(document, "document-container");
    auto *container =
        hasNextValue(attribute) ? static_cast<zundo_int_object_s *>(nextValue(attribute)) : nullptr;
    destroyAttribute(attribute);
    return container;
}

const char kResources[] =
    "<FileSpec ID=\"ZIP\" MimeType=\"application/x-zip\" URL=\"file:///in/all.zip\"/>"
    "<LayoutElement ID=\"LE1\">"
    " <ElementColorParams><FileSpec UserFileName=\"press.icc\"/></ElementColorParams>"
    " <FileSpec URL=\"file:///in/a.pdf\" MimeType=\"application/pdf\" "
    "  MimeTypeVersion=\"PDF/1.4\" morvellan:NPage=\"12\" morvellan:NPageBW=\"x\" "
    "  morvellan:InternalPrintJobName=\"a-job\"/>"
    " <morvellan:DiscardPDLSeparation Name=\"Cyan\"/>"
    " <morvellan:DiscardPDLSeparation Name=\"Spot 1\"/>"
    "</LayoutElement>"
    "<LayoutElement>"
    " <FileSpec MimeType=\"application/pdf\" URL=\"file:///in/b.pdf\" morvellan:NPage=\"many\">"
    "  <Container><FileSpecRef rRef=\"NONE\"/><FileSpecRef rRef=\"ZIP\"/></Container>"
    " </FileSpec>"
    "</LayoutElement>"
    "<RunList ID=\"RL\" PartIDKeys=\"Run\">"
    " <RunList Run=\"0\"><LayoutElement ID=\"LE3\"><FileSpec URL=\"c.ps\"/></LayoutElement>"
    " </RunList>"
    "</RunList>";

TEST(LayoutElementReader, EachLayoutElementIsOneDocumentInOrder) {
    ReadTicket read(jdfTicket(pools(kResources)));
    ASSERT_EQ(ZUNDO_OK, read.result.status);
    zundo_int_object_s *job = read.job();
    EXPECT_EQ("press.icc", textOf(job, "job-color-profile-reference-output"));
    std::vector<zundo_int_object_s *> documents = documentsOf(job);
    // The first fills the document the job starts with; the others are added.
    ASSERT_EQ(3u, documents.size());

    zundo_int_object_s *first = documents[0];
    EXPECT_EQ("file:///in/a.pdf", textOf(first, "document-file-name"));
    EXPECT_EQ("PDF/1.4", textOf(first, "document-format"));
    EXPECT_EQ(12, intOf(first, "document-number-pages"));
    EXPECT_EQ(-12345, intOf(first, "document-number-pages-bw"));
    EXPECT_EQ("a-job", textOf(first, "document-internal-print-job-name"));
    EXPECT_EQ((std::vector<std::string>{"Cyan", "Spot 1"}),
              textsOf(first, "document-separations-to-discard"));
    EXPECT_EQ(nullptr, containerOf(first));

    zundo_int_object_s *second = documents[1];
    EXPECT_EQ("application/pdf", textOf(second, "document-format"));
    EXPECT_EQ(-12345, intOf(second, "document-number-pages"));
    zundo_int_object_s *container = containerOf(second);
    ASSERT_NE(nullptr, container);
    EXPECT_EQ("application/x-zip", textOf(container, "container-format"));
    EXPECT_EQ("file:///in/all.zip", textOf(container, "container-filename"));

    EXPECT_EQ("c.ps", textOf(documents[2], "document-file-name"));
}

}  // namespace
