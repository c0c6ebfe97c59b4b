#include "store/StoreHarness.hpp"

namespace kestrelfen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Queries : public StoreTest {};

Date dayAfter(Date day, int days) {
    return day + 86'400.0 * days;
}

TEST_F(Queries, aDayWithoutARowIsAllZeroAndGetsNone) {
    EXPECT_EQ(summary(today()), DaySummary{.startOfDay = today()});
    EXPECT_THAT(appUsage(today()), IsEmpty());
    EXPECT_THAT(websiteUsage(today()), IsEmpty());
    EXPECT_EQ(longestStretch(today(), at("10:00:00")), 0);
    EXPECT_EQ(rowCount(), 0);
}

TEST_F(Queries, anEmptyStoreAnswersEmpty) {
    EXPECT_THAT(summaries(), IsEmpty());
    EXPECT_THAT(appTotals(), IsEmpty());
    EXPECT_THAT(websiteTotals(), IsEmpty());
    EXPECT_THAT(history(), IsEmpty());
    EXPECT_THAT(tasks(), IsEmpty());
    EXPECT_EQ(dayRecordCount(), 0);
}

TEST_F(Queries, aSummaryCountsOnlyItsOwnDaysCompletedLongBreaks) {
    recordBreak(longBreak(at("09:00:00"), 300));
    recordBreak(longBreak(at("11:00:00"), 300));
    recordBreak(completedBreak(at("12:00:00"), 20));
    recordBreak(longBreak(at("2026-03-08 09:00:00"), 300, yesterday()));
    EXPECT_EQ(summary(today()), (DaySummary{today(), 3, 0, 0, 0, 2}));
    EXPECT_THAT(summaries(),
                ElementsAre(DaySummary{today(), 3, 0, 0, 0, 2}, DaySummary{yesterday(), 1, 0, 0, 0, 1}));
}

