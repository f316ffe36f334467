// The fuzz targets' entry functions. libFuzzer calls them in the fuzz build
// (libfuzzer_driver.cpp); the test suite replays the seeds and the
// regression inputs through them in the normal build. Each returns null
// when the input passed every check, else a text naming the broken check.
#ifndef ZUNDO_FUZZ_ENTRIES_H
#define ZUNDO_FUZZ_ENTRIES_H

#include <cstddef>
#include <cstdint>

// Reads the input as a ticket text; a ticket that reads is cloned, written
// and its text read again.
const char *fuzzTicketText(const std::uint8_t *data, std::size_t size);

// Parses the input as a date-time, a time period, a range and an RGB value,
// prints each value back and parses it again; encodes and decodes it as
// text with control characters.
const char *fuzzValueText(const std::uint8_t *data, std::size_t size);

#endif
