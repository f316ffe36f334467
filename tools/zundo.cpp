// zundo: command-line tool for people who handle job tickets. Prints a
// ticket's object tree or reads and rewrites it through the library.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "status_names.h"
#include "ticket_dump.h"
#include "zundo.h"

namespace {

const int kExitFailure = 1;
const int kExitUsage = 2;

void printUsage(FILE *out) {
    std::fprintf(out,
                 "usage: zundo [--trace FILE] dump TICKET.jdf\n"
                 "       zundo [--trace FILE] convert IN.jdf OUT.jdf\n"
                 "       zundo --version | --help\n"
                 "\n"
                 "  dump      print the ticket's objects and their set attributes\n"
                 "  convert   read a ticket and write it again as JDF\n"
                 "  --trace   append the library's trace to FILE\n"
                 "  -         in place of a file name: standard input or output\n");
}

bool isStandardStream(const char *name) { return std::strcmp(name, "-") == 0; }

const char *displayName(const char *name) { return isStandardStream(name) ? "standard input" : name; }

bool readAll(FILE *in, std::string *text) {
    char buffer[65536];
    size_t got;
    while ((got = std::fread(buffer, 1, sizeof buffer, in)) > 0) text->append(buffer, got);
    return !std::ferror(in);
}

// Reads the whole input (a file or standard input) into `text`.
bool readInput(const char *name, std::string *text) {
    if (isStandardStream(name)) {
        if (readAll(stdin, text)) return true;
        std::fprintf(stderr, "zundo: cannot read standard input: %s\n", std::strerror(errno));
        return false;
    }
    FILE *in = std::fopen(name, "rb");
    if (in == nullptr) {
        std::fprintf(stderr, "zundo: cannot open '%s': %s\n", name, std::strerror(errno));
        return false;
    }
    bool ok = readAll(in, text);
    if (!ok) std::fprintf(stderr, "zundo: cannot read '%s': %s\n", name, std::strerror(errno));
    std::fclose(in);
    return ok;
}

zundo_int_object_s *readTicket(const char *name) {
    std::string text;
    if (!readInput(name, &text)) return nullptr;
    if (text.find('\0') != std::string::npos) {
        std::fprintf(stderr, "zundo: cannot read '%s': it holds NUL bytes, not a JDF text\n",
                     displayName(name));
        return nullptr;
    }
    zundo_int_object_s *ticket = nullptr;
    zundo_result_t result = newJobTicketInfoFromString(&ticket, text.c_str());
    if (result.status == ZUNDO_OK) return ticket;
    if (result.status == ZUNDO_PARSE_FAILED)
        std::fprintf(stderr, "zundo: cannot read '%s': %s at line %d, column %d\n",
                     displayName(name), statusName(result.status), result.line, result.column);
    else
        std::fprintf(stderr, "zundo: cannot read '%s': %s\n", displayName(name),
                     statusName(result.status));
    return nullptr;
}

bool writeOutput(const char *name, const char *text) {
    size_t length = std::strlen(text);
    if (isStandardStream(name)) {
        if (std::fwrite(text, 1, length, stdout) == length && std::fflush(stdout) == 0) return true;
        std::fprintf(stderr, "zundo: cannot write standard output: %s\n", std::strerror(errno));
        return false;
    }
    FILE *out = std::fopen(name, "wb");
    if (out == nullptr) {
        std::fprintf(stderr, "zundo: cannot create '%s': %s\n", name, std::strerror(errno));
        return false;
    }
    bool written = std::fwrite(text, 1, length, out) == length;
    int error = errno;
    if (std::fclose(out) != 0 && written) {
        written = false;
        error = errno;
    }
    if (!written) std::fprintf(stderr, "zundo: cannot write '%s': %s\n", name, std::strerror(error));
    return written;
}

int dumpCommand(const char *input) {
    zundo_int_object_s *ticket = readTicket(input);
    if (ticket == nullptr) return kExitFailure;
    dumpTicket(stdout, ticket);
    destroy(ticket);
    return std::fflush(stdout) == 0 ? 0 : kExitFailure;
}

int convertCommand(const char *input, const char *output) {
    zundo_int_object_s *ticket = readTicket(input);
    if (ticket == nullptr) return kExitFailure;
    char *text = nullptr;
    zundo_status_t status = writeJobTicketString(ticket, &text);
    destroy(ticket);
    if (status != ZUNDO_OK || text == nullptr) {
        std::fprintf(stderr, "zundo: cannot write the ticket read from '%s': %s\n",
                     displayName(input), statusName(status != ZUNDO_OK ? status : ZUNDO_ERROR));
        releaseJobTicketString(text);
        return kExitFailure;
    }
    bool written = writeOutput(output, text);
    releaseJobTicketString(text);
    return written ? 0 : kExitFailure;
}

// Tracing writes only while DEBUG_ZUNDO is defined, so the option sets it.
bool startTrace(const char *path) {
    FILE *probe = std::fopen(path, "a");
    if (probe == nullptr) {
        std::fprintf(stderr, "zundo: cannot open trace file '%s': %s\n", path, std::strerror(errno));
        return false;
    }
    std::fclose(probe);
    setenv("DEBUG_ZUNDO", "1", 1);
    enableTraceFile(1, path);
    return true;
}

}  // namespace

int main(int argc, char **argv) {
    std::vector<const char *> args(argv + 1, argv + argc);
    if (args.size() == 1 && std::strcmp(args[0], "--version") == 0) {
        std::printf("zundo %s\n", getZUNDOCurrentVersion());
        return 0;
    }
    if (args.size() == 1 && (std::strcmp(args[0], "--help") == 0 || std::strcmp(args[0], "-h") == 0)) {
        printUsage(stdout);
        return 0;
    }
    bool tracing = false;
    if (args.size() >= 2 && std::strcmp(args[0], "--trace") == 0) {
        if (!startTrace(args[1])) return kExitFailure;
        tracing = true;
        args.erase(args.begin(), args.begin() + 2);
    }
    int exitCode = kExitUsage;
    if (args.size() == 2 && std::strcmp(args[0], "dump") == 0) {
        exitCode = dumpCommand(args[1]);
    } else if (args.size() == 3 && std::strcmp(args[0], "convert") == 0) {
        exitCode = convertCommand(args[1], args[2]);
    } else {
        printUsage(stderr);
    }
    if (tracing) disableTraceFile();
    return exitCode;
}
