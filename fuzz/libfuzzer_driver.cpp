// libFuzzer's entry for one fuzz target; ZUNDO_FUZZ_ENTRY names its entry
// function. A broken check is reported like a crash, so that libFuzzer
// keeps the input.
#include <cstdio>
#include <cstdlib>

#include "fuzz_entries.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    if (const char *broken = ZUNDO_FUZZ_ENTRY(data, size)) {
        std::fprintf(stderr, "fuzz check failed: %s\n", broken);
        std::abort();
    }
    return 0;
}
