// Tracing: the DEBUG_ZUNDO switch, the file and callback sinks at their two
// levels, the line format and the configuration messages.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "support/sample_type.h"

namespace {

std::vector<std::string> received;
void collect(const char *message) { received.push_back(message); }

class TraceTest : public ::testing::Test {
protected:
    void SetUp() override {
        path = ::testing::TempDir() + "zundo_trace_" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name() + ".log";
        std::remove(path.c_str());
        received.clear();
        setenv("DEBUG_ZUNDO", "", 1);
    }
    void TearDown() override {
        disableTraceFile();
        disableTraceCallback();
        unsetenv("DEBUG_ZUNDO");
        std::remove(path.c_str());
    }
    std::vector<std::string> fileLines() const {
        std::ifstream in(path);
        std::vector<std::string> lines;
        for (std::string line; std::getline(in, line);) lines.push_back(line);
        return lines;
    }
    std::string path;
};

const std::string kStamp = R"(\[ \d{4} [A-Z][a-z]{2} [ \d]\d \d{2}:\d{2}:\d{2} \] )";

TEST_F(TraceTest, NothingIsTracedWithoutTheSwitch) {
    unsetenv("DEBUG_ZUNDO");
    enableTraceFile(1, path.c_str());
    enableTraceCallback(1, collect);
    EXPECT_EQ(ZUNDO_ERROR, zundotrace(1, "hello"));
    zundo_trace("hello %d", 1);
    EXPECT_TRUE(fileLines().empty());
    EXPECT_TRUE(received.empty());
}

TEST_F(TraceTest, FileLevelZeroTakesOnlyApiLines) {
    enableTraceFile(0, path.c_str());
    EXPECT_EQ(0, getTraceFileLevel());
    zundo_int_object_s *sample = newSample();
    setIntegerAttribute(sample, "sample-count", 2);
    zundo_trace("detail line\n");
    destroy(sample);
    std::vector<std::string> lines = fileLines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_TRUE(std::regex_match(
        lines[0], std::regex(kStamp + "setIntegerAttribute with object = \\[object type = "
                                      "ZUNDO_TEST_SAMPLE\\], attribute = sample-count, value = 2 ")));
}

TEST_F(TraceTest, FileLevelOneTakesDetailLinesOnly) {
    enableTraceFile(1, path.c_str());
    zundo_int_object_s *sample = newSample();
    setIntegerAttribute(sample, "sample-count", 2);
    zundo_trace("detail %s", "line");
    destroy(sample);
    std::vector<std::string> lines = fileLines();
    ASSERT_FALSE(lines.empty());
    for (const std::string &line : lines) {
        // Messages that end in a newline leave an empty line behind them.
        if (line.empty()) continue;
        EXPECT_TRUE(std::regex_search(line, std::regex("^" + kStamp))) << line;
        EXPECT_EQ(std::string::npos, line.find("with object =")) << line;
    }
    EXPECT_TRUE(std::regex_match(lines.back(), std::regex(kStamp + "detail line")));
}

TEST_F(TraceTest, CallbackGetsBareMessagesAtItsLevel) {
    enableTraceCallback(1, collect);
    EXPECT_EQ(1, getTraceCallbackLevel());
    zundo_trace("entry %d%%", 5);
    ASSERT_EQ(1u, received.size());
    EXPECT_EQ("entry 5%", received[0]);
    // A percent sign in the finished text is not formatted again.
    zundo_trace("%s", "keep %d as is");
    EXPECT_EQ("keep %d as is", received.back());

    disableTraceCallback();
    received.clear();
    enableTraceCallback(0, collect);
    zundo_trace("not at level zero");
    EXPECT_EQ(ZUNDO_OK, zundotrace(0, "api %s", "call"));
    EXPECT_EQ(std::vector<std::string>{"api call"}, received);
}

TEST_F(TraceTest, LevelOneSinkSeesApiLinesOnlyWhenTheOtherSinkIsAtZero) {
    enableTraceCallback(1, collect);
    zundotrace(0, "api");
    EXPECT_TRUE(received.empty());
    enableTraceFile(0, path.c_str());
    zundotrace(0, "api");
    EXPECT_EQ(std::vector<std::string>{"api"}, received);
    EXPECT_EQ(1u, fileLines().size());
}

TEST_F(TraceTest, KindMismatchIsReportedAtBothLevels) {
    enableTraceCallback(0, collect);
    zundo_int_object_s *sample = newSample();
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, setStringAttribute(sample, "sample-count", "x"));
    destroy(sample);
    std::vector<std::string> expected = {
        "setStringAttribute with object = [object type = ZUNDO_TEST_SAMPLE], attribute = "
        "sample-count, value = x",
        "Incorrect attribute type for sample-count. It is S and it should be I"};
    EXPECT_EQ(expected, received);
}

TEST_F(TraceTest, BadConfigurationPrintsAndChangesNothing) {
    enableTraceFile(1, path.c_str());
    enableTraceCallback(0, collect);
    ::testing::internal::CaptureStdout();
    enableTraceFile(2, "/tmp/other.log");
    enableTraceCallback(-1, collect);
    std::string printed = ::testing::internal::GetCapturedStdout();
    EXPECT_EQ(
        "ERROR! - The trace level was not specified for File tracing"
        "ERROR! - The trace level was not specified for Callback tracing",
        printed);
    EXPECT_EQ(1, getTraceFileLevel());
    EXPECT_EQ(0, getTraceCallbackLevel());
    zundo_trace("still here");
    EXPECT_EQ(1u, fileLines().size());
}

TEST_F(TraceTest, MissingPathOrCallbackKeepsTheLevel) {
    ::testing::internal::CaptureStdout();
    enableTraceFile(1, nullptr);
    enableTraceFile(0, "/nonexistent-dir/trace.log");
    enableTraceCallback(1, nullptr);
    std::string printed = ::testing::internal::GetCapturedStdout();
    EXPECT_EQ(
        "ERROR! - The trace file path was found NULL"
        "ERROR! - Unable to open the file!"
        "ERROR! - Pointer to function not initialized",
        printed);
    EXPECT_EQ(0, getTraceFileLevel());
    EXPECT_EQ(1, getTraceCallbackLevel());
    disableTraceFile();
    disableTraceCallback();
    EXPECT_EQ(-1, getTraceFileLevel());
    EXPECT_EQ(-1, getTraceCallbackLevel());
}

TEST_F(TraceTest, ReopeningMovesToTheNewFile) {
    std::string second = path + ".second";
    enableTraceFile(1, path.c_str());
    zundo_trace("one");
    enableTraceFile(1, second.c_str());
    zundo_trace("two");
    disableTraceFile();
    EXPECT_EQ(1u, fileLines().size());
    std::ifstream in(second);
    std::stringstream text;
    text << in.rdbuf();
    EXPECT_NE(std::string::npos, text.str().find("] two\n"));
    std::remove(second.c_str());
}

TEST(Version, IsTheReleaseText) {
    EXPECT_STREQ("1.4.13 Drop 382", getZUNDOCurrentVersion());
    EXPECT_EQ(getZUNDOCurrentVersion(), getZUNDOCurrentVersion());
}

}  // namespace
