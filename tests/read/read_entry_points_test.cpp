// Reading a job ticket from a file named by URL or path, and from a stream.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>

#include "read_test_support.h"
#include "xml/jdf_test_support.h"

namespace {

std::string writeTicketFile(const char *name, const std::string &content) {
    std::string path = ::testing::TempDir() + name;
    std::ofstream(path, std::ios::binary) << content;
    return path;
}

// A stream holding `content`, left positioned at its end.
FILE *streamWith(const std::string &content) {
    FILE *stream = std::tmpfile();
    if (stream != nullptr) std::fwrite(content.data(), 1, content.size(), stream);
    return stream;
}

const std::string kTicket = jdfTicket(pools(""), "DescriptiveName=\"from file\"");

TEST(ReadEntryPoints, FileByUrlOrPath) {
    std::string path = writeTicketFile("zundo_read_url.jdf", kTicket);
    for (const std::string &url : {"file://" + path, path}) {
        zundo_int_object_s *ticket = nullptr;
        zundo_result_t result = newJobTicketInfoFromURL(&ticket, url.c_str());
        ASSERT_EQ(ZUNDO_OK, result.status) << url;
        EXPECT_EQ("from file", textOf(getJob(ticket), "job-jdf-node-name"));
        destroy(ticket);
    }
    std::remove(path.c_str());
}

TEST(ReadEntryPoints, FileFailures) {
    TraceCapture trace;
    std::string missing = ::testing::TempDir() + "zundo_no_such_ticket.jdf";
    zundo_int_object_s *ticket = nullptr;
    EXPECT_EQ(ZUNDO_FILE_ERROR,
              newJobTicketInfoFromURL(&ticket, ("file://" + missing).c_str()).status);
    EXPECT_EQ(nullptr, ticket);
    EXPECT_TRUE(trace.saw("fopen failed opening file '" + missing + "' with mode rb\n"));

    std::string empty = writeTicketFile("zundo_empty_ticket.jdf", "");
    EXPECT_EQ(ZUNDO_INVALID_JOB_TICKET, newJobTicketInfoFromURL(&ticket, empty.c_str()).status);
    EXPECT_TRUE(trace.saw("No data in stream. Job Ticket is invalid. \n"));
    std::remove(empty.c_str());

    std::string broken = writeTicketFile("zundo_broken_ticket.jdf", kTicket.substr(0, 100));
    zundo_result_t result = newJobTicketInfoFromURL(&ticket, broken.c_str());
    EXPECT_EQ(ZUNDO_PARSE_FAILED, result.status);
    EXPECT_GT(result.line, 0);
    EXPECT_EQ(nullptr, ticket);
    std::remove(broken.c_str());

    for (const char *url : {static_cast<const char *>(nullptr), "", "file://"})
        EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newJobTicketInfoFromURL(&ticket, url).status);
    EXPECT_TRUE(trace.saw("A valid url must be provided.\n"));
}

TEST(ReadEntryPoints, StreamIsReadFromItsStart) {
    FILE *stream = streamWith(kTicket);
    ASSERT_NE(nullptr, stream);
    zundo_int_object_s *ticket = nullptr;
    ASSERT_EQ(ZUNDO_OK, newJobTicketInfoFromStream(&ticket, stream).status);
    EXPECT_EQ("from file", textOf(getJob(ticket), "job-jdf-node-name"));
    destroy(ticket);
    std::fclose(stream);
}

TEST(ReadEntryPoints, StreamFailures) {
    zundo_int_object_s *ticket = nullptr;
    FILE *empty = streamWith("");
    EXPECT_EQ(ZUNDO_INVALID_JOB_TICKET, newJobTicketInfoFromStream(&ticket, empty).status);
    std::fclose(empty);

    // A NUL byte ends the text, which is then cut short.
    std::string withNul = kTicket;
    withNul[60] = '\0';
    FILE *cut = streamWith(withNul);
    EXPECT_EQ(ZUNDO_PARSE_FAILED, newJobTicketInfoFromStream(&ticket, cut).status);
    EXPECT_EQ(nullptr, ticket);
    std::fclose(cut);

    // A pipe cannot tell its length.
    int ends[2];
    ASSERT_EQ(0, pipe(ends));
    ASSERT_EQ(static_cast<ssize_t>(kTicket.size()), write(ends[1], kTicket.data(), kTicket.size()));
    close(ends[1]);
    FILE *piped = fdopen(ends[0], "rb");
    EXPECT_EQ(ZUNDO_INVALID_JOB_TICKET, newJobTicketInfoFromStream(&ticket, piped).status);
    std::fclose(piped);

    FILE *stream = streamWith(kTicket);
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newJobTicketInfoFromStream(&ticket, nullptr).status);
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, newJobTicketInfoFromStream(nullptr, stream).status);
    std::fclose(stream);
}

}  // namespace
