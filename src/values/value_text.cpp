// Text output shared by the value types' toString operations.
#include <cstdarg>
#include <cstdio>

#include "values/value_objects.h"

char *formatValueText(char *buffer, size_t size, const char *format, ...) {
    if (buffer == nullptr || size == 0) return nullptr;
    va_list args;
    va_start(args, format);
    int length = std::vsnprintf(buffer, size, format, args);
    va_end(args);
    if (length < 0 || static_cast<size_t>(length) >= size) {
        buffer[0] = '\0';
        return nullptr;
    }
    return buffer;
}
