// DateTime: an xs:dateTime with a whole-hour zone offset (plus minutes), a
// zulu flag, or one of the two infinite values "INF" and "-INF".
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include "values/value_objects.h"
#include "zundo_trace.h"

namespace {

const char kInfinity[] = "INF";
const char kNegativeInfinity[] = "-INF";

// Field marker for "not supplied by the text": refused by the setters.
const int kMissing = -1;
// No zone offset in the text: outside the range setOffset accepts.
const int kMissingOffset = -15;

zundo_status_t setField(zundo_date_time_s *dateTime, int zundo_date_time_s::*field, int value,
                        int low, int high) {
    if (dateTime == nullptr || value < low || value > high) return ZUNDO_INVALID_ARGUMENT;
    dateTime->*field = value;
    dateTime->infinity = nullptr;
    return ZUNDO_OK;
}

// True when nothing but blanks follows the scanned text.
bool onlyBlanksFrom(const char *text) {
    while (*text == ' ' || *text == '\t' || *text == '\n' || *text == '\r') ++text;
    return *text == '\0';
}

// Days since 1970-01-01 of a proleptic Gregorian date. Month 0 and day 0
// count as the month and day before the first, so every field value the
// setters accept maps onto one line.
long long daysFromCivil(long long year, long long month, long long day) {
    year -= month <= 2;
    long long era = (year >= 0 ? year : year - 399) / 400;
    long long yearOfEra = year - era * 400;
    long long dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    long long dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

// Seconds since the epoch in UTC. The offset minutes take the sign of the
// offset hours (an offset of -5 hours and 30 minutes is -05:30).
long long utcSeconds(const zundo_date_time_s *dateTime) {
    long long seconds = ((daysFromCivil(dateTime->year, dateTime->month, dateTime->day) * 24 +
                          dateTime->hour) * 60 + dateTime->minute) * 60 + dateTime->second;
    if (dateTime->zulu == 0) {
        long long offsetMinutes = dateTime->offsetHours * 60LL +
                                  (dateTime->offsetHours < 0 ? -dateTime->offsetMinutes
                                                             : dateTime->offsetMinutes);
        seconds -= offsetMinutes * 60;
    }
    return seconds;
}

// Position of an infinite date-time on the time line: "-INF" before every
// ordinary date-time, "INF" after every one.
int infinitySide(const zundo_date_time_s *dateTime) {
    if (dateTime->infinity == nullptr) return 0;
    return std::strcmp(dateTime->infinity, kNegativeInfinity) == 0 ? -1 : 1;
}

}  // namespace

extern "C" {

zundo_status_t setYear(zundo_date_time_s *dateTime, int year) {
    return setField(dateTime, &zundo_date_time_s::year, year, 0, 9999);
}

zundo_status_t setMonth(zundo_date_time_s *dateTime, int month) {
    return setField(dateTime, &zundo_date_time_s::month, month, 0, 12);
}

zundo_status_t setDay(zundo_date_time_s *dateTime, int day) {
    return setField(dateTime, &zundo_date_time_s::day, day, 0, 31);
}

zundo_status_t setHour(zundo_date_time_s *dateTime, int hour) {
    return setField(dateTime, &zundo_date_time_s::hour, hour, 0, 23);
}

zundo_status_t setMinute(zundo_date_time_s *dateTime, int minute) {
    return setField(dateTime, &zundo_date_time_s::minute, minute, 0, 59);
}

zundo_status_t setSecond(zundo_date_time_s *dateTime, int second) {
    return setField(dateTime, &zundo_date_time_s::second, second, 0, 59);
}

zundo_status_t setOffset(zundo_date_time_s *dateTime, int offsetHours) {
    return setField(dateTime, &zundo_date_time_s::offsetHours, offsetHours, -12, 13);
}

zundo_status_t setOffsetMinute(zundo_date_time_s *dateTime, int offsetMinute) {
    return setField(dateTime, &zundo_date_time_s::offsetMinutes, offsetMinute, 0, 59);
}

zundo_status_t setZulu(zundo_date_time_s *dateTime, int zulu) {
    if (dateTime == nullptr) return ZUNDO_INVALID_ARGUMENT;
    dateTime->zulu = zulu;
    dateTime->infinity = nullptr;
    return ZUNDO_OK;
}

zundo_status_t setINF(zundo_date_time_s *dateTime, const char *text) {
    if (dateTime == nullptr || text == nullptr) return ZUNDO_INVALID_ARGUMENT;
    if (std::strcmp(text, kInfinity) == 0) {
        dateTime->infinity = kInfinity;
    } else if (std::strcmp(text, kNegativeInfinity) == 0) {
        dateTime->infinity = kNegativeInfinity;
    } else {
        return ZUNDO_INVALID_ARGUMENT;
    }
    dateTime->day = dateTime->hour = dateTime->minute = dateTime->second = 0;
    dateTime->month = dateTime->year = dateTime->offsetHours = 0;
    return ZUNDO_OK;
}

int getYear(const zundo_date_time_s *dateTime) { return dateTime ? dateTime->year : -1; }
int getMonth(const zundo_date_time_s *dateTime) { return dateTime ? dateTime->month : 0; }
int getDay(const zundo_date_time_s *dateTime) { return dateTime ? dateTime->day : 0; }
int getHour(const zundo_date_time_s *dateTime) { return dateTime ? dateTime->hour : -1; }
int getMinute(const zundo_date_time_s *dateTime) { return dateTime ? dateTime->minute : -1; }
int getSecond(const zundo_date_time_s *dateTime) { return dateTime ? dateTime->second : -1; }
int getOffset(const zundo_date_time_s *dateTime) { return dateTime ? dateTime->offsetHours : 0; }
int getOffsetMinute(const zundo_date_time_s *dateTime) {
    return dateTime ? dateTime->offsetMinutes : 0;
}
int getZulu(const zundo_date_time_s *dateTime) { return dateTime ? dateTime->zulu : 0; }
const char *getINF(const zundo_date_time_s *dateTime) {
    return dateTime ? dateTime->infinity : nullptr;
}

zundo_status_t newDateTime(zundo_date_time_s **out, int hour, int minute, int second, int month,
                           int day, int year, int offsetHours) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    zundo_date_time_s *dateTime = allocateValueRecord<zundo_date_time_s>();
    if (dateTime == nullptr) {
        traceOutOfMemory("newDateTime");
        return ZUNDO_OUT_OF_MEMORY;
    }
    dateTime->hour = dateTime->minute = dateTime->second = dateTime->year = -1;
    if (setHour(dateTime, hour) != ZUNDO_OK || setMinute(dateTime, minute) != ZUNDO_OK ||
        setSecond(dateTime, second) != ZUNDO_OK || setMonth(dateTime, month) != ZUNDO_OK ||
        setDay(dateTime, day) != ZUNDO_OK || setYear(dateTime, year) != ZUNDO_OK ||
        setOffset(dateTime, offsetHours) != ZUNDO_OK) {
        std::free(dateTime);
        return ZUNDO_INVALID_ARGUMENT;
    }
    *out = dateTime;
    return ZUNDO_OK;
}

// The offset is the zone's standard whole-hour offset, one hour more while
// daylight saving time is in force; zones beyond the offsets setOffset
// accepts are refused with 2.
zundo_status_t newCurrentDateTime(zundo_date_time_s **out) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    tzset();
    std::time_t now = std::time(nullptr);
    std::tm local{};
    if (localtime_r(&now, &local) == nullptr) return ZUNDO_ERROR;
    long standardOffset = -timezone;  // seconds east of UTC outside daylight saving time
    int offsetHours = static_cast<int>(standardOffset / 3600) + (local.tm_isdst > 0 ? 1 : 0);
    int offsetMinutes = static_cast<int>(std::labs(standardOffset % 3600) / 60);
    // A leap second is reported as second 60; the record holds 0-59.
    int second = local.tm_sec > 59 ? 59 : local.tm_sec;
    zundo_date_time_s *dateTime = nullptr;
    zundo_status_t status = newDateTime(&dateTime, local.tm_hour, local.tm_min, second,
                                        local.tm_mon + 1, local.tm_mday, local.tm_year + 1900,
                                        offsetHours);
    if (status != ZUNDO_OK) return status;
    dateTime->offsetMinutes = offsetMinutes;
    *out = dateTime;
    return ZUNDO_OK;
}

