// Writing job tickets to streams and files, and what each failure reports.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include <unistd.h>

#include "write/write_test_support.h"
#include "zundo.h"

namespace {

std::string writtenText(zundo_int_object_s *ticket) {
    char *text = nullptr;
    EXPECT_EQ(writeJobTicketString(ticket, &text), ZUNDO_OK);
    std::string copy = text != nullptr ? text : "";
    releaseJobTicketString(text);
    return copy;
}

std::string fileText(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

// A path in the temporary directory, removed on scope exit.
struct TempPath {
    TempPath() {
        char pattern[] = "/tmp/zundo_write_XXXXXX";
        int fd = mkstemp(pattern);
        EXPECT_GE(fd, 0);
        close(fd);
        path = pattern;
    }
    ~TempPath() { std::remove(path.c_str()); }
    std::string path;
};

TEST(WriteStream, WholeTextWithoutTerminatorAndStreamStaysOpen) {
    TestTicket ticket;
    const std::string expected = writtenText(ticket.ticket);
    ASSERT_FALSE(expected.empty());
    FILE *stream = std::tmpfile();
    ASSERT_NE(stream, nullptr);
    ASSERT_EQ(std::fputs("<!-- before -->", stream), 1);
    EXPECT_EQ(writeJobTicketStream(ticket.ticket, stream), ZUNDO_OK);
    // Still open and positioned after the text.
    EXPECT_EQ(std::fputs("!", stream), 1);
    std::rewind(stream);
    std::string content;
    for (int c = std::fgetc(stream); c != EOF; c = std::fgetc(stream))
        content.push_back(static_cast<char>(c));
    std::fclose(stream);
    EXPECT_EQ(content, "<!-- before -->" + expected + "!");
}

TEST(WriteStream, ShortWritesReportTheirCause) {
    TestTicket ticket;
    TempPath file;
    FILE *readOnly = std::fopen(file.path.c_str(), "r");
    ASSERT_NE(readOnly, nullptr);
    EXPECT_EQ(writeJobTicketStream(ticket.ticket, readOnly), ZUNDO_FILE_ERROR);
    std::fclose(readOnly);

    FILE *full = std::fopen("/dev/full", "w");
    ASSERT_NE(full, nullptr);
    // Unbuffered, so the device refuses the write itself.
    std::setvbuf(full, nullptr, _IONBF, 0);
    EXPECT_EQ(writeJobTicketStream(ticket.ticket, full), ZUNDO_NO_SPACE);
    std::fclose(full);
}

TEST(WriteStream, DriverFailureWritesNothing) {
    TestTicket ticket;
    FILE *stream = std::tmpfile();
    ASSERT_NE(stream, nullptr);
    EXPECT_EQ(writeJobTicketStream(nullptr, stream), ZUNDO_ERROR);
    EXPECT_EQ(std::ftell(stream), 0);
    std::fclose(stream);
    EXPECT_EQ(writeJobTicketStream(ticket.ticket, nullptr), ZUNDO_INVALID_ARGUMENT);
}

TEST(WriteURL, FileUrlAndPlainPathNameTheSameFile) {
    TestTicket ticket;
    const std::string expected = writtenText(ticket.ticket);
    TempPath viaUrl;
    EXPECT_EQ(writeJobTicketURL(ticket.ticket, ("file://" + viaUrl.path).c_str()), ZUNDO_OK);
    EXPECT_EQ(fileText(viaUrl.path), expected);
    TempPath viaPath;
    // Mode "w+" replaces what the file held.
    { std::ofstream(viaPath.path) << std::string(5000, 'x'); }
    EXPECT_EQ(writeJobTicketURL(ticket.ticket, viaPath.path.c_str()), ZUNDO_OK);
    EXPECT_EQ(fileText(viaPath.path), expected);
}

TEST(WriteURL, OpenAndCloseFailuresAreFileErrors) {
    TestTicket ticket;
    TraceCapture trace;
    EXPECT_EQ(writeJobTicketURL(ticket.ticket, "file:///nonexistent-dir/a.jdf"), ZUNDO_FILE_ERROR);
    EXPECT_TRUE(
        trace.saw("fopen failed opening file '/nonexistent-dir/a.jdf' with mode w+\n"));
    // The buffered text reaches the full device only when the file is closed.
    EXPECT_EQ(writeJobTicketURL(ticket.ticket, "/dev/full"), ZUNDO_FILE_ERROR);
    EXPECT_TRUE(trace.saw("fclose returned error -1\n"));
    EXPECT_EQ(writeJobTicketURL(ticket.ticket, nullptr), ZUNDO_INVALID_ARGUMENT);
}

}  // namespace
