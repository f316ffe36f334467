// TimePeriod: an xs:duration such as "P0Y2M10DT04H30M15S", possibly
// negative ("-P1D"), or the infinite period "INF".
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

#include "values/value_objects.h"
#include "zundo_trace.h"

namespace {

const char kInfinity[] = "INF";

// Digits of one number of a duration text. Longer numbers are refused
// rather than truncated.
struct DurationNumber {
    char digits[14];
    int length;

    bool add(char digit) {
        if (length >= static_cast<int>(sizeof digits) - 1) return false;
        digits[length++] = digit;
        digits[length] = '\0';
        return true;
    }

    // Moves the number into *value and empties the buffer; false when it
    // does not fit an int.
    bool take(int *value) {
        errno = 0;
        long number = std::strtol(digits, nullptr, 10);
        length = 0;
        if (errno != 0 || number > INT_MAX) return false;
        *value = static_cast<int>(number);
        return true;
    }
};

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// The date part, from just after "P" up to "T" or the end: numbers closed
// by "Y", "M" or "D". A letter without digits before it ends the part.
// Returns false on any other character, an overlong number or digits left
// without a letter.
bool readDatePart(const char *text, zundo_time_period_s *period) {
    DurationNumber number{};
    for (const char *c = text; *c != '\0' && *c != 'T'; ++c) {
        if (isDigit(*c)) {
            if (!number.add(*c)) return false;
            continue;
        }
        int *field = *c == 'Y' ? &period->years
                   : *c == 'M' ? &period->months
                   : *c == 'D' ? &period->days : nullptr;
        if (field == nullptr) return false;
        if (number.length == 0) return true;
        if (!number.take(field)) return false;
    }
    return number.length == 0;
}

// The time part, starting at "T": at least one number with its letter, the
// numbers closed by "H", "M" or "S". A letter without digits is refused.
bool readTimePart(const char *text, zundo_time_period_s *period) {
    size_t length = std::strlen(text);
    if (length < 3) return false;
    char last = text[length - 1];
    if (!((last >= 'A' && last <= 'Z') || (last >= 'a' && last <= 'z'))) return false;
    DurationNumber number{};
    for (const char *c = text + 1; *c != '\0'; ++c) {
        if (isDigit(*c)) {
            if (!number.add(*c)) return false;
            continue;
        }
        int *field = *c == 'H' ? &period->hours
                   : *c == 'M' ? &period->minutes
                   : *c == 'S' ? &period->seconds : nullptr;
        if (field == nullptr || number.length == 0 || !number.take(field)) return false;
    }
    return true;
}

zundo_time_period_s *allocatePeriod(const char *operation) {
    zundo_time_period_s *period = allocateValueRecord<zundo_time_period_s>();
    if (period == nullptr) {
        traceOutOfMemory(operation);
        return nullptr;
    }
    period->seconds = -1;
    return period;
}

zundo_status_t setCount(zundo_time_period_s *period, int zundo_time_period_s::*field, int value) {
    if (period == nullptr || value < 0) return ZUNDO_INVALID_ARGUMENT;
    period->*field = value;
    period->infinity = nullptr;
    return ZUNDO_OK;
}

}  // namespace

extern "C" {

zundo_status_t newTimePeriod(zundo_time_period_s **out, int years, int months, int days,
                             int hours, int minutes) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (years < 0 || months < 0 || days < 0 || hours < 0 || minutes < 0)
        return ZUNDO_INVALID_ARGUMENT;
    zundo_time_period_s *period = allocatePeriod("newTimePeriod");
    if (period == nullptr) return ZUNDO_OUT_OF_MEMORY;
    period->years = years;
    period->months = months;
    period->days = days;
    period->hours = hours;
    period->minutes = minutes;
    *out = period;
    return ZUNDO_OK;
}

zundo_status_t newTimePeriodWithSeconds(zundo_time_period_s **out, int years, int months,
                                        int days, int hours, int minutes, int seconds) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (years < 0 || months < 0 || days < 0 || hours < 0 || minutes < 0 || seconds < 0)
        return ZUNDO_INVALID_ARGUMENT;
    zundo_time_period_s *period = allocatePeriod("newTimePeriodWithSeconds");
    if (period == nullptr) return ZUNDO_OUT_OF_MEMORY;
    period->years = years;
    period->months = months;
    period->days = days;
    period->hours = hours;
    period->minutes = minutes;
    period->seconds = seconds;
    *out = period;
    return ZUNDO_OK;
}

