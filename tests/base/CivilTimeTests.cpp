#include "base/CivilTime.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace kestrelfen {
namespace {

constexpr CivilDay civilDay(int year, unsigned month, unsigned day) {
    return std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
}

std::string roundTrip(std::string_view text, int fractionDigits) {
    const auto date = parseIsoTime(text);
    return date ? isoTime(*date, fractionDigits) : "nothing";
}

TEST(CivilTime, anInstantIsReadInAPlaceByItsOffset) {
    const CivilTime time = civilTime(*parseIsoTime("2026-03-09T22:15:42.123456Z"), 5 * 3'600 + 45 * 60);
    EXPECT_EQ(time.day, civilDay(2026, 3, 10));
    EXPECT_EQ(time.hour, 4);
    EXPECT_EQ(time.minute, 0);
    EXPECT_EQ(time.second, 42);
    EXPECT_EQ(time.microsecond, 123'456);
}

TEST(CivilTime, anInstantBefore1970IsReadForwardsFromItsMidnight) {
    const CivilTime time = civilTime(Date::fromMicroseconds(-1), 0);
    EXPECT_EQ(time.day, civilDay(1969, 12, 31));
    EXPECT_EQ(time.hour, 23);
    EXPECT_EQ(time.minute, 59);
    EXPECT_EQ(time.second, 59);
    EXPECT_EQ(time.microsecond, 999'999);
}

TEST(CivilTime, theEndsOfTheRangeCanBeRead) {
    EXPECT_EQ(civilTime(Date::fromMicroseconds(std::numeric_limits<std::int64_t>::max()), 0).microsecond,
              775'807);
    EXPECT_EQ(civilTime(Date::fromMicroseconds(std::numeric_limits<std::int64_t>::min()), 0).microsecond,
              224'192);
}

TEST(CivilTime, aDayIsWrittenWithFourTwoAndTwoDigits) {
    EXPECT_EQ(isoDay(civilDay(2026, 3, 9)), "2026-03-09");
    EXPECT_EQ(isoDay(civilDay(1, 1, 1)), "0001-01-01");
    EXPECT_EQ(isoDay(civilDay(2024, 2, 29)), "2024-02-29");
}

TEST(CivilTime, aDayReadsBackAsWritten) {
    for (CivilDay day = civilDay(1899, 12, 31); day < civilDay(2101, 1, 2); day += std::chrono::days(1)) {
        ASSERT_EQ(parseIsoDay(isoDay(day)), day) << isoDay(day);
    }
}

TEST(CivilTime, aDayThatIsNoneIsNotRead) {
    for (const char* const text : {"2026-02-30",  "2026-02-29",  "1900-02-29", "2026-13-01", "2026-00-10",
                                   "2026-01-00",  "2026-01-32",  "2026-04-31", "",           "2026",
                                   "2026-3-09",   "2026-03-9",   "26-03-09",   "2026/03/09", "2026-03-09 ",
                                   " 2026-03-09", "2026-03-09Z", "20260309",   "-026-03-09", "+026-03-09",
                                   "2026-+3-09",  "2026-03-0x",  "02026-03-09"}) {
        EXPECT_EQ(parseIsoDay(text), std::nullopt) << text;
    }
}

TEST(CivilTime, theMidnightOfADayIsThatOfUtc) {
    EXPECT_EQ(utcMidnight(civilDay(1970, 1, 1)), Date());
    EXPECT_EQ(utcMidnight(civilDay(1, 1, 1)), Date::distantPast());
    EXPECT_EQ(isoTime(utcMidnight(civilDay(2026, 3, 9)), 0), "2026-03-09T00:00:00Z");
}

TEST(CivilTime, aTimeIsWrittenWithTheDigitsAskedForAndCut) {
    const Date date = *parseIsoTime("2026-03-09T08:05:09.987654Z");
    EXPECT_EQ(isoTime(date, 0), "2026-03-09T08:05:09Z");
    EXPECT_EQ(isoTime(date, 1), "2026-03-09T08:05:09.9Z");
    EXPECT_EQ(isoTime(date, 2), "2026-03-09T08:05:09.98Z");
    EXPECT_EQ(isoTime(date, 3), "2026-03-09T08:05:09.987Z");
    EXPECT_EQ(isoTime(date, 4), "2026-03-09T08:05:09.9876Z");
    EXPECT_EQ(isoTime(date, 5), "2026-03-09T08:05:09.98765Z");
    EXPECT_EQ(isoTime(date, 6), "2026-03-09T08:05:09.987654Z");
}

TEST(CivilTime, aTimeBefore1970IsCutTowardsThePast) {
    EXPECT_EQ(isoTime(Date::fromMicroseconds(-1), 0), "1969-12-31T23:59:59Z");
    EXPECT_EQ(isoTime(Date::fromMicroseconds(-1), 3), "1969-12-31T23:59:59.999Z");
    EXPECT_EQ(isoTime(Date::distantPast(), 0), "0001-01-01T00:00:00Z");
}

TEST(CivilTime, aFractionOfOneToSixDigitsIsRead) {
    EXPECT_EQ(roundTrip("2026-03-09T08:00:00.5Z", 6), "2026-03-09T08:00:00.500000Z");
    EXPECT_EQ(roundTrip("2026-03-09T08:00:00.05Z", 6), "2026-03-09T08:00:00.050000Z");
    EXPECT_EQ(roundTrip("2026-03-09T08:00:00.123Z", 6), "2026-03-09T08:00:00.123000Z");
    EXPECT_EQ(roundTrip("2026-03-09T08:00:00.1234Z", 6), "2026-03-09T08:00:00.123400Z");
    EXPECT_EQ(roundTrip("2026-03-09T08:00:00.12345Z", 6), "2026-03-09T08:00:00.123450Z");
    EXPECT_EQ(roundTrip("2026-03-09T08:00:00.123456Z", 6), "2026-03-09T08:00:00.123456Z");
    EXPECT_EQ(roundTrip("2026-03-09T08:00:00Z", 6), "2026-03-09T08:00:00.000000Z");
}

TEST(CivilTime, aTimeThatIsNoneIsNotRead) {
    for (const char* const text : {"2026-03-09T24:00:00Z",
                                   "2026-03-09T23:60:00Z",
                                   "2026-03-09T23:59:60Z",
                                   "2026-02-30T08:00:00Z",
                                   "2026-03-09T08:00:00.1234567Z",
                                   "2026-03-09T08:00:00.Z",
                                   "2026-03-09T08:00:00,5Z",
                                   "2026-03-09T08:00:00",
                                   "2026-03-09T08:00:00z",
                                   "2026-03-09T08:00:00+00:00",
                                   "2026-03-09 08:00:00Z",
                                   "2026-03-09t08:00:00Z",
                                   "2026-03-09T8:00:00Z",
                                   "2026-03-09T08:00Z",
                                   "2026-03-09",
                                   "",
                                   "Z",
                                   "2026-03-09T08:00:00Z ",
                                   "2026-03-09T08:00:00ZZ",
                                   "2026-03-09T-8:00:00Z",
                                   "2026-03-09T08:00:0 Z",
                                   "2026-03-09T08:00:00.12 Z"}) {
        EXPECT_EQ(parseIsoTime(text), std::nullopt) << text;
    }
}

TEST(CivilTime, aTimeReadsBackAsWritten) {
    const std::int64_t end = parseIsoTime("9999-12-31T23:59:59.999999Z")->microseconds();
    std::mt19937_64 random(4);
    std::uniform_int_distribution<std::int64_t> moment(Date::distantPast().microseconds(), end);
    for (int round = 0; round < 20'000; ++round) {
        const Date date = Date::fromMicroseconds(moment(random));
        ASSERT_EQ(parseIsoTime(isoTime(date, 6)), date) << isoTime(date, 6);
    }
}

} // namespace
} // namespace kestrelfen
