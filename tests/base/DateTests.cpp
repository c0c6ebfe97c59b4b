#include "base/Date.hpp"

#include <gtest/gtest.h>

#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace kestrelfen {
namespace {

constexpr std::int64_t latest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t earliest = std::numeric_limits<std::int64_t>::min();

/// 2026-03-09 08:00:00 UTC.
constexpr Date morning = Date::fromSeconds(1'773'043'200);

std::int64_t microsecondsIn(double seconds) {
    return (Date() + seconds).microseconds();
}

/// The nearest whole number of microseconds, by way of the exact decimal value that printf writes.
std::int64_t microsecondsByText(double seconds) {
    char text[400];
    std::snprintf(text, sizeof text, "%.6f", seconds);
    std::string digits = text;
    digits.erase(digits.find('.'), 1);
    return std::strtoll(digits.c_str(), nullptr, 10);
}

/// The double nearest to that many microseconds, by way of the exact rounding of strtod.
double secondsByText(std::uint64_t microseconds) {
    char text[40];
    std::snprintf(text, sizeof text, "%" PRIu64 ".%06" PRIu64, microseconds / 1'000'000,
                  microseconds % 1'000'000);
    return std::strtod(text, nullptr);
}

TEST(Date, aSumOfSecondsIsExactToTheMicrosecond) {
    EXPECT_EQ(morning + 0.1 + 0.2, morning + 0.3);
    EXPECT_EQ(microsecondsIn(0.1 + 0.2), 300'000);
    EXPECT_EQ(microsecondsIn(1.1), 1'100'000);
    EXPECT_EQ(microsecondsIn(4.35), 4'350'000);

    Date date = morning;
    for (int step = 0; step < 864'000; ++step) {
        date = date + 0.1;
    }
    EXPECT_EQ(date, morning + 86'400);
}

TEST(Date, anOffsetIsTakenToTheNearestMicrosecond) {
    EXPECT_EQ(microsecondsIn(0.000'000'4), 0);
    EXPECT_EQ(microsecondsIn(0.000'000'6), 1);
    EXPECT_EQ(microsecondsIn(-0.000'000'4), 0);
    EXPECT_EQ(microsecondsIn(-0.000'000'6), -1);
    EXPECT_EQ(microsecondsIn(0.999'999'9), 1'000'000);
}

TEST(Date, anOffsetOfAnySizeIsTakenToTheNearestMicrosecond) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> exponent(-7, 12.9);
    for (int round = 0; round < 20'000; ++round) {
        const double seconds = std::pow(10.0, exponent(random)) * (round % 2 == 0 ? 1 : -1);
        ASSERT_EQ(microsecondsIn(seconds), microsecondsByText(seconds)) << seconds;
    }
}

TEST(Date, subtractingSecondsUndoesAddingThem) {
    for (const double seconds : {0.1, 0.3, 1.0 / 3, 1'200.0, 62'135'596'800.25}) {
        EXPECT_EQ((morning + seconds) - seconds, morning) << seconds;
    }
}

TEST(Date, beyondTheRangeADateStaysAtTheRangesEnd) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ((morning + infinity).microseconds(), latest);
    EXPECT_EQ((morning - infinity).microseconds(), earliest);
    EXPECT_EQ((morning + 1e13).microseconds(), latest);
    EXPECT_EQ((morning + -1e13).microseconds(), earliest);
    EXPECT_EQ((Date::fromMicroseconds(latest) + 0.000'001).microseconds(), latest);
    EXPECT_EQ((Date::fromMicroseconds(earliest) - 0.000'001).microseconds(), earliest);
    EXPECT_EQ((morning + 9.2232e12).microseconds(), latest);
    EXPECT_EQ(Date::fromSeconds(latest).microseconds(), latest);
    EXPECT_EQ(Date::fromSeconds(earliest).microseconds(), earliest);
    EXPECT_EQ(Date::fromSeconds(9'223'372'036'854).microseconds(), 9'223'372'036'854'000'000);
    EXPECT_EQ(Date::fromSeconds(-9'223'372'036'854).microseconds(), -9'223'372'036'854'000'000);
}

TEST(Date, anOffsetMayCrossTheWholeRange) {
    EXPECT_EQ((Date::fromMicroseconds(earliest) + 9'223'372'036'854.0).microseconds(), -775'808);
    EXPECT_EQ((Date::fromMicroseconds(earliest) + 18'446'744'073'708.0).microseconds(), latest - 1'551'615);
    EXPECT_EQ((Date::fromMicroseconds(earliest) + 18'446'744'073'710.0).microseconds(), latest);
}

TEST(Date, whatIsNotANumberOfSecondsMovesNothing) {
    EXPECT_EQ(morning + std::numeric_limits<double>::quiet_NaN(), morning);
    EXPECT_EQ(morning - std::numeric_limits<double>::quiet_NaN(), morning);
}

TEST(Date, theDistantPastIsTheFirstInstantOfTheYearOne) {
    EXPECT_EQ(Date::distantPast().microseconds(), -62'135'596'800'000'000);
    EXPECT_EQ(morning - Date::distantPast(), 63'908'640'000.0);
    EXPECT_EQ(Date::distantPast() + 63'908'640'000.0, morning);
}

TEST(Date, aDifferenceIsTheNearestDoubleToTheExactOne) {
    std::mt19937_64 random(2);
    std::uniform_int_distribution<int> shift(0, 62);
    for (int round = 0; round < 20'000; ++round) {
        const auto microseconds = static_cast<std::int64_t>(random() >> 1) >> shift(random);
        const Date later = Date::fromMicroseconds(microseconds);
        const double expected = secondsByText(static_cast<std::uint64_t>(microseconds));
        ASSERT_EQ(later - Date(), expected) << microseconds;
        ASSERT_EQ(Date() - later, -expected) << microseconds;
    }
}

TEST(Date, aDifferenceLargerThanTheRangeIsRightToo) {
    const Date end = Date::fromMicroseconds(latest);
    const Date begin = Date::fromMicroseconds(earliest);
    EXPECT_EQ(end - begin, secondsByText(std::numeric_limits<std::uint64_t>::max()));
    EXPECT_EQ(begin - end, -secondsByText(std::numeric_limits<std::uint64_t>::max()));
}

TEST(Date, noDifferenceIsZeroWithoutASign) {
    EXPECT_EQ(morning - morning, 0.0);
    EXPECT_FALSE(std::signbit(morning - morning));
}

TEST(Date, aLeadIsReachedExactlyWhenItSaysAndNotAMicrosecondBefore) {
    std::mt19937_64 random(3);
    std::uniform_int_distribution<std::int64_t> moment(0, 4'000'000'000'000'000);
    for (const double lead :
         {0.000'001, 0.1, 0.3, 0.7, 1.1, 10.0, 10.1, 59.999'999, 3'600.000'001, 86'400.3}) {
        for (int round = 0; round < 1'000; ++round) {
            const Date date = Date::fromMicroseconds(moment(random));
            const Date due = date + lead;
            ASSERT_EQ(due - date, lead) << lead;
            ASSERT_TRUE(due - date <= lead) << lead;
            const Date early = Date::fromMicroseconds(date.microseconds() - 1);
            ASSERT_FALSE(due - early <= lead) << lead;
        }
    }
}

TEST(Date, wholeSecondsAreRoundedTowardsThePast) {
    EXPECT_EQ(Date::fromMicroseconds(1'999'999).wholeSeconds(), 1);
    EXPECT_EQ(Date::fromMicroseconds(0).wholeSeconds(), 0);
    EXPECT_EQ(Date::fromMicroseconds(-1).wholeSeconds(), -1);
    EXPECT_EQ(Date::fromMicroseconds(-1'000'000).wholeSeconds(), -1);
    EXPECT_EQ(Date::fromMicroseconds(-1'000'001).wholeSeconds(), -2);
}

TEST(Date, datesAreOrderedAsTimePasses) {
    EXPECT_LT(Date::distantPast(), Date());
    EXPECT_LT(Date::fromMicroseconds(-1), Date());
    EXPECT_LT(morning, morning + 0.000'001);
    EXPECT_EQ(Date::fromSeconds(3), Date::fromMicroseconds(3'000'000));
}

} // namespace
} // namespace kestrelfen
