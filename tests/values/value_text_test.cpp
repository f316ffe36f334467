// Value objects with a text form: date-times, time periods, ranges and
// colours, read and written as JDF carries them.
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

#include "zundo.h"

namespace {

std::string dateTimeText(const zundo_date_time_s *dateTime) {
    char buffer[ZUNDO_DATE_TIME_TEXT_SIZE];
    return toStringDateTime(buffer, dateTime);
}

std::string periodText(const zundo_time_period_s *period) {
    char buffer[ZUNDO_TIME_PERIOD_TEXT_SIZE];
    return toStringTimePeriod(buffer, period);
}

// Parses, prints and parses again; the text must come back as `expected`
// and the second value must compare equal to the first.
void expectDateTimeRoundTrip(const char *text, const char *expected) {
    zundo_date_time_s *first = nullptr, *second = nullptr;
    ASSERT_EQ(newDateTimeFromString(&first, text), ZUNDO_OK) << text;
    std::string printed = dateTimeText(first);
    EXPECT_EQ(printed, expected);
    ASSERT_EQ(newDateTimeFromString(&second, printed.c_str()), ZUNDO_OK);
    EXPECT_EQ(compareDateTime(first, second), 0);
    destroyDateTime(first);
    destroyDateTime(second);
}

int compareTexts(const char *a, const char *b) {
    zundo_date_time_s *first = nullptr, *second = nullptr;
    EXPECT_EQ(newDateTimeFromString(&first, a), ZUNDO_OK) << a;
    EXPECT_EQ(newDateTimeFromString(&second, b), ZUNDO_OK) << b;
    int result = compareDateTime(first, second);
    destroyDateTime(first);
    destroyDateTime(second);
    return result;
}

// Collects level-1 trace messages while alive.
std::vector<std::string> *capturedTraces = nullptr;
struct TraceCapture {
    std::vector<std::string> lines;
    TraceCapture() {
        capturedTraces = &lines;
        setenv("DEBUG_ZUNDO", "1", 1);
        enableTraceCallback(1, [](const char *message) { capturedTraces->push_back(message); });
    }
    ~TraceCapture() {
        disableTraceCallback();
        unsetenv("DEBUG_ZUNDO");
        capturedTraces = nullptr;
    }
};

// Sets TZ for the lifetime of the guard and restores the previous zone.
struct ZoneGuard {
    std::string previous;
    bool hadPrevious;
    explicit ZoneGuard(const char *zone) {
        const char *current = std::getenv("TZ");
        hadPrevious = current != nullptr;
        if (hadPrevious) previous = current;
        setenv("TZ", zone, 1);
        tzset();
    }
    ~ZoneGuard() {
        if (hadPrevious) setenv("TZ", previous.c_str(), 1);
        else unsetenv("TZ");
        tzset();
    }
};

}  // namespace

TEST(ValueDateTime, TextFormsRoundTrip) {
    expectDateTimeRoundTrip("2009-03-07T14:05:00Z", "2009-03-07T14:05:00Z");
    expectDateTimeRoundTrip("2009-03-07T14:05:00.250+01:30", "2009-03-07T14:05:00+01:30");
    expectDateTimeRoundTrip("2009-03-07T14:05:00.5Z", "2009-03-07T14:05:00Z");
    expectDateTimeRoundTrip("2009-03-07T08:35:00-05:30", "2009-03-07T08:35:00-05:30");
    expectDateTimeRoundTrip("INF", "INF");
    expectDateTimeRoundTrip("-INF", "-INF");

    zundo_date_time_s *dateTime = nullptr;
    ASSERT_EQ(newDateTimeFromString(&dateTime, "2009-03-07T14:05:00Z"), ZUNDO_OK);
    EXPECT_EQ(getZulu(dateTime), 1);
    EXPECT_EQ(getYear(dateTime), 2009);
    EXPECT_EQ(getMonth(dateTime), 3);
    EXPECT_EQ(getDay(dateTime), 7);
    destroyDateTime(dateTime);
}