TEST_F(Queries, anUnknownOutcomeCountsAsCompletedWhenReadAndLeavesTheCounters) {
    recordBreak(longBreak(at("09:00:00"), 60));
    BreakEntry skipped = skippedBreak(at("11:00:00"));
    skipped.isLong = true;
    skipped.actualSeconds = 60;
    recordBreak(skipped);
    execute("UPDATE BreakRecord SET outcomeRawValue = 'abandoned' WHERE outcomeRawValue = 'skipped'");
    EXPECT_EQ(summary(today()), (DaySummary{today(), 1, 1, 0, 0, 2}));
    EXPECT_EQ(summaries().front().longBreaksCompleted, 2);
    EXPECT_EQ(history().front().kind, HistoryEntry::Kind::completed(true));
    EXPECT_EQ(history().front().seconds, 60);
    EXPECT_EQ(longestStretch(today(), at("11:05:00")), 7'140);
}

TEST_F(Queries, summariesComeNewestFirstFromTheDateOn) {
    for (const int day : {3, 0, 4, 1, 2}) {
        addActiveTime(activeTime(1 + day, "editor", 1, dayAfter(today(), day)));
    }
    const auto result = summaries(dayAfter(today(), 2));
    ASSERT_EQ(result.size(), 3U);
    EXPECT_EQ(result[0], (DaySummary{dayAfter(today(), 4), 0, 0, 5, 0, 0}));
    EXPECT_EQ(result[1], (DaySummary{dayAfter(today(), 3), 0, 0, 4, 0, 0}));
    EXPECT_EQ(result[2], (DaySummary{dayAfter(today(), 2), 0, 0, 3, 0, 0}));
    EXPECT_EQ(summaries(Date::fromMicroseconds(dayAfter(today(), 2).microseconds() + 1)).size(), 2U);
}

TEST_F(Queries, summariesAreTheNewest366) {
    execute("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 399) "
            "INSERT INTO DayRecord (startOfDay, breaksCompleted) SELECT i * 86400000000, i FROM n");
    const auto result = summaries();
    ASSERT_EQ(result.size(), 366U);
    EXPECT_EQ(result.front().breaksCompleted, 399);
    EXPECT_EQ(result.back().breaksCompleted, 34);
    EXPECT_EQ(dayRecordCount(), 400);
}

TEST_F(Queries, appUsageComesMostSecondsFirstAndKeepsTheStoredOrderOfEquals) {
    for (const auto& [app, seconds] : {std::pair{"d", 5.0}, {"b", 7.0}, {"c", 5.0}, {"a", 5.0}, {"e", 9.0}}) {
        addActiveTime(activeTime(seconds, app));
    }
    std::string order;
    for (const AppUsageSummary& app : appUsage(today())) {
        order += app.bundleIdentifier;
    }
    EXPECT_EQ(order, "ebdca");
    EXPECT_EQ(appUsage(today(), 3).size(), 3U);
    EXPECT_EQ(appUsage(today(), 3).back().bundleIdentifier, "d");
}

TEST_F(Queries, websiteUsageComesMostSecondsFirstAndKeepsTheStoredOrderOfEquals) {
    for (const auto& [domain, seconds] :
         {std::pair{"d", 5.0}, {"b", 7.0}, {"c", 5.0}, {"a", 5.0}, {"e", 9.0}}) {
        addWebsiteTime(websiteTime(seconds, domain));
    }
    std::string order;
    for (const WebsiteUsageSummary& site : websiteUsage(today())) {
        order += site.domain;
    }
    EXPECT_EQ(order, "ebdca");
    EXPECT_EQ(websiteUsage(today(), 2).back().domain, "b");
}

TEST_F(Queries, usageIsOfTheAskedDayAlone) {
    addActiveTime(activeTime(5, "editor"));
    addActiveTime(activeTime(6, "editor", 1, yesterday()));
    addWebsiteTime(websiteTime(7, "example.org"));
    addWebsiteTime(websiteTime(8, "example.org", yesterday()));
    EXPECT_THAT(appUsage(yesterday()), ElementsAre(AppUsageSummary{"editor", "editor's name", 1, 6}));
    EXPECT_THAT(websiteUsage(yesterday()), ElementsAre(WebsiteUsageSummary{"example.org", 8}));
}

TEST_F(Queries, usageIsIdentifiedByAppAndDisplay) {
    EXPECT_EQ((AppUsageSummary{"editor", "Editor", 12, 0}).id(), "editor#12");
}

TEST_F(Queries, aLimitOfZeroGivesNothing) {
    recordBreak(completedBreak(at("09:00:00"), 20));
    addActiveTime(activeTime(5, "editor"));
    addWebsiteTime(websiteTime(5, "example.org"));
    EXPECT_THAT(appUsage(today(), 0), IsEmpty());
    EXPECT_THAT(websiteUsage(today(), 0), IsEmpty());
    EXPECT_THAT(history(today(), 0), IsEmpty());
}

TEST_F(Queries, aNegativeLimitIsAProgrammingFault) {
    EXPECT_DEATH(store().appUsage(today(), -1, {}), "a negative limit");
    EXPECT_DEATH(store().websiteUsage(today(), -1, {}), "a negative limit");
    EXPECT_DEATH(store().history(today(), -1, {}), "a negative limit");
}

class Totals : public StoreTest {};

TEST_F(Totals, anAppsSecondsAndDisplaysAreTakenTogetherOverTheDays) {
    addActiveTime(activeTime(10, "editor", 1, yesterday()));
    addActiveTime(activeTime(20, "editor", 0));
    addActiveTime(activeTime(5, "editor", 1));
    addActiveTime(activeTime(100, "browser", 2));
    EXPECT_THAT(appTotals(), ElementsAre(AppTotal{"browser", "browser's name", 100, 1},
                                         AppTotal{"editor", "editor's name", 35, 2}));
}

TEST_F(Totals, theNameOfTheLastRowWalkedWins) {
    addActiveTime({1, "editor", "first day", 1, yesterday()});
    addActiveTime({1, "editor", "second day", 1, today()});
    addActiveTime({1, "editor", "first day again, stored last", 2, yesterday()});
    EXPECT_EQ(appTotals().front().displayName, "second day");
    EXPECT_EQ(appTotals().front().displayCount, 2);
    addActiveTime({1, "editor", "second day, later row", 2, today()});
    EXPECT_EQ(appTotals().front().displayName, "second day, later row");
}

TEST_F(Totals, daysAreWalkedInTheOrderInWhichTheyWereMade) {
    addActiveTime({1, "editor", "made first", 1, today()});
    addActiveTime({1, "editor", "made second", 1, yesterday()});
    EXPECT_EQ(appTotals().front().displayName, "made second");
}

TEST_F(Totals, aDomainCountsOnceForEachDay) {
    addWebsiteTime(websiteTime(0.5, "example.org"));
    addWebsiteTime(websiteTime(900, "example.org", yesterday()));
    addWebsiteTime(websiteTime(1, "example.org", at("2026-03-07 00:00:00")));
    addWebsiteTime(websiteTime(1, "example.org"));
    addWebsiteTime(websiteTime(5, "example.com"));
    EXPECT_THAT(websiteTotals(),
                ElementsAre(WebsiteTotal{"example.org", 902.5, 3}, WebsiteTotal{"example.com", 5, 1}));
}

TEST_F(Totals, aDomainWithTwoRowsOnOneDayCountsThatDayOnce) {
    addWebsiteTime(websiteTime(1, "example.org"));
    addWebsiteTime(websiteTime(1, "example.com"));
    execute("INSERT INTO WebsiteUsageRecord (domain, activeSeconds, day) VALUES ('example.org', 2, 1)");
    EXPECT_THAT(websiteTotals(),
                ElementsAre(WebsiteTotal{"example.org", 3, 1}, WebsiteTotal{"example.com", 1, 1}));
}

TEST_F(Totals, onlyDaysFromTheDateOnCount) {
    for (const Date day : {yesterday(), today()}) {
        addActiveTime(activeTime(1, "editor", 1, day));
        addWebsiteTime(websiteTime(1, "example.org", day));
    }
    EXPECT_EQ(appTotals(today()).front().activeSeconds, 1);
    EXPECT_EQ(websiteTotals(today()).front().dayCount, 1);
    EXPECT_EQ(appTotals(yesterday()).front().activeSeconds, 2);
    EXPECT_THAT(appTotals(Date::fromMicroseconds(today().microseconds() + 1)), IsEmpty());
    EXPECT_THAT(websiteTotals(Date::fromMicroseconds(today().microseconds() + 1)), IsEmpty());
}

class LongestStretch : public StoreTest {};

TEST_F(LongestStretch, lastsFromTheOnlyBreaksEndUntilNow) {
    recordBreak(completedBreak(at("09:00:00"), 20));
    EXPECT_EQ(longestStretch(today(), at("10:00:00")), 3'580);
}

TEST_F(LongestStretch, liesBetweenTwoBreaksAndASkippedOneDoesNotEndIt) {
    recordBreak(completedBreak(at("11:00:00"), 60));
    recordBreak(completedBreak(at("09:00:00"), 60));
    recordBreak(skippedBreak(at("10:00:00")));
    EXPECT_EQ(longestStretch(today(), at("11:05:00")), 7'140);
}

TEST_F(LongestStretch, isTheLargestOfAllGaps) {
    for (const char* const time : {"09:00:00", "09:30:00", "12:00:00", "12:20:00"}) {
        recordBreak(completedBreak(at(time), 0));
    }
    EXPECT_EQ(longestStretch(today(), at("12:30:00")), 9'000);
    EXPECT_EQ(longestStretch(today(), at("16:00:00")), 13'200);
}

TEST_F(LongestStretch, isNothingWithSkippedBreaksAlone) {
    recordBreak(skippedBreak(at("09:00:00")));
    EXPECT_EQ(longestStretch(today(), at("18:00:00")), 0);
}

TEST_F(LongestStretch, neverFallsBelowZero) {
    recordBreak(completedBreak(at("09:00:00"), 3'600));
    recordBreak(completedBreak(at("09:30:00"), 60));
    EXPECT_EQ(longestStretch(today(), at("09:10:00")), 0);
}

TEST_F(LongestStretch, countsFromTheLaterBreaksEndEvenIfAnEarlierOneLastedLonger) {
    recordBreak(completedBreak(at("09:00:00"), 3'600));
    recordBreak(completedBreak(at("09:30:00"), 60));
    recordBreak(completedBreak(at("10:00:00"), 0));
    EXPECT_EQ(longestStretch(today(), at("10:00:00")), 1'740);
}

TEST_F(LongestStretch, ofBreaksAtOneInstantTheLastRecordedSetsTheEnd) {
    recordBreak(completedBreak(at("09:00:00"), 600));
    recordBreak(completedBreak(at("09:00:00"), 60));
    EXPECT_EQ(longestStretch(today(), at("10:00:00")), 3'540);
}

TEST_F(LongestStretch, takesNoNoticeOfPausesAndOtherDays) {
    recordBreak(completedBreak(at("09:00:00"), 0));
    recordPause(pauseOf(PauseKind::meeting, at("09:10:00"), 1'800));
    recordBreak(completedBreak(at("09:50:00"), 0, yesterday()));
    EXPECT_EQ(longestStretch(today(), at("10:00:00")), 3'600);
}

} // namespace
} // namespace kestrelfen
