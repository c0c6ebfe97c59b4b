#include "platform/fake/FakeCalendar.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "screentime/EyeScore.hpp"
#include "support/Moments.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

struct Day {
    std::int64_t completed = 0;
    std::int64_t skipped = 0;
    double active = 0;
    double paused = 0;
};

DaySummary summary(const Day& day) {
    return {.startOfDay = {},
            .breaksCompleted = day.completed,
            .breaksSkipped = day.skipped,
            .activeSeconds = day.active,
            .pausedSeconds = day.paused};
}

std::vector<DaySummary> summaries(std::initializer_list<Day> days) {
    std::vector<DaySummary> result;
    for (const Day& day : days) {
        result.push_back(summary(day));
    }
    return result;
}

std::vector<DaySummary> steadyWeek() {
    return std::vector<DaySummary>(7, summary({.completed = 10, .active = 7'200}));
}

EyeScore score(const std::vector<DaySummary>& days, double longestStretch = 0,
               const ScreenTimeTargets& targets = {}) {
    return EyeScore::make(days, longestStretch, targets);
}

TEST(EyeScore, NoDayScoresNothing) {
    const EyeScore none = score({}, 500);
    EXPECT_EQ(none, (EyeScore{.longestStretch = 500, .stretchTarget = 3'600}));
    EXPECT_EQ(none.band(), EyeScore::Band::noData);
}

TEST(EyeScore, DayOfPausesAloneIsNotCounted) {
    EXPECT_EQ(score(summaries({{.paused = 4'000}})).daysCounted, 0);
    EXPECT_EQ(score(summaries({{.paused = 4'000}})).score, 0);
}

TEST(EyeScore, DayCountsWithABreakOrASecond) {
    EXPECT_EQ(score(summaries({{}, {.completed = 1}, {.skipped = 1}, {.active = 0.5}})).daysCounted, 3);
}

TEST(EyeScore, SteadyWeekIsPerfect) {
    const EyeScore perfect = score(steadyWeek(), 3'600);
    EXPECT_EQ(perfect.score, 100);
    EXPECT_EQ(perfect.keptRatio, 1.0);
    EXPECT_EQ(perfect.daysWithinTarget, 7);
    EXPECT_EQ(perfect.daysCounted, 7);
}

TEST(EyeScore, StretchPointsFallLinearlyBeyondTheTarget) {
    EXPECT_EQ(score(steadyWeek(), 1).score, 100);
    EXPECT_EQ(score(steadyWeek(), 5'400).score, 90);
    EXPECT_EQ(score(steadyWeek(), 7'200).score, 80);
    EXPECT_EQ(score(steadyWeek(), 90'000).score, 80);
}

TEST(EyeScore, WithoutAStretchOrATargetTheStretchPointsAreFull) {
    EXPECT_EQ(score(steadyWeek(), 0).score, 100);
    EXPECT_EQ(score(steadyWeek(), 7'200, {.stretch = 0}).score, 100);
    EXPECT_EQ(score(steadyWeek(), 7'200, {.stretch = -1}).score, 100);
}

TEST(EyeScore, HalfKeptAndHalfWithinTargetIsFair) {
    const auto days = summaries(
        {{.completed = 1, .skipped = 3, .active = 18'001}, {.completed = 3, .skipped = 1, .active = 18'000}});
    EXPECT_EQ(score(days).score, 60);
    EXPECT_EQ(score(days).keptRatio, 0.5);
    EXPECT_EQ(score(days).band(), EyeScore::Band::fair);
}

TEST(EyeScore, DayExactlyAtItsTargetIsWithinIt) {
    EXPECT_EQ(score(summaries({{.active = 18'000}})).daysWithinTarget, 1);
    EXPECT_EQ(score(summaries({{.active = 18'000.5}})).daysWithinTarget, 0);
    EXPECT_EQ(score(summaries({{.active = 100}}), 0, {.day = 99}).daysWithinTarget, 0);
}

TEST(EyeScore, DaysWithoutBreaksHaveKeptNone) {
    const EyeScore idle = score(summaries({{.active = 60}}));
    EXPECT_EQ(idle.keptRatio, 0.0);
    EXPECT_EQ(idle.score, 50);
    EXPECT_EQ(idle.band(), EyeScore::Band::fair);
}

TEST(EyeScore, BreaksWeighByNumberNotByDay) {
    EXPECT_EQ(score(summaries({{.completed = 9}, {.skipped = 1}})).keptRatio, 0.9);
}

TEST(EyeScore, HalvesRoundUp) {
    // 0.49 of 50 is 24.5; with 30 and 20 that makes 74.5.
    const EyeScore half = score(summaries({{.completed = 49, .skipped = 51}}));
    EXPECT_EQ(half.score, 75);
    EXPECT_EQ(half.band(), EyeScore::Band::good);
}

TEST(EyeScore, BandsEndWhereTheyAreTold) {
    const auto band = [](std::int64_t value) { return EyeScore{.score = value, .daysCounted = 1}.band(); };
    EXPECT_EQ(band(100), EyeScore::Band::good);
    EXPECT_EQ(band(75), EyeScore::Band::good);
    EXPECT_EQ(band(74), EyeScore::Band::fair);
    EXPECT_EQ(band(50), EyeScore::Band::fair);
    EXPECT_EQ(band(49), EyeScore::Band::needsWork);
    EXPECT_EQ(band(0), EyeScore::Band::needsWork);
}

TEST(EyeScore, EachBandHasItsLabelAndColour) {
    const auto words = [](EyeScore::Band band) {
        return std::string(label(band)) + ", " + std::string(tint(band));
    };
    EXPECT_EQ(words(EyeScore::Band::good), "Good, accent");
    EXPECT_EQ(words(EyeScore::Band::fair), "Fair, amber");
    EXPECT_EQ(words(EyeScore::Band::needsWork), "Needs work, danger");
    EXPECT_EQ(words(EyeScore::Band::noData), "No data yet, faint");
}

TEST(ScreenTimeTargets, HaveFallbacksThatAStoredNumberBeats) {
    FakePreferences preferences;
    EXPECT_EQ(ScreenTimeTargets::current(preferences), (ScreenTimeTargets{18'000, 3'600}));
    preferences.set("dailyScreenTimeTargetSeconds", 0.0);
    preferences.set("longestStretchTargetSeconds", 1'800.0);
    EXPECT_EQ(ScreenTimeTargets::current(preferences), (ScreenTimeTargets{0, 1'800}));
}

class Streak : public testing::Test {
  protected:
    /// The number of kept breaks out of ten, today's first; below 0 for a day without a summary.
    std::int64_t streakOf(std::initializer_list<int> kept) {
        std::vector<DaySummary> days;
        Date start = at("00:00:00");
        for (const int each : kept) {
            if (each >= 0) {
                days.push_back({.startOfDay = start, .breaksCompleted = each, .breaksSkipped = 10 - each});
            }
            start = calendar.startOfDay(start, -1);
        }
        return EyeScore::streak(days, at("15:00:00"), EyeScore::goodKeptRatio, calendar);
    }

    FakeCalendar calendar;
};

TEST_F(Streak, WithoutDaysThereIsNone) {
    EXPECT_EQ(streakOf({}), 0);
}

TEST_F(Streak, TodayCountsOnceItIsGood) {
    EXPECT_EQ(streakOf({9}), 1);
    EXPECT_EQ(streakOf({8}), 1);
    EXPECT_EQ(streakOf({7}), 0);
}

TEST_F(Streak, BadTodayBreaksNothing) {
    EXPECT_EQ(streakOf({7, 9, 9}), 2);
    EXPECT_EQ(streakOf({9, 9, 9}), 3);
}

TEST_F(Streak, BadEarlierDayEndsIt) {
    EXPECT_EQ(streakOf({9, 7, 9}), 1);
    EXPECT_EQ(streakOf({7, 7, 9}), 0);
}

TEST_F(Streak, TodayWithoutASummaryEndsIt) {
    EXPECT_EQ(streakOf({-1, 9, 9, 9}), 0);
}

TEST_F(Streak, GapEndsIt) {
    EXPECT_EQ(streakOf({9, -1, 9}), 1);
}

TEST_F(Streak, EarlierDayWithoutBreaksEndsItAndTodaysIsForgiven) {
    const auto streak = [this](std::vector<DaySummary> days) {
        return EyeScore::streak(days, at("15:00:00"), 0.8, calendar);
    };
    const DaySummary good{.startOfDay = at("2026-03-08 00:00:00"), .breaksCompleted = 1};
    const DaySummary idle{.startOfDay = at("00:00:00"), .activeSeconds = 900};
    EXPECT_EQ(streak({idle, good}), 1);
    DaySummary idleYesterday = idle;
    idleYesterday.startOfDay = good.startOfDay;
    EXPECT_EQ(streak({{.startOfDay = at("00:00:00"), .breaksCompleted = 1}, idleYesterday}), 1);
}

TEST_F(Streak, ReachesAsFarAsTheDays) {
    std::vector<DaySummary> days;
    for (int back = 0; back <= 60; ++back) {
        days.push_back({.startOfDay = calendar.startOfDay(at("12:00:00"), -back), .breaksCompleted = 1});
    }
    EXPECT_EQ(EyeScore::streak(days, at("12:00:00"), 0.8, calendar), 61);
}

TEST_F(Streak, GoesOnAcrossAChangeOfTheClocks) {
    calendar.setZone("Europe/Berlin");
    std::vector<DaySummary> days;
    const Date today = at("2026-03-30 12:00:00");
    for (int back = 0; back < 3; ++back) {
        days.push_back({.startOfDay = calendar.startOfDay(today, -back), .breaksCompleted = 1});
    }
    EXPECT_EQ(EyeScore::streak(days, today, 0.8, calendar), 3);
}

TEST_F(Streak, DateThatTheZoneLeftOutIsNoGap) {
    calendar.setZone("Pacific/Apia");
    const Date today = at("2011-12-30 12:00:00");
    const std::vector<DaySummary> days{
        {.startOfDay = calendar.startOfDay(today), .breaksCompleted = 1},
        {.startOfDay = calendar.startOfDay(parseIsoDay("2011-12-29").value()), .breaksCompleted = 1}};
    EXPECT_EQ(EyeScore::streak(days, today, 0.8, calendar), 2);
}

TEST_F(Streak, OfSeveralThatBeginOnOneLocalDayTheLatestCounts) {
    const DaySummary bad{.startOfDay = at("05:00:00"), .breaksSkipped = 1};
    const DaySummary good{.startOfDay = at("00:00:00"), .breaksCompleted = 1};
    EXPECT_EQ(EyeScore::streak({good, bad}, at("15:00:00"), 0.8, calendar), 0);
    EXPECT_EQ(EyeScore::streak({bad, good}, at("15:00:00"), 0.8, calendar), 0);
}

TEST_F(Streak, TwoSummariesOfOneDayAreAFault) {
    const DaySummary day{.startOfDay = at("00:00:00"), .breaksCompleted = 1};
    EXPECT_DEATH(EyeScore::streak({day, day}, at("15:00:00"), 0.8, calendar), "two summaries of one day");
}

TEST_F(Streak, TwoSummariesOfOneDayAreAFaultAlsoWithALaterOneOfTheSameDateBetween) {
    const DaySummary day{.startOfDay = at("00:00:00"), .breaksCompleted = 1};
    const DaySummary later{.startOfDay = at("05:00:00"), .breaksCompleted = 1};
    EXPECT_DEATH(EyeScore::streak({day, later, day}, at("15:00:00"), 0.8, calendar),
                 "two summaries of one day");
}

} // namespace
} // namespace kestrelfen