TEST(ValueDateTime, MalformedTextsAreRefused) {
    const char *texts[] = {"", "2009-03-07T14:05:00", "2009-13-07T14:05:00Z",
                           "2009-03-07T24:00:00Z", "2009-03-07T14:05:00+14:00",
                           "2009-03-07T14:05:00+01:60", "2009-03-07", "yesterday",
                           "2009-03-07T14:05:00+01:00Z", "2009-03-07T14:05:00Zjunk"};
    for (const char *text : texts) {
        zundo_date_time_s *dateTime = reinterpret_cast<zundo_date_time_s *>(&texts);
        EXPECT_EQ(newDateTimeFromString(&dateTime, text), ZUNDO_INVALID_ARGUMENT) << text;
        EXPECT_EQ(dateTime, nullptr) << text;
    }
    zundo_date_time_s *dateTime = nullptr;
    EXPECT_EQ(newDateTimeFromString(&dateTime, nullptr), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(newDateTimeFromString(nullptr, "INF"), ZUNDO_INVALID_ARGUMENT);
}

TEST(ValueDateTime, ComparesInstantsAcrossZones) {
    EXPECT_EQ(compareTexts("2009-03-07T10:00:00+02:00", "2009-03-07T09:00:00Z"), -1);
    EXPECT_EQ(compareTexts("2024-12-31T23:00:00Z", "2025-01-01T00:00:00Z"), -1);
    EXPECT_EQ(compareTexts("2025-01-01T00:30:00+01:00", "2024-12-31T23:15:00Z"), 1);
    EXPECT_EQ(compareTexts("2009-03-07T14:05:00+01:00", "2009-03-07T13:05:00Z"), 0);
    EXPECT_EQ(compareTexts("2009-03-07T08:35:00-05:30", "2009-03-07T14:05:00Z"), 0);
    EXPECT_EQ(compareTexts("2024-03-01T00:00:00+01:00", "2024-02-29T23:00:00Z"), 0);

    // Infinite values sit at the two ends of the time line.
    EXPECT_EQ(compareTexts("-INF", "0000-01-01T00:00:00Z"), -1);
    EXPECT_EQ(compareTexts("INF", "9999-12-31T23:59:59Z"), 1);
    EXPECT_EQ(compareTexts("-INF", "INF"), -1);
    EXPECT_EQ(compareTexts("INF", "INF"), 0);

    zundo_date_time_s *dateTime = nullptr;
    ASSERT_EQ(newDateTimeFromString(&dateTime, "INF"), ZUNDO_OK);
    EXPECT_EQ(compareDateTime(nullptr, nullptr), 0);
    EXPECT_EQ(compareDateTime(nullptr, dateTime), -1);
    EXPECT_EQ(compareDateTime(dateTime, nullptr), 1);
    destroyDateTime(dateTime);
}

TEST(ValueDateTime, ConstructorAndSettersValidateRanges) {
    zundo_date_time_s *dateTime = nullptr;
    EXPECT_EQ(newDateTime(&dateTime, 24, 0, 0, 1, 1, 2009, 0), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(dateTime, nullptr);
    EXPECT_EQ(newDateTime(&dateTime, 0, 0, 0, 1, 1, 2009, -13), ZUNDO_INVALID_ARGUMENT);
    ASSERT_EQ(newDateTime(&dateTime, 14, 5, 0, 3, 7, 2009, 1), ZUNDO_OK);
    EXPECT_EQ(dateTimeText(dateTime), "2009-03-07T14:05:00+01:00");

    EXPECT_EQ(setMonth(dateTime, 13), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(setYear(dateTime, 10000), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(setOffsetMinute(dateTime, 60), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(dateTimeText(dateTime), "2009-03-07T14:05:00+01:00");

    EXPECT_EQ(setINF(dateTime, "forever"), ZUNDO_INVALID_ARGUMENT);
    ASSERT_EQ(setINF(dateTime, "-INF"), ZUNDO_OK);
    EXPECT_STREQ(getINF(dateTime), "-INF");
    EXPECT_EQ(getYear(dateTime), 0);
    EXPECT_EQ(dateTimeText(dateTime), "-INF");
    ASSERT_EQ(setYear(dateTime, 2010), ZUNDO_OK);  // an ordinary value again
    EXPECT_EQ(getINF(dateTime), nullptr);
    EXPECT_EQ(dateTimeText(dateTime), "2010-00-00T00:00:00+00:00");
    destroyDateTime(dateTime);

    EXPECT_EQ(getYear(nullptr), -1);
    EXPECT_EQ(getHour(nullptr), -1);
    EXPECT_EQ(getDay(nullptr), 0);
    EXPECT_EQ(setZulu(nullptr, 1), ZUNDO_INVALID_ARGUMENT);
}

TEST(ValueDateTime, CloneKeepsZoneAndZulu) {
    const char *texts[] = {"2009-03-07T14:05:00-11:45", "2009-03-07T14:05:00Z", "INF"};
    for (const char *text : texts) {
        zundo_date_time_s *source = nullptr, *copy = nullptr;
        ASSERT_EQ(newDateTimeFromString(&source, text), ZUNDO_OK);
        ASSERT_EQ(cloneDateTime(&copy, source), ZUNDO_OK);
        EXPECT_NE(copy, source);
        EXPECT_EQ(dateTimeText(copy), text);
        EXPECT_EQ(getZulu(copy), getZulu(source));
        EXPECT_EQ(getOffset(copy), getOffset(source));
        destroyDateTime(source);
        destroyDateTime(copy);
    }
}

TEST(ValueDateTime, PrintingHandlesNullAndSmallBuffers) {
    char buffer[ZUNDO_DATE_TIME_TEXT_SIZE] = "x";
    EXPECT_EQ(toStringDateTime(nullptr, nullptr), nullptr);
    EXPECT_STREQ(toStringDateTime(buffer, nullptr), "");
    zundo_date_time_s *dateTime = nullptr;
    ASSERT_EQ(newDateTimeFromString(&dateTime, "2009-03-07T14:05:00+01:00"), ZUNDO_OK);
    EXPECT_EQ(toStringDateTimeN(buffer, 25, dateTime), nullptr);
    EXPECT_STREQ(buffer, "");
    EXPECT_STREQ(toStringDateTimeN(buffer, 26, dateTime), "2009-03-07T14:05:00+01:00");
    destroyDateTime(dateTime);
}

TEST(ValueDateTime, CurrentTimeUsesLocalZone) {
    struct Zone {
        const char *tz;
        int standardHours;
        int minutes;
    };
    const Zone zones[] = {{"UTC0", 0, 0},
                          {"IST-5:30", 5, 30},
                          {"NST3:30NDT,M3.2.0,M11.1.0", -3, 30},
                          {"CET-1CEST,M3.5.0,M10.5.0/3", 1, 0}};
    for (const Zone &zone : zones) {
        ZoneGuard guard(zone.tz);
        std::time_t before = std::time(nullptr);
        zundo_date_time_s *now = nullptr;
        ASSERT_EQ(newCurrentDateTime(&now), ZUNDO_OK) << zone.tz;
        std::time_t after = std::time(nullptr);
        std::tm local{};
        localtime_r(&after, &local);
        EXPECT_EQ(getOffset(now), zone.standardHours + (local.tm_isdst > 0 ? 1 : 0)) << zone.tz;
        EXPECT_EQ(getOffsetMinute(now), zone.minutes) << zone.tz;
        EXPECT_EQ(getZulu(now), 0);

        // The local reading denotes the present instant.
        std::tm utc{};
        gmtime_r(&before, &utc);
        zundo_date_time_s *earliest = nullptr, *latest = nullptr;
        ASSERT_EQ(newDateTime(&earliest, utc.tm_hour, utc.tm_min, utc.tm_sec, utc.tm_mon + 1,
                              utc.tm_mday, utc.tm_year + 1900, 0), ZUNDO_OK);
        gmtime_r(&after, &utc);
        ASSERT_EQ(newDateTime(&latest, utc.tm_hour, utc.tm_min, utc.tm_sec, utc.tm_mon + 1,
                              utc.tm_mday, utc.tm_year + 1900, 0), ZUNDO_OK);
        EXPECT_LE(compareDateTime(earliest, now), 0) << zone.tz << " " << dateTimeText(now);
        EXPECT_GE(compareDateTime(latest, now), 0) << zone.tz << " " << dateTimeText(now);
        destroyDateTime(earliest);
        destroyDateTime(latest);
        destroyDateTime(now);
    }
}

TEST(ValueTimePeriod, TextFormsRoundTrip) {
    const char *pairs[][2] = {{"P1Y2M3DT04H05M06S", "P1Y2M3DT04H05M06S"},
                              {"-P1D", "-P0Y0M1DT00H00M"},
                              {"PT1H", "P0Y0M0DT01H00M"},
                              {"P1D2Y", "P2Y0M1DT00H00M"},
                              {"P1YMT01H", "P1Y0M0DT01H00M"},  // a bare letter ends the date
                              {"P0Y2M10DT04H30M15S", "P0Y2M10DT04H30M15S"},
                              {"P0000000000012D", "P0Y0M12DT00H00M"},
                              {"INF", "INF"}};
    for (const auto &pair : pairs) {
        zundo_time_period_s *first = nullptr, *second = nullptr;
        ASSERT_EQ(newTimePeriodFromString(&first, pair[0]), ZUNDO_OK) << pair[0];
        std::string printed = periodText(first);
        EXPECT_EQ(printed, pair[1]);
        ASSERT_EQ(newTimePeriodFromString(&second, printed.c_str()), ZUNDO_OK);
        EXPECT_EQ(compareTimePeriod(first, second), 0) << pair[0];
        destroyTimePeriod(first);
        destroyTimePeriod(second);
    }
}

TEST(ValueTimePeriod, MalformedTextsAreRefused) {
    const char *texts[] = {"P", "PT", "P1X", "P12", "P1DT", "PT1", "PT1X", "X1D", "-INF",
                           "P1DT1H2", "PTH1M", "P00000000000012D", "P9999999999999D", "--P1D"};
    for (const char *text : texts) {
        zundo_time_period_s *period = nullptr;
        EXPECT_EQ(newTimePeriodFromString(&period, text), ZUNDO_INVALID_ARGUMENT) << text;
        EXPECT_EQ(period, nullptr) << text;
    }
    zundo_time_period_s *period = nullptr;
    EXPECT_EQ(newTimePeriodFromString(&period, nullptr), ZUNDO_INVALID_ARGUMENT);
}

TEST(ValueTimePeriod, FieldsSettersAndComparison) {
    zundo_time_period_s *period = nullptr, *other = nullptr;
    EXPECT_EQ(newTimePeriod(&period, 0, -1, 0, 0, 0), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(newTimePeriodWithSeconds(&period, 0, 0, 0, 0, 0, -1), ZUNDO_INVALID_ARGUMENT);
    ASSERT_EQ(newTimePeriod(&period, 0, 0, 1, 2, 3), ZUNDO_OK);
    EXPECT_EQ(getSeconds(period), -1);
    ASSERT_EQ(newTimePeriodFromString(&other, "P1DT2H3M"), ZUNDO_OK);
    EXPECT_EQ(compareTimePeriod(period, other), 0);

    // Zero seconds print like absent ones but are a different value.
    ASSERT_EQ(setSeconds(other, 0), ZUNDO_OK);
    EXPECT_EQ(periodText(other), periodText(period));
    EXPECT_EQ(compareTimePeriod(period, other), 1);
    ASSERT_EQ(setSeconds(other, 9), ZUNDO_OK);
    EXPECT_EQ(periodText(other), "P0Y0M1DT02H03M09S");

    EXPECT_EQ(setHours(period, -1), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(getHours(period), 2);
    setNegativeDuration(period, 1);
    EXPECT_EQ(periodText(period), "-P0Y0M1DT02H03M");

    // An infinite period equals only another infinite one.
    EXPECT_EQ(setINFtp(other, "-INF"), ZUNDO_INVALID_ARGUMENT);
    ASSERT_EQ(setINFtp(other, "INF"), ZUNDO_OK);
    zundo_time_period_s *copy = nullptr;
    ASSERT_EQ(cloneTimePeriod(&copy, other), ZUNDO_OK);
    EXPECT_EQ(compareTimePeriod(copy, other), 0);
    ASSERT_EQ(setDays(copy, 4), ZUNDO_OK);  // finite again
    EXPECT_EQ(getINFtp(copy), nullptr);
    EXPECT_EQ(compareTimePeriod(copy, other), 1);
    EXPECT_EQ(compareTimePeriod(nullptr, other), 1);
    EXPECT_EQ(compareTimePeriod(nullptr, nullptr), 0);
    destroyTimePeriod(period);
    destroyTimePeriod(other);
    destroyTimePeriod(copy);
}

TEST(ValueRange, RelativeBoundsRule) {
    const int accepted[][2] = {{3, 7}, {5, 5}, {0, -1}, {4, -2}, {-3, -1}};
    const int refused[][2] = {{7, 3}, {-1, 5}, {-1, -3}};
    for (const auto &bounds : accepted) {
        zundo_range_s *range = nullptr;
        EXPECT_EQ(newRange(&range, bounds[0], bounds[1]), ZUNDO_OK);
        destroyRange(range);
    }
    TraceCapture traces;
    for (const auto &bounds : refused) {
        zundo_range_s *range = nullptr;
        EXPECT_EQ(newRange(&range, bounds[0], bounds[1]), ZUNDO_INVALID_ARGUMENT);
        EXPECT_EQ(range, nullptr);
    }
    ASSERT_EQ(traces.lines.size(), 3u);
    EXPECT_EQ(traces.lines[0],
              "lower value must always be less than \t\t\t\t\tthe upper value unless the upper "
              "value \t\t\t\t\tis a negative 'relative' value");

    zundo_range_s *range = nullptr;
    ASSERT_EQ(newRange(&range, 2, 6), ZUNDO_OK);
    EXPECT_EQ(setLower(range, 7), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(setUpper(range, 1), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(getLower(range), 2);
    EXPECT_EQ(getUpper(range), 6);
    EXPECT_EQ(setUpper(range, -1), ZUNDO_OK);
    EXPECT_EQ(setLower(range, -3), ZUNDO_OK);
    EXPECT_EQ(setUpper(range, 5), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(getUpper(range), -1);
    destroyRange(range);
    EXPECT_EQ(traces.lines.size(), 6u);
}

TEST(ValueRange, TextFormsRoundTrip) {
    const char *pairs[][2] = {{"7", "7"}, {"0 ~ -1", "0 ~ -1"}, {"3~7", "3 ~ 7"},
                              {" -3 ~ -1 ", "-3 ~ -1"}};
    for (const auto &pair : pairs) {
        zundo_range_s *first = nullptr, *second = nullptr;
        char buffer[ZUNDO_RANGE_TEXT_SIZE];
        ASSERT_EQ(newRangeFromString(&first, pair[0]), ZUNDO_OK) << pair[0];
        EXPECT_STREQ(toStringRange(buffer, first), pair[1]);
        ASSERT_EQ(newRangeFromString(&second, buffer), ZUNDO_OK);
        EXPECT_EQ(compareRange(first, second), 0);
        destroyRange(first);
        destroyRange(second);
    }
    const char *refused[] = {"", "pages", "3 ~", "~ 5", "3 ~ 7 ~ 9", "2x", "7 ~ 3",
                             "99999999999"};
    for (const char *text : refused) {
        zundo_range_s *range = nullptr;
        EXPECT_EQ(newRangeFromString(&range, text), ZUNDO_INVALID_ARGUMENT) << text;
        EXPECT_EQ(range, nullptr);
    }
    char buffer[ZUNDO_RANGE_TEXT_SIZE] = "x";
    EXPECT_STREQ(toStringRange(buffer, nullptr), "");
    EXPECT_EQ(compareRange(nullptr, nullptr), 0);
}

TEST(ValueRGB, TextFormsAndComponents) {
    zundo_rgb_s *rgb = nullptr, *again = nullptr;
    char buffer[ZUNDO_RGB_TEXT_SIZE];
    ASSERT_EQ(newRGBFromString(&rgb, "255 0 10"), ZUNDO_OK);
    EXPECT_STREQ(toStringRGB(buffer, rgb), "255 0 10");
    ASSERT_EQ(newRGBFromString(&again, buffer), ZUNDO_OK);
    EXPECT_EQ(compareRGB(rgb, again), 0);

    EXPECT_EQ(setGreen(again, 256), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(setGreen(again, 1), ZUNDO_OK);
    EXPECT_EQ(compareRGB(rgb, again), 1);
    destroyRGB(rgb);
    destroyRGB(again);

    const char *refused[] = {"255 0", "", "1 2 3 4", "-1 0 0", "0 0 256", "red"};
    for (const char *text : refused) {
        zundo_rgb_s *colour = nullptr;
        EXPECT_EQ(newRGBFromString(&colour, text), ZUNDO_INVALID_ARGUMENT) << text;
        EXPECT_EQ(colour, nullptr);
    }
    EXPECT_STREQ(toStringRGB(buffer, nullptr), "");
    EXPECT_EQ(getRed(nullptr), 0);
}