zundo_status_t newDateTimeFromString(zundo_date_time_s **out, const char *text) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (text == nullptr || text[0] == '\0') return ZUNDO_INVALID_ARGUMENT;
    if (std::strcmp(text, kInfinity) == 0 || std::strcmp(text, kNegativeInfinity) == 0) {
        zundo_date_time_s *dateTime = allocateValueRecord<zundo_date_time_s>();
        if (dateTime == nullptr) {
            traceOutOfMemory("newDateTimeFromString");
            return ZUNDO_OUT_OF_MEMORY;
        }
        dateTime->hour = dateTime->minute = dateTime->second = dateTime->year = -1;
        dateTime->infinity = text[0] == '-' ? kNegativeInfinity : kInfinity;
        *out = dateTime;
        return ZUNDO_OK;
    }

    bool zulu = std::strchr(text, 'Z') != nullptr;
    bool fraction = std::strchr(text, '.') != nullptr;
    int year = kMissing, month = kMissing, day = kMissing;
    int hour = kMissing, minute = kMissing, second = kMissing;
    int fractionDigits = 0, offsetHours = kMissingOffset, offsetMinutes = kMissing;
    int end = -1;  // set by %n only when the whole pattern matched
    if (zulu && fraction) {
        std::sscanf(text, "%d-%d-%dT%d:%d:%d.%dZ%n", &year, &month, &day, &hour, &minute,
                    &second, &fractionDigits, &end);
    } else if (zulu) {
        std::sscanf(text, "%d-%d-%dT%d:%d:%dZ%n", &year, &month, &day, &hour, &minute, &second,
                    &end);
    } else if (fraction) {
        std::sscanf(text, "%d-%d-%dT%d:%d:%d.%d%d:%d%n", &year, &month, &day, &hour, &minute,
                    &second, &fractionDigits, &offsetHours, &offsetMinutes, &end);
    } else {
        std::sscanf(text, "%d-%d-%dT%d:%d:%d%d:%d%n", &year, &month, &day, &hour, &minute,
                    &second, &offsetHours, &offsetMinutes, &end);
    }
    // Text left over after the zone (or a zone that did not match) is refused.
    if (end < 0 || !onlyBlanksFrom(text + end)) return ZUNDO_INVALID_ARGUMENT;

    zundo_date_time_s *dateTime = nullptr;
    zundo_status_t status = newDateTime(&dateTime, hour, minute, second, month, day, year, 0);
    if (status != ZUNDO_OK) return status;
    if (zulu) {
        dateTime->zulu = 1;
    } else if (setOffset(dateTime, offsetHours) != ZUNDO_OK ||
               setOffsetMinute(dateTime, offsetMinutes) != ZUNDO_OK) {
        destroyDateTime(dateTime);
        return ZUNDO_INVALID_ARGUMENT;
    }
    *out = dateTime;
    return ZUNDO_OK;
}

