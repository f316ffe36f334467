// Job tickets written by other software: each reads to a ticket or to a
// clear status, and the deliberately malformed ones never read.
#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <map>
#include <string>

#include "zundo.h"

namespace {

namespace fs = std::filesystem;

bool isMalformedSample(const fs::path &path) {
    std::string name = path.filename().string();
    return name.rfind("malformed", 0) == 0 && name.find("correct") == std::string::npos;
}

TEST(ReadCorpus, EveryTicketReadsOrFailsCleanly) {
    fs::path folder = fs::path(ZUNDO_CORPUS_DIR) / "jdf";
    std::error_code error;
    if (!fs::is_directory(folder, error)) GTEST_SKIP() << "no corpus at " << folder;

    int files = 0;
    std::map<zundo_status_t, int> failures;
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file() || entry.path().extension() != ".jdf") continue;
        ++files;
        zundo_int_object_s *ticket = nullptr;
        zundo_result_t result = newJobTicketInfoFromURL(&ticket, entry.path().c_str());
        if (result.status == ZUNDO_OK) {
            EXPECT_NE(nullptr, getJob(ticket)) << entry.path();
            EXPECT_FALSE(isMalformedSample(entry.path())) << entry.path();
        } else {
            EXPECT_EQ(nullptr, ticket) << entry.path();
            ++failures[result.status];
            if (result.status == ZUNDO_PARSE_FAILED) {
                EXPECT_GT(result.line, 0) << entry.path();
            }
        }
        destroy(ticket);
    }
    EXPECT_GT(files, 0);
    int failed = 0;
    for (const auto &failure : failures) failed += failure.second;
    std::cout << "corpus: " << files - failed << " of " << files << " read";
    for (const auto &failure : failures)
        std::cout << ", status " << failure.first << ": " << failure.second;
    std::cout << "\n";
}

}  // namespace
