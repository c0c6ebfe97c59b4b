#include "ScenarioError.hpp"
#include "Values.hpp"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace kestrelfen {
namespace {

using namespace std::chrono_literals;

template <typename Read, std::size_t count>
void expectRefused(Read read, const std::array<const char*, count>& words) {
    for (const char* const word : words) {
        EXPECT_THROW(read(word), ScenarioError) << '"' << word << '"';
    }
}

TEST(Values, SecondsAreReadExactlyToTheMicrosecond) {
    EXPECT_EQ(microsecondsOf("0"), 0);
    EXPECT_EQ(microsecondsOf("1"), 1'000'000);
    EXPECT_EQ(microsecondsOf("0.1"), 100'000);
    EXPECT_EQ(microsecondsOf("0.3"), 300'000);
    EXPECT_EQ(microsecondsOf("1.000001"), 1'000'001);
    EXPECT_EQ(microsecondsOf("007.50"), 7'500'000);
    EXPECT_EQ(microsecondsOf("4503599627370.497217"), 4'503'599'627'370'497'217);
}

TEST(Values, SecondsMayBeNegative) {
    EXPECT_EQ(microsecondsOf("-2.5"), -2'500'000);
    EXPECT_EQ(microsecondsOf("-0.000001"), -1);
    EXPECT_EQ(microsecondsOf("-0"), 0);
}

TEST(Values, SecondsFillTheWholeRange) {
    EXPECT_EQ(microsecondsOf("9223372036854.775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(microsecondsOf("-9223372036854.775808"), std::numeric_limits<std::int64_t>::min());
    expectRefused(microsecondsOf,
                  std::array{"9223372036854.775808", "-9223372036854.775809", "99999999999999999999"});
}

TEST(Values, ZerosBelowAMicrosecondDoNoHarm) {
    EXPECT_EQ(microsecondsOf("1.5000000000"), 1'500'000);
    expectRefused(microsecondsOf, std::array{"1.0000001", "0.00000050"});
}

TEST(Values, SecondsAreAPlainDecimalNumber) {
    expectRefused(microsecondsOf, std::array{"", "-", ".", ".5", "5.", "+1", "--1", "1e3", "0x10", "1,5",
                                             " 1", "1 ", "1.2.3", "1.-2", "nan", "inf", "one", "1s", "١"});
}

TEST(Values, SecondsAsADoubleAreTheNearestOne) {
    EXPECT_EQ(secondsOf("0.1"), 0.1);
    EXPECT_EQ(secondsOf("1199.999999"), 1199.999999);
    EXPECT_EQ(secondsOf("-4"), -4.0);
}

TEST(Values, RealsAreFinite) {
    EXPECT_EQ(realOf("1e300"), 1e300);
    EXPECT_EQ(realOf("-0.25"), -0.25);
    EXPECT_EQ(realOf("12"), 12.0);
    expectRefused(realOf, std::array{"", "nan", "inf", "-inf", "1e999", "1.5x", " 1", "+1", "true"});
}

TEST(Values, IntegersAreWhole) {
    EXPECT_EQ(integerOf("-1"), -1);
    EXPECT_EQ(integerOf("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    expectRefused(integerOf, std::array{"", "1.0", "1e3", "9223372036854775808", "+1", "0x1", "1 ", "one"});
}

TEST(Values, BooleansAreTwoWords) {
    EXPECT_TRUE(booleanOf("true"));
    EXPECT_FALSE(booleanOf("false"));
    expectRefused(booleanOf, std::array{"", "True", "1", "0", "yes", "no"});
}

TEST(Values, DatesAreInUniversalTime) {
    EXPECT_EQ(dateOf("1970-01-01T00:00:00Z"), Date());
    EXPECT_EQ(dateOf("2026-03-09T08:00:00Z"), Date::fromSeconds(1'773'043'200));
    EXPECT_EQ(dateOf("1969-12-31T23:59:59Z"), Date::fromSeconds(-1));
    EXPECT_EQ(dateOf("2024-02-29T23:59:59Z"), Date::fromSeconds(1'709'251'199));
}

TEST(Values, DatesMayHaveAFractionOfASecond) {
    EXPECT_EQ(dateOf("1970-01-01T00:00:00.5Z"), Date::fromMicroseconds(500'000));
    EXPECT_EQ(dateOf("1970-01-01T00:00:00.000001Z"), Date::fromMicroseconds(1));
}

TEST(Values, DatesAreDays) {
    expectRefused(dateOf, std::array{"2026-02-29T00:00:00Z", "2026-13-01T00:00:00Z", "2026-00-01T00:00:00Z",
                                     "2026-04-31T00:00:00Z", "2026-03-00T00:00:00Z", "2100-02-29T00:00:00Z"});
}

TEST(Values, DatesAreTimesOfDay) {
    expectRefused(dateOf, std::array{"2026-03-09T24:00:00Z", "2026-03-09T08:60:00Z", "2026-03-09T08:00:60Z",
                                     "2026-03-09T-1:00:00Z"});
}

TEST(Values, DatesHaveOneForm) {
    expectRefused(dateOf,
                  std::array{"", "2026-03-09", "2026-03-09T08:00:00", "2026-03-09 08:00:00Z",
                             "2026-03-09T08:00Z", "2026-03-09T08:00:00z", "2026-03-09T08:00:00+01:00",
                             "2026-03-09T08:00:00.Z", "2026-3-9T08:00:00Z", "2026-03-09T8:00:00Z",
                             "2026-03-09T08:00:00Z ", "2026-03-09T08:00:00,5Z", "26-03-09T08:00:00Z"});
}

TEST(Values, DaysAreDaysOfTheCalendar) {
    EXPECT_EQ(dayOf("2026-03-09"), std::chrono::sys_days(2026y / 3 / 9));
    EXPECT_EQ(dayOf("2024-02-29"), std::chrono::sys_days(2024y / 2 / 29));
    expectRefused(dayOf, std::array{"", "2026-02-29", "2026-3-9", "2026-03-32", "2026-03-09T00:00:00Z",
                                    "20260309", "2026/03/09", "today", "-2026-03-09"});
}

TEST(Values, ErrorNamesTheWord) {
    try {
        integerOf("many");
        FAIL();
    } catch (const ScenarioError& error) {
        EXPECT_STREQ(error.what(), "\"many\" is not a whole number");
    }
}

} // namespace
} // namespace kestrelfen