char *toStringDateTimeN(char *buffer, size_t size, const zundo_date_time_s *dateTime) {
    if (dateTime == nullptr) return formatValueText(buffer, size, "%s", "");
    if (dateTime->infinity != nullptr)
        return formatValueText(buffer, size, "%s", dateTime->infinity);
    if (dateTime->zulu != 0)
        return formatValueText(buffer, size, "%04d-%02d-%02dT%02d:%02d:%02dZ", dateTime->year,
                               dateTime->month, dateTime->day, dateTime->hour, dateTime->minute,
                               dateTime->second);
    return formatValueText(buffer, size, "%04d-%02d-%02dT%02d:%02d:%02d%+03d:%02d",
                           dateTime->year, dateTime->month, dateTime->day, dateTime->hour,
                           dateTime->minute, dateTime->second, dateTime->offsetHours,
                           dateTime->offsetMinutes);
}

char *toStringDateTime(char *buffer, const zundo_date_time_s *dateTime) {
    return toStringDateTimeN(buffer, ZUNDO_DATE_TIME_TEXT_SIZE, dateTime);
}

void destroyDateTime(zundo_date_time_s *dateTime) { std::free(dateTime); }

// Goes through the text form so that a copy is exactly what a reader of the
// printed value would get.
zundo_status_t cloneDateTime(zundo_date_time_s **out, const zundo_date_time_s *dateTime) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (dateTime == nullptr) return ZUNDO_INVALID_ARGUMENT;
    char text[ZUNDO_DATE_TIME_TEXT_SIZE];
    if (toStringDateTime(text, dateTime) == nullptr) return ZUNDO_INVALID_ARGUMENT;
    return newDateTimeFromString(out, text);
}

int compareDateTime(const zundo_date_time_s *a, const zundo_date_time_s *b) {
    if (a == nullptr || b == nullptr) return (a != nullptr) - (b != nullptr);
    if (a->infinity != nullptr && b->infinity != nullptr) {
        int order = std::strcmp(a->infinity, b->infinity);
        return (order > 0) - (order < 0);
    }
    int sideA = infinitySide(a), sideB = infinitySide(b);
    if (sideA != 0 || sideB != 0) return (sideA > sideB) - (sideA < sideB);
    long long instantA = utcSeconds(a), instantB = utcSeconds(b);
    return (instantA > instantB) - (instantA < instantB);
}

}  // extern "C"
