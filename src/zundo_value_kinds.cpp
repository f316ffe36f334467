// What the store does with each pointer kind's values: free, copy and compare
// them through the operations of the value's own type.
#include <cstdlib>
#include <cstring>

#include "zundo_object.h"

void destroyValueByKind(const char *kind, void *value) {
    if (value == nullptr || kind == nullptr) return;
    if (kindIs(kind, ZUNDO_KIND_STRING) || kindIs(kind, ZUNDO_KIND_INTEGER_LIST)) std::free(value);
    else if (kindIs(kind, ZUNDO_KIND_OBJECT)) destroy(static_cast<zundo_int_object_s *>(value));
    else if (kindIs(kind, ZUNDO_KIND_RANGE)) destroyRange(static_cast<zundo_range_s *>(value));
    else if (kindIs(kind, ZUNDO_KIND_BINARY))
        destroyBinaryObject(static_cast<zundo_binary_object_s *>(value));
    else if (kindIs(kind, ZUNDO_KIND_START_PAGE))
        destroyStartPage(static_cast<zundo_start_page_s *>(value));
    else if (kindIs(kind, ZUNDO_KIND_MODIFIED))
        destroyModified(static_cast<zundo_modified_s *>(value));
    else if (kindIs(kind, ZUNDO_KIND_DATE_TIME))
        destroyDateTime(static_cast<zundo_date_time_s *>(value));
    else if (kindIs(kind, ZUNDO_KIND_TIME_PERIOD))
        destroyTimePeriod(static_cast<zundo_time_period_s *>(value));
    else if (kindIs(kind, ZUNDO_KIND_RGB)) destroyRGB(static_cast<zundo_rgb_s *>(value));
}

zundo_status_t cloneValueByKind(const char *kind, const void *value, void **out) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (value == nullptr) return ZUNDO_OK;
    if (kindIs(kind, ZUNDO_KIND_OBJECT)) {
        *out = cloneObj(static_cast<const zundo_int_object_s *>(value));
        return *out != nullptr ? ZUNDO_OK : ZUNDO_ERROR;
    }
    if (kindIs(kind, ZUNDO_KIND_RANGE))
        return cloneRange(reinterpret_cast<zundo_range_s **>(out),
                          static_cast<const zundo_range_s *>(value));
    if (kindIs(kind, ZUNDO_KIND_START_PAGE))
        return cloneStartPage(reinterpret_cast<zundo_start_page_s **>(out),
                              static_cast<const zundo_start_page_s *>(value));
    if (kindIs(kind, ZUNDO_KIND_BINARY))
        return cloneBinaryObject(reinterpret_cast<zundo_binary_object_s **>(out),
                                 static_cast<const zundo_binary_object_s *>(value));
    if (kindIs(kind, ZUNDO_KIND_DATE_TIME))
        return cloneDateTime(reinterpret_cast<zundo_date_time_s **>(out),
                             static_cast<const zundo_date_time_s *>(value));
    if (kindIs(kind, ZUNDO_KIND_TIME_PERIOD))
        return cloneTimePeriod(reinterpret_cast<zundo_time_period_s **>(out),
                               static_cast<const zundo_time_period_s *>(value));
    if (kindIs(kind, ZUNDO_KIND_RGB))
        return cloneRGB(reinterpret_cast<zundo_rgb_s **>(out), static_cast<const zundo_rgb_s *>(value));
    if (kindIs(kind, ZUNDO_KIND_MODIFIED))
        return cloneModified(reinterpret_cast<zundo_modified_s **>(out),
                             static_cast<const zundo_modified_s *>(value));
    return ZUNDO_ERROR;
}

int compareValueByKind(const char *kind, const void *a, const void *b) {
    if (a == nullptr || b == nullptr) return a == b ? 0 : 1;
    if (kindIs(kind, ZUNDO_KIND_STRING))
        return std::strcmp(static_cast<const char *>(a), static_cast<const char *>(b)) != 0;
    if (kindIs(kind, ZUNDO_KIND_INTEGER_LIST))
        return *static_cast<const int *>(a) != *static_cast<const int *>(b);
    if (kindIs(kind, ZUNDO_KIND_OBJECT))
        return compareObjects(static_cast<const zundo_int_object_s *>(a),
                              static_cast<const zundo_int_object_s *>(b));
    if (kindIs(kind, ZUNDO_KIND_RANGE))
        return compareRange(static_cast<const zundo_range_s *>(a),
                            static_cast<const zundo_range_s *>(b));
    if (kindIs(kind, ZUNDO_KIND_START_PAGE))
        return compareStartPage(static_cast<const zundo_start_page_s *>(a),
                                static_cast<const zundo_start_page_s *>(b));
    if (kindIs(kind, ZUNDO_KIND_BINARY))
        return compareBinaryObject(static_cast<const zundo_binary_object_s *>(a),
                                   static_cast<const zundo_binary_object_s *>(b));
    if (kindIs(kind, ZUNDO_KIND_DATE_TIME))
        return compareDateTime(static_cast<const zundo_date_time_s *>(a),
                               static_cast<const zundo_date_time_s *>(b));
    if (kindIs(kind, ZUNDO_KIND_TIME_PERIOD))
        return compareTimePeriod(static_cast<const zundo_time_period_s *>(a),
                                 static_cast<const zundo_time_period_s *>(b));
    if (kindIs(kind, ZUNDO_KIND_RGB))
        return compareRGB(static_cast<const zundo_rgb_s *>(a), static_cast<const zundo_rgb_s *>(b));
    if (kindIs(kind, ZUNDO_KIND_MODIFIED))
        return compareModified(static_cast<const zundo_modified_s *>(a),
                               static_cast<const zundo_modified_s *>(b));
    return 1;
}
