// Range: a pair of page numbers, "3 ~ 7" or "7". Negative numbers count
// from the end ("relative"): -1 is the last page, 0 ~ -1 the whole document.
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

#include "values/value_objects.h"
#include "zundo_trace.h"

namespace {

const char kRangeRefused[] =
    "lower value must always be less than \t\t\t\t\tthe upper value unless the upper value "
    "\t\t\t\t\tis a negative 'relative' value";

// A relative upper bound may follow any absolute lower bound; otherwise
// both must be of one sort and in order.
bool rangeAccepted(int lower, int upper) {
    if (lower < 0 && upper >= 0) return false;
    if (lower > upper && !(lower >= 0 && upper < 0)) return false;
    return true;
}

zundo_status_t refuseRange() {
    zundo_trace("%s", kRangeRefused);
    return ZUNDO_INVALID_ARGUMENT;
}

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

// One bound: an integer, blanks allowed around it. Text without a number or
// with anything after it is refused rather than read as 0.
bool readBound(const char *begin, const char *end, int *value) {
    while (begin < end && isBlank(*begin)) ++begin;
    while (end > begin && isBlank(end[-1])) --end;
    if (begin == end) return false;
    char *stop = nullptr;
    errno = 0;
    long number = std::strtol(begin, &stop, 10);
    if (stop != end || errno != 0 || number < INT_MIN || number > INT_MAX) return false;
    *value = static_cast<int>(number);
    return true;
}

}  // namespace

extern "C" {

zundo_status_t newRange(zundo_range_s **out, int lower, int upper) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (!rangeAccepted(lower, upper)) return refuseRange();
    zundo_range_s *range = allocateValueRecord<zundo_range_s>();
    if (range == nullptr) {
        traceOutOfMemory("newRange");
        return ZUNDO_OUT_OF_MEMORY;
    }
    range->lower = lower;
    range->upper = upper;
    *out = range;
    return ZUNDO_OK;
}

zundo_status_t newRangeFromString(zundo_range_s **out, const char *text) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (text == nullptr || text[0] == '\0') return ZUNDO_INVALID_ARGUMENT;
    const char *end = text + std::strlen(text);
    const char *tilde = std::strchr(text, '~');
    int lower = 0, upper = 0;
    if (tilde == nullptr) {
        if (!readBound(text, end, &lower)) return ZUNDO_INVALID_ARGUMENT;
        upper = lower;
    } else if (!readBound(text, tilde, &lower) || !readBound(tilde + 1, end, &upper)) {
        return ZUNDO_INVALID_ARGUMENT;
    }
    return newRange(out, lower, upper);
}

zundo_status_t setLower(zundo_range_s *range, int lower) {
    if (range == nullptr) return ZUNDO_INVALID_ARGUMENT;
    if (!rangeAccepted(lower, range->upper)) return refuseRange();
    range->lower = lower;
    return ZUNDO_OK;
}

zundo_status_t setUpper(zundo_range_s *range, int upper) {
    if (range == nullptr) return ZUNDO_INVALID_ARGUMENT;
    if (!rangeAccepted(range->lower, upper)) return refuseRange();
    range->upper = upper;
    return ZUNDO_OK;
}

int getLower(const zundo_range_s *range) { return range ? range->lower : 0; }
int getUpper(const zundo_range_s *range) { return range ? range->upper : 0; }

char *toStringRangeN(char *buffer, size_t size, const zundo_range_s *range) {
    if (range == nullptr) return formatValueText(buffer, size, "%s", "");
    if (range->lower == range->upper)
        return formatValueText(buffer, size, "%ld", static_cast<long>(range->lower));
    return formatValueText(buffer, size, "%ld ~ %ld", static_cast<long>(range->lower),
                           static_cast<long>(range->upper));
}

char *toStringRange(char *buffer, const zundo_range_s *range) {
    return toStringRangeN(buffer, ZUNDO_RANGE_TEXT_SIZE, range);
}

void destroyRange(zundo_range_s *range) { std::free(range); }

zundo_status_t cloneRange(zundo_range_s **out, const zundo_range_s *range) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (range == nullptr) return ZUNDO_INVALID_ARGUMENT;
    zundo_range_s *copy = allocateValueRecord<zundo_range_s>();
    if (copy == nullptr) {
        traceOutOfMemory("cloneRange");
        return ZUNDO_OUT_OF_MEMORY;
    }
    *copy = *range;
    *out = copy;
    return ZUNDO_OK;
}

int compareRange(const zundo_range_s *a, const zundo_range_s *b) {
    if (a == nullptr || b == nullptr) return a != b;
    return !(a->lower == b->lower && a->upper == b->upper);
}

}  // extern "C"
