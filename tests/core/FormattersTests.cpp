#include "core/Formatters.hpp"
#include "platform/fake/FakeCalendar.hpp"
#include "support/Moments.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace kestrelfen {
namespace {

struct Row {
    double seconds;
    std::string_view text;
};

template <std::size_t count>
void expectRows(std::string (*format)(double), const Row (&rows)[count]) {
    for (const Row& row : rows) {
        EXPECT_EQ(format(row.seconds), row.text) << row.seconds;
    }
}

TEST(FormattersActiveTime, RoundsToTheNearestSecondAndNeverBelowZero) {
    expectRows(Formatters::activeTime, {{59.4, "59 s"},
                                        {59.5, "1 m"},
                                        {59.6, "1 m"},
                                        {0.4, "0 s"},
                                        {0.5, "1 s"},
                                        {0, "0 s"},
                                        {-0.4, "0 s"},
                                        {-5, "0 s"},
                                        {3599.4, "59 m"},
                                        {3599.5, "1 h 00 m"}});
}

TEST(FormattersActiveTime, WritesHoursWithTwoDigitMinutesThenMinutesThenSeconds) {
    expectRows(Formatters::activeTime, {{3600, "1 h 00 m"},
                                        {3660, "1 h 01 m"},
                                        {7500, "2 h 05 m"},
                                        {7559, "2 h 05 m"},
                                        {86'400, "24 h 00 m"},
                                        {363'540, "100 h 59 m"},
                                        {60, "1 m"},
                                        {119, "1 m"},
                                        {2040, "34 m"},
                                        {1, "1 s"}});
}

TEST(FormattersDuration, RoundsToTheNearestSecondAlsoBelowZero) {
    expectRows(Formatters::duration, {{59.6, "1 min"},
                                      {59.4, "59 s"},
                                      {0.5, "1 s"},
                                      {0.4, "0 s"},
                                      {-0.4, "0 s"},
                                      {-0.5, "-1 s"},
                                      {-3, "-3 s"},
                                      {-90, "-90 s"}});
}

TEST(FormattersDuration, LeavesOutSecondsThatAreNone) {
    expectRows(Formatters::duration, {{90, "1 min 30 s"},
                                      {60, "1 min"},
                                      {61, "1 min 1 s"},
                                      {20, "20 s"},
                                      {1200, "20 min"},
                                      {7200, "120 min"},
                                      {3725, "62 min 5 s"},
                                      {0, "0 s"}});
}

TEST(FormattersCountdown, RoundsUpwardAndNeverBelowZeroWithMinutesUnbounded) {
    expectRows(Formatters::countdown, {{0.2, "0:01"},
                                       {0, "0:00"},
                                       {-0.2, "0:00"},
                                       {-5, "0:00"},
                                       {3725, "62:05"},
                                       {10, "0:10"},
                                       {59.000001, "1:00"},
                                       {60, "1:00"},
                                       {1199.5, "20:00"},
                                       {360'000, "6000:00"}});
}

TEST(FormattersClockCountdown, RoundsUpwardAndNeverBelowZeroInTwoDigits) {
    expectRows(Formatters::clockCountdown, {{0.2, "00:01"},
                                            {0, "00:00"},
                                            {-5, "00:00"},
                                            {5, "00:05"},
                                            {599, "09:59"},
                                            {1200, "20:00"},
                                            {1199.000001, "20:00"}});
}

TEST(FormattersClockCountdown, MinutesStopAt99AndTheSecondsGoOn) {
    expectRows(Formatters::clockCountdown, {{5999, "99:59"},
                                            {6000, "99:00"},
                                            {6059, "99:59"},
                                            {6060, "99:00"},
                                            {7205, "99:05"},
                                            {1e15, "99:40"}});
}

TEST(FormattersSpelled, RoundsUpwardAndNeverBelowZeroAndLeavesOutSecondsThatAreNone) {
    expectRows(Formatters::spelled, {{60, "1 min"},
                                     {61, "1 min 1 sec"},
                                     {60.2, "1 min 1 sec"},
                                     {59.2, "1 min"},
                                     {0.2, "1 sec"},
                                     {0, "0 sec"},
                                     {-5, "0 sec"},
                                     {20, "20 sec"},
                                     {1199, "19 min 59 sec"},
                                     {7200, "120 min"}});
}

TEST(FormattersDay, WritesTheLocalCalendarDay) {
    FakeCalendar calendar("UTC");
    EXPECT_EQ(Formatters::day(at("23:59:59.999999"), calendar), "2026-03-09");
    EXPECT_EQ(Formatters::day(at("2026-03-10 00:00:00"), calendar), "2026-03-10");
    calendar.setZone("America/New_York");
    EXPECT_EQ(Formatters::day(at("2026-03-10 03:59:59"), calendar), "2026-03-09");
    EXPECT_EQ(Formatters::day(at("2026-03-10 04:00:00"), calendar), "2026-03-10");
    calendar.setZone("Asia/Tokyo");
    EXPECT_EQ(Formatters::day(at("15:00:00"), calendar), "2026-03-10");
}

TEST(FormattersWholeSeconds, RoundUpwardAlsoBelowZero) {
    expectRows(Formatters::wholeSeconds,
               {{20, "20"}, {20.01, "21"}, {0, "0"}, {0.2, "1"}, {-0.2, "0"}, {-1.5, "-1"}, {3725, "3725"}});
}

TEST(FormattersDeathTest, ANumberThatCannotBeWrittenStopsTheProgram) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    EXPECT_DEATH(Formatters::duration(infinity), "fault");
    EXPECT_DEATH(Formatters::duration(1e19), "fault");
    EXPECT_DEATH(Formatters::duration(-1e19), "fault");
    EXPECT_DEATH(Formatters::activeTime(notANumber), "fault");
    EXPECT_DEATH(Formatters::countdown(-infinity), "fault");
    EXPECT_DEATH(Formatters::clockCountdown(9.3e18), "fault");
    EXPECT_DEATH(Formatters::spelled(notANumber), "fault");
    EXPECT_DEATH(Formatters::wholeSeconds(1e300), "fault");
    EXPECT_DEATH(Formatters::wholeSeconds(notANumber), "fault");
}

TEST(Formatters, TheLargestNumbersThatFitAreWritten) {
    EXPECT_EQ(Formatters::countdown(9.2e18), "153333333333333333:20");
    EXPECT_EQ(Formatters::duration(-9.2e18), "-9200000000000000000 s");
}

} // namespace
} // namespace kestrelfen
