// zundo: command-line tool for job tickets.
#include <cstdio>
#include <cstring>

#include "zundo.h"

namespace {

void printUsage(FILE *out) {
    std::fprintf(out,
                 "usage: zundo --version\n"
                 "       zundo --help\n");
}

}  // namespace

int main(int argc, char **argv) {
    if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
        std::printf("zundo %s\n", getZUNDOCurrentVersion());
        return 0;
    }
    if (argc == 2 && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0)) {
        printUsage(stdout);
        return 0;
    }
    printUsage(stderr);
    return 2;
}
