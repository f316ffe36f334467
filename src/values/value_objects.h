// Records behind the seven value types that pointer-kind attributes hold
// ("DT", "TP", "R", "RGB", "B", "SP", "M"), and the helpers their units
// share. Callers see these types only as opaque pointers.
#ifndef ZUNDO_VALUE_OBJECTS_H
#define ZUNDO_VALUE_OBJECTS_H

#include <cstdlib>

#include "zundo.h"

struct zundo_date_time_s {
    int day;            // 0-31
    int hour;           // 0-23, -1 until set
    int minute;         // 0-59, -1 until set
    int second;         // 0-59, -1 until set
    int month;          // 0-12
    int year;           // 0-9999, -1 until set
    int offsetHours;    // -12 to 13
    int offsetMinutes;  // 0-59, signed like offsetHours when applied
    int zulu;           // non-zero: UTC, the offset is not written
    const char *infinity;  // null, or the constant "INF" / "-INF"
};

struct zundo_time_period_s {
    int days;
    int hours;
    int minutes;
    int months;
    int seconds;  // -1: no seconds
    int years;
    const char *infinity;  // null or the constant "INF"
    int negative;
};

struct zundo_range_s {
    int lower;  // negative numbers count from the end: -1 is the last page
    int upper;
};

struct zundo_rgb_s {
    int red;
    int green;
    int blue;
};

struct zundo_binary_object_s {
    unsigned char *data;  // private copy
    size_t length;
};

struct zundo_start_page_s {
    int page;
    int sheetSide;  // never 0
    int description;
};

struct zundo_modified_s {
    zundo_date_time_s *dateTime;  // owned
    char *modifiedBy;             // private copies or null
    char *projectId;
    char *projectVersion;
    int type;
    zundo_int_attribute_s *attribute;  // owned, with its values
};

// Allocates a zeroed record of type T; null when memory is exhausted.
// Records are plain C data released with free().
template <typename T>
T *allocateValueRecord() {
    return static_cast<T *>(std::calloc(1, sizeof(T)));
}

// Writes into a sized buffer through snprintf. Returns the buffer, or null
// for a null buffer, a zero size or a text that does not fit (the buffer
// then holds an empty string).
char *formatValueText(char *buffer, size_t size, const char *format, ...)
#if defined(__GNUC__)
    __attribute__((format(printf, 3, 4)))
#endif
    ;

#endif
