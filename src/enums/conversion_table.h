// The table that ties each enumerated attribute to the tables its codes or
// strings are converted with.
#ifndef ZUNDO_CONVERSION_TABLE_H
#define ZUNDO_CONVERSION_TABLE_H

#include <cstddef>

// One code of an integer attribute and its JDF name. Tables end with the
// pair {-1, nullptr}.
struct zundo_enum_pair_s {
    int code;
    const char *jdf;
};

// One library string and its JDF string (null when the library string has no
// JDF form). Tables end with a pair whose library string is null.
struct zundo_string_pair_s {
    const char *library;
    const char *jdf;
};

// A converter is the table its conversion scans; null means the attribute
// has no such converter.
struct zundo_conversion_row_s {
    const char *attribute;
    const zundo_enum_pair_s *intToJDF;
    const zundo_string_pair_s *charToJDF;
    const zundo_enum_pair_s *jdfToInt;
    const zundo_string_pair_s *jdfToChar;
};

// Rows sorted by attribute name in byte order, one row per name.
extern const zundo_conversion_row_s conversionTable[];
extern const size_t conversionTableRows;

// The row of `attribute`, or null when the attribute has none.
const zundo_conversion_row_s *findConversionRow(const char *attribute);

#endif
