// Number spelling of the written job ticket.
#include "write/number_format.h"

#include <cstring>

#include "values/value_objects.h"

const char kMissingTimeStamp[] = "0000-00-00T00:00:00+00:00";

namespace {

char *textDoesNotFit(char *buffer, size_t size) {
    if (buffer != nullptr && size > 0) buffer[0] = '\0';
    return nullptr;
}

}  // namespace

char *convertDoubleToStringJT(char *buffer, size_t size, const char *format, double value) {
    if (formatValueText(buffer, size, format, value) == nullptr) return nullptr;
    // Infinities and NaN print without a point and keep every character.
    if (std::strchr(buffer, '.') == nullptr) return buffer;
    size_t length = std::strlen(buffer);
    while (length > 0 && buffer[length - 1] == '0') buffer[--length] = '\0';
    if (length > 0 && buffer[length - 1] == '.') buffer[--length] = '\0';
    return buffer;
}

char *formatReal(char *buffer, size_t size, double value) {
    return convertDoubleToStringJT(buffer, size, "%0.6f", value);
}

char *formatInteger(char *buffer, size_t size, int value) {
    return formatValueText(buffer, size, "%i", value);
}

char *formatPair(char *buffer, size_t size, const char *x, const char *y) {
    return formatValueText(buffer, size, "%s %s", x, y);
}

char *formatRectangle(char *buffer, size_t size, const char *a, const char *b, const char *c,
                      const char *d) {
    return formatValueText(buffer, size, "%s %s %s %s", a, b, c, d);
}

char *formatRealPair(char *buffer, size_t size, double x, double y) {
    char first[kNumberTextSize];
    char second[kNumberTextSize];
    if (formatReal(first, sizeof first, x) == nullptr ||
        formatReal(second, sizeof second, y) == nullptr)
        return textDoesNotFit(buffer, size);
    return formatPair(buffer, size, first, second);
}

char *formatRealRectangle(char *buffer, size_t size, double a, double b, double c, double d) {
    char texts[4][kNumberTextSize];
    const double values[4] = {a, b, c, d};
    for (int i = 0; i < 4; ++i)
        if (formatReal(texts[i], sizeof texts[i], values[i]) == nullptr)
            return textDoesNotFit(buffer, size);
    return formatRectangle(buffer, size, texts[0], texts[1], texts[2], texts[3]);
}
