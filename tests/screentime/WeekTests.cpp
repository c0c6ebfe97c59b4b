#include "platform/fake/FakeCalendar.hpp"
#include "screentime/Week.hpp"
#include "support/Moments.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

const Week::Today morning{at("00:00:00"), 3, 1, 5'000};

class WeekTest : public testing::Test {
  protected:
    Week week(const std::vector<DaySummary>& days = {}, const Week::Today& today = morning) {
        return Week::of(days, today, calendar);
    }

    std::string starts(const Week& shown) {
        std::string text;
        for (const Week::Bar& bar : shown.bars()) {
            text += momentText(bar.summary.startOfDay) + (bar.isToday ? " today" : "") + "\n";
        }
        return text;
    }

    FakeCalendar calendar;
};

TEST_F(WeekTest, IsTheLastSevenDaysTheOldestFirst) {
    EXPECT_EQ(starts(week()), "2026-03-03 00:00:00\n2026-03-04 00:00:00\n2026-03-05 00:00:00\n"
                              "2026-03-06 00:00:00\n2026-03-07 00:00:00\n2026-03-08 00:00:00\n"
                              "00:00:00 today\n");
}

TEST_F(WeekTest, DaysBeginWhereTheZoneHasThem) {
    calendar.setZone("Europe/Berlin");
    const Week shown = week({}, {calendar.startOfDay(at("2026-03-30 12:00:00"))});
    EXPECT_EQ(momentText(shown.bars()[5].summary.startOfDay), "2026-03-28 23:00:00");
    EXPECT_EQ(momentText(shown.bars()[6].summary.startOfDay), "2026-03-29 22:00:00");
}

TEST_F(WeekTest, DateThatTheZoneLeftOutHasNoBar) {
    calendar.setZone("Pacific/Apia");
    const Week shown = week({}, {calendar.startOfDay(at("2012-01-01 12:00:00"))});
    EXPECT_EQ(shown.bars().size(), 6U);
}

TEST_F(WeekTest, DaysWithoutASummaryAreZero) {
    EXPECT_EQ(week().bars()[2].summary, (DaySummary{.startOfDay = at("2026-03-05 00:00:00")}));
}

TEST_F(WeekTest, EarlierDaysAreAsTheyAreStored) {
    const DaySummary stored{at("2026-03-05 00:00:00"), 9, 1, 100, 20, 2};
    EXPECT_EQ(week({stored}).bars()[2].summary, stored);
    EXPECT_EQ(week({{.startOfDay = at("2026-03-02 00:00:00"), .breaksCompleted = 1}}), week());
}

TEST_F(WeekTest, TodayIsLiveButForItsPausesAndLongBreaks) {
    const Week shown = week({{at("00:00:00"), 50, 50, 50, 77, 2}});
    EXPECT_EQ(shown.bars()[6].summary, (DaySummary{at("00:00:00"), 3, 1, 5'000, 77, 2}));
}

TEST_F(WeekTest, TwoSummariesOfOneDayAreAFault) {
    const DaySummary day{.startOfDay = at("2026-01-01 00:00:00")};
    EXPECT_DEATH(week({day, day}), "two summaries of one day");
}

TEST_F(WeekTest, BarIsFoundByItsDate) {
    const Week shown = week();
    EXPECT_EQ(shown.barOf(at("00:00:00")), &shown.bars()[6]);
    EXPECT_EQ(shown.barOf(at("00:00:01")), nullptr);
    EXPECT_EQ(shown.barOf(at("2026-03-02 00:00:00")), nullptr);
}

TEST_F(WeekTest, BarKnowsItsShareOfKeptBreaks) {
    EXPECT_EQ(week().bars()[6].kept(), 0.75);
    EXPECT_EQ(week().bars()[0].kept(), std::nullopt);
    EXPECT_EQ(week({{.startOfDay = at("2026-03-08 00:00:00"), .breaksSkipped = 2}}).bars()[5].kept(), 0.0);
}

TEST_F(WeekTest, AverageCountsIdleDays) {
    const Week shown = week({{.startOfDay = at("2026-03-08 00:00:00"), .activeSeconds = 2'000}});
    EXPECT_EQ(shown.average(), 1'000);
    EXPECT_EQ(Week().average(), 0);
}

TEST_F(WeekTest, KeptIsOfAllBreaksOfTheWeek) {
    const Week shown = week({{.startOfDay = at("2026-03-08 00:00:00"), .breaksSkipped = 4}});
    EXPECT_EQ(shown.kept(), 0.375);
    EXPECT_EQ(week({}, {at("00:00:00")}).kept(), std::nullopt);
}

TEST_F(WeekTest, ScaleHoldsTheHighestBarAndTheTarget) {
    EXPECT_EQ(week().scaleTop({.day = 18'000}), 18'000);
    EXPECT_EQ(week().scaleTop({.day = 18'001}), 21'600);
    EXPECT_EQ(week({}, {at("00:00:00"), 0, 0, 20'000}).scaleTop({.day = 18'000}), 21'600);
    EXPECT_EQ(week().scaleTop({.day = 0}), 7'200);
}

TEST_F(WeekTest, ScaleIsAnHourAtLeast) {
    EXPECT_EQ(week({}, {at("00:00:00")}).scaleTop({.day = 0}), 3'600);
    EXPECT_EQ(week({}, {at("00:00:00")}).scaleTop({.day = 3'600}), 3'600);
    EXPECT_EQ(week({}, {at("00:00:00")}).scaleTop({.day = -5}), 3'600);
    EXPECT_EQ(Week().scaleTop({.day = 0}), 3'600);
    EXPECT_EQ(week({}, {at("00:00:00")}).scaleTop({.day = 3'601}), 7'200);
}

} // namespace
} // namespace kestrelfen
