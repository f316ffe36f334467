// How numbers and time stamps are spelled in a written job ticket. Each
// function writes into the caller's buffer and returns it, or returns null
// (with an empty buffer) when the text does not fit.
#ifndef ZUNDO_WRITE_NUMBER_FORMAT_H
#define ZUNDO_WRITE_NUMBER_FORMAT_H

#include <cstddef>

// Written where a date-time is required but the object has none.
extern const char kMissingTimeStamp[];

// Holds any double printed with six decimals (DBL_MAX has 309 digits).
const size_t kNumberTextSize = 320;
const size_t kPairTextSize = 2 * kNumberTextSize;
const size_t kRectangleTextSize = 4 * kNumberTextSize;

// value printed with a "%0.<n>f" format, then trailing zeros and a
// trailing point removed: 2.500000 -> "2.5", 3.000000 -> "3".
char *convertDoubleToStringJT(char *buffer, size_t size, const char *format, double value);
// convertDoubleToStringJT with "%0.6f".
char *formatReal(char *buffer, size_t size, double value);
char *formatInteger(char *buffer, size_t size, int value);
// "x y" and "a b c d".
char *formatPair(char *buffer, size_t size, const char *x, const char *y);
char *formatRectangle(char *buffer, size_t size, const char *a, const char *b, const char *c,
                      const char *d);
char *formatRealPair(char *buffer, size_t size, double x, double y);
char *formatRealRectangle(char *buffer, size_t size, double a, double b, double c, double d);

#endif