// Letters may come in any order ("P1D2Y" is two years and one day); a
// repeated letter keeps its last number.
zundo_status_t newTimePeriodFromString(zundo_time_period_s **out, const char *text) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (text == nullptr || std::strlen(text) < 3) return ZUNDO_INVALID_ARGUMENT;
    zundo_time_period_s *period = allocatePeriod("newTimePeriodFromString");
    if (period == nullptr) return ZUNDO_OUT_OF_MEMORY;
    if (std::strcmp(text, kInfinity) == 0) {
        period->infinity = kInfinity;
        *out = period;
        return ZUNDO_OK;
    }
    const char *rest = text;
    if (*rest == '-') {
        period->negative = 1;
        ++rest;
    }
    bool valid = *rest == 'P';
    if (valid && rest[1] != 'T') valid = readDatePart(rest + 1, period);
    const char *timePart = valid ? std::strchr(rest, 'T') : nullptr;
    if (timePart != nullptr) valid = readTimePart(timePart, period);
    if (!valid) {
        destroyTimePeriod(period);
        return ZUNDO_INVALID_ARGUMENT;
    }
    *out = period;
    return ZUNDO_OK;
}

char *toStringTimePeriodN(char *buffer, size_t size, const zundo_time_period_s *period) {
    if (period == nullptr) return formatValueText(buffer, size, "%s", "");
    if (period->infinity != nullptr) return formatValueText(buffer, size, "%s", period->infinity);
    const char *sign = period->negative ? "-" : "";
    // Zero seconds are not written, like absent ones.
    if (period->seconds > 0)
        return formatValueText(buffer, size, "%sP%dY%dM%dDT%02dH%02dM%02dS", sign, period->years,
                               period->months, period->days, period->hours, period->minutes,
                               period->seconds);
    return formatValueText(buffer, size, "%sP%dY%dM%dDT%02dH%02dM", sign, period->years,
                           period->months, period->days, period->hours, period->minutes);
}

char *toStringTimePeriod(char *buffer, const zundo_time_period_s *period) {
    return toStringTimePeriodN(buffer, ZUNDO_TIME_PERIOD_TEXT_SIZE, period);
}

zundo_status_t setYears(zundo_time_period_s *period, int years) {
    return setCount(period, &zundo_time_period_s::years, years);
}
zundo_status_t setMonths(zundo_time_period_s *period, int months) {
    return setCount(period, &zundo_time_period_s::months, months);
}
zundo_status_t setDays(zundo_time_period_s *period, int days) {
    return setCount(period, &zundo_time_period_s::days, days);
}
zundo_status_t setHours(zundo_time_period_s *period, int hours) {
    return setCount(period, &zundo_time_period_s::hours, hours);
}
zundo_status_t setMinutes(zundo_time_period_s *period, int minutes) {
    return setCount(period, &zundo_time_period_s::minutes, minutes);
}
zundo_status_t setSeconds(zundo_time_period_s *period, int seconds) {
    return setCount(period, &zundo_time_period_s::seconds, seconds);
}

zundo_status_t setINFtp(zundo_time_period_s *period, const char *text) {
    if (period == nullptr || text == nullptr || std::strcmp(text, kInfinity) != 0)
        return ZUNDO_INVALID_ARGUMENT;
    period->infinity = kInfinity;
    return ZUNDO_OK;
}

void setNegativeDuration(zundo_time_period_s *period, int negative) {
    if (period != nullptr) period->negative = negative;
}

int getYears(const zundo_time_period_s *period) { return period ? period->years : 0; }
int getMonths(const zundo_time_period_s *period) { return period ? period->months : 0; }
int getDays(const zundo_time_period_s *period) { return period ? period->days : 0; }
int getHours(const zundo_time_period_s *period) { return period ? period->hours : 0; }
int getMinutes(const zundo_time_period_s *period) { return period ? period->minutes : 0; }
int getSeconds(const zundo_time_period_s *period) { return period ? period->seconds : -1; }
const char *getINFtp(const zundo_time_period_s *period) {
    return period ? period->infinity : nullptr;
}
int getNegativeDuration(const zundo_time_period_s *period) {
    return period ? period->negative : 0;
}

void destroyTimePeriod(zundo_time_period_s *period) { std::free(period); }

zundo_status_t cloneTimePeriod(zundo_time_period_s **out, const zundo_time_period_s *period) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (period == nullptr) return ZUNDO_INVALID_ARGUMENT;
    zundo_time_period_s *copy = allocateValueRecord<zundo_time_period_s>();
    if (copy == nullptr) {
        traceOutOfMemory("cloneTimePeriod");
        return ZUNDO_OUT_OF_MEMORY;
    }
    *copy = *period;
    *out = copy;
    return ZUNDO_OK;
}

// An infinite period equals only another infinite one, whatever numbers the
// finite fields still hold.
int compareTimePeriod(const zundo_time_period_s *a, const zundo_time_period_s *b) {
    if (a == nullptr || b == nullptr) return a != b;
    if (a->infinity != nullptr || b->infinity != nullptr)
        return !(a->infinity != nullptr && b->infinity != nullptr &&
                 std::strcmp(a->infinity, b->infinity) == 0);
    return !(a->days == b->days && a->months == b->months && a->years == b->years &&
             a->hours == b->hours && a->minutes == b->minutes && a->seconds == b->seconds &&
             a->negative == b->negative);
}

}  // extern "C"
