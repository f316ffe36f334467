// The zundo tool as a program: exit codes, output and error lines.
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

namespace {

struct ToolRun {
    int exitCode;
    std::string out;
    std::string err;
};

std::string readFile(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// Unique per process: test runners start several test processes at once.
std::string tempPath(const std::string &name) {
    return ::testing::TempDir() + "zundo_tool_" + std::to_string(getpid()) + "_" + name;
}

void writeFile(const std::string &path, const std::string &text) {
    std::ofstream(path, std::ios::binary) << text;
}

// Runs the tool with `arguments` (already quoted for the shell), feeding
// `input` on standard input.
ToolRun runTool(const std::string &arguments, const std::string &input = "") {
    std::string in = tempPath("stdin"), out = tempPath("stdout"), err = tempPath("stderr");
    writeFile(in, input);
    std::string command = std::string(ZUNDO_TOOL_PATH) + " " + arguments + " <" + in + " >" + out +
                          " 2>" + err;
    int status = std::system(command.c_str());
    ToolRun run{WIFEXITED(status) ? WEXITSTATUS(status) : -1, readFile(out), readFile(err)};
    std::remove(in.c_str());
    std::remove(out.c_str());
    std::remove(err.c_str());
    return run;
}

const std::string kExample = std::string(ZUNDO_EXAMPLES_DIR) + "/brochure.jdf";

TEST(ZundoTool, PrintsVersionAndUsage) {
    ToolRun version = runTool("--version");
    EXPECT_EQ(0, version.exitCode);
    EXPECT_EQ("zundo 1.4.13 Drop 382\n", version.out) << version.err;
    ToolRun usage = runTool("frobnicate x");
    EXPECT_EQ(2, usage.exitCode);
    EXPECT_NE(std::string::npos, usage.err.find("usage: zundo"));
    EXPECT_TRUE(usage.out.empty());
}

TEST(ZundoTool, DumpsTheExampleTicket) {
    ToolRun dump = runTool("dump " + kExample);
    ASSERT_EQ(0, dump.exitCode) << dump.err;
    EXPECT_EQ(0u, dump.out.find("ZUNDO_JOB_TICKET\n"));
    EXPECT_NE(std::string::npos, dump.out.find("  jt-charset = \"UTF-8\"\n"));
    EXPECT_NE(std::string::npos, dump.out.find("  ZUNDO_JOB\n"));
    EXPECT_NE(std::string::npos, dump.out.find("    job-id = \"brochure-2026-11\"\n"));
    EXPECT_NE(std::string::npos, dump.out.find("    job-jdf-node-name = \"Autumn brochure\"\n"));
    EXPECT_NE(std::string::npos, dump.out.find("    job-named-features:\n"));
    EXPECT_TRUE(dump.err.empty()) << dump.err;
    // Standard input gives the same tree.
    ToolRun piped = runTool("dump -", readFile(kExample));
    EXPECT_EQ(0, piped.exitCode);
    EXPECT_EQ(dump.out, piped.out);
}

TEST(ZundoTool, ConvertWritesATicketThatReadsBack) {
    std::string converted = tempPath("converted.jdf");
    ToolRun convert = runTool("convert " + kExample + " " + converted);
    ASSERT_EQ(0, convert.exitCode) << convert.err;
    std::string text = readFile(converted);
    EXPECT_EQ(0u, text.find("<?xml version=\"1.0\" encoding=\"UTF-8\""));
    EXPECT_NE(std::string::npos, text.find("Type=\"Combined\""));
    EXPECT_NE(std::string::npos, text.find("JobID=\"brochure-2026-11\""));
    ToolRun dumpConverted = runTool("dump " + converted);
    EXPECT_EQ(0, dumpConverted.exitCode) << dumpConverted.err;
    EXPECT_NE(std::string::npos, dumpConverted.out.find("job-id = \"brochure-2026-11\""));
    // Standard output works as the target too.
    ToolRun toStdout = runTool("convert - -", readFile(kExample));
    EXPECT_EQ(0, toStdout.exitCode);
    EXPECT_EQ(text, toStdout.out);
    std::remove(converted.c_str());
}

TEST(ZundoTool, BadInputGivesOneLineAndFailure) {
    ToolRun missing = runTool("dump /nonexistent/ticket.jdf");
    EXPECT_EQ(1, missing.exitCode);
    EXPECT_EQ("zundo: cannot open '/nonexistent/ticket.jdf': No such file or directory\n",
              missing.err);

    ToolRun malformed = runTool("dump -", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<JDF>\n<a></b>\n");
    EXPECT_EQ(1, malformed.exitCode);
    EXPECT_EQ(0u, malformed.err.find("zundo: cannot read 'standard input': ZUNDO_PARSE_FAILED at "
                                     "line 3, column "));
    EXPECT_TRUE(malformed.out.empty());

    ToolRun notJdf = runTool("dump -", "<?xml version=\"1.0\" encoding=\"UTF-8\"?><html/>");
    EXPECT_EQ(1, notJdf.exitCode);
    EXPECT_NE(std::string::npos, notJdf.err.find("ZUNDO_WRONG_ELEMENT")) << notJdf.err;

    ToolRun latin = runTool("dump -", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><JDF/>");
    EXPECT_EQ(1, latin.exitCode);
    EXPECT_NE(std::string::npos, latin.err.find("ZUNDO_UNSUPPORTED_ENCODING"));

    ToolRun empty = runTool("dump -", "");
    EXPECT_EQ(1, empty.exitCode);
    EXPECT_EQ(0u, empty.err.find("zundo: cannot read 'standard input': "));

    ToolRun binary = runTool("dump -", std::string("\x7f" "ELF\0\0\x01", 7));
    EXPECT_EQ(1, binary.exitCode);

    ToolRun unwritable = runTool("convert " + kExample + " /nonexistent/out.jdf");
    EXPECT_EQ(1, unwritable.exitCode);
    EXPECT_EQ("zundo: cannot create '/nonexistent/out.jdf': No such file or directory\n",
              unwritable.err);
}

TEST(ZundoTool, TraceOptionFillsTheTraceFile) {
    std::string trace = tempPath("trace.log");
    std::remove(trace.c_str());
    ToolRun dump = runTool("--trace " + trace + " dump " + kExample);
    EXPECT_EQ(0, dump.exitCode) << dump.err;
    std::string traced = readFile(trace);
    EXPECT_NE(std::string::npos, traced.find(">> Entering readJDFString"));
    std::remove(trace.c_str());
    ToolRun badTrace = runTool("--trace /nonexistent/trace.log dump " + kExample);
    EXPECT_EQ(1, badTrace.exitCode);
    EXPECT_NE(std::string::npos, badTrace.err.find("cannot open trace file"));
}

}  // namespace
