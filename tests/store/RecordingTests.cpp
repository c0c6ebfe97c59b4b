#include "store/StoreHarness.hpp"

#include <limits>

namespace kestrelfen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Recording : public StoreTest {};

TEST_F(Recording, aBreakIsTheFirstWriteOfADay) {
    EXPECT_EQ(recordBreak(completedBreak(at("09:00:00"), 20)),
              (DaySummary{.startOfDay = today(), .breaksCompleted = 1}));
    EXPECT_EQ(dayRecordCount(), 1);
}

TEST_F(Recording, aPauseIsTheFirstWriteOfADay) {
    recordPause(pauseOf(PauseKind::userIdle, at("09:00:00"), 300.5));
    EXPECT_EQ(summary(today()), (DaySummary{.startOfDay = today(), .pausedSeconds = 300.5}));
    EXPECT_EQ(dayRecordCount(), 1);
}

TEST_F(Recording, activeTimeIsTheFirstWriteOfADay) {
    addActiveTime(activeTime(5, "editor"));
    EXPECT_EQ(summary(today()), (DaySummary{.startOfDay = today(), .activeSeconds = 5}));
    EXPECT_EQ(dayRecordCount(), 1);
}

TEST_F(Recording, websiteTimeIsTheFirstWriteOfADayAndNotItsActiveTime) {
    addWebsiteTime(websiteTime(5, "example.org"));
    EXPECT_EQ(summary(today()), DaySummary{.startOfDay = today()});
    EXPECT_EQ(dayRecordCount(), 1);
    EXPECT_THAT(websiteUsage(today()), ElementsAre(WebsiteUsageSummary{"example.org", 5}));
}

TEST_F(Recording, allFourWaysFindTheSameDay) {
    recordBreak(completedBreak(at("09:00:00"), 20));
    recordPause(pauseOf(PauseKind::manual, at("10:00:00"), 60));
    addActiveTime(activeTime(5, "editor"));
    addWebsiteTime(websiteTime(5, "example.org"));
    EXPECT_EQ(dayRecordCount(), 1);
    EXPECT_THAT(summaries(), ElementsAre(DaySummary{today(), 1, 0, 5, 60, 0}));
}

TEST_F(Recording, aDayIsFoundAmongOlderAndNewerOnes) {
    for (const Date day : {yesterday(), today(), at("2026-03-10 00:00:00"), yesterday(), today()}) {
        addActiveTime(activeTime(1, "editor", 1, day));
    }
    EXPECT_EQ(dayRecordCount(), 3);
    EXPECT_EQ(summary(yesterday()).activeSeconds, 2);
    EXPECT_EQ(summary(today()).activeSeconds, 2);
}

TEST_F(Recording, secondsThatAreNotMoreThanZeroMakeNothingNotEvenADay) {
    for (const double seconds : {0.0, -0.0, -5.0, std::numeric_limits<double>::quiet_NaN()}) {
        recordPause(pauseOf(PauseKind::manual, at("09:00:00"), seconds));
        addActiveTime(activeTime(seconds, "editor"));
        addWebsiteTime(websiteTime(seconds, "example.org"));
    }
    EXPECT_EQ(rowCount(), 0);
}

TEST_F(Recording, aWebsiteWithoutADomainMakesNothing) {
    addWebsiteTime(websiteTime(5, ""));
    EXPECT_EQ(rowCount(), 0);
}

TEST_F(Recording, breaksAreRecordedWithoutGuard) {
    recordBreak(completedBreak(at("09:00:00"), 0));
    recordBreak(skippedBreak(at("10:00:00")));
    EXPECT_EQ(number("SELECT count(*) FROM BreakRecord"), 2);
    EXPECT_EQ(number("SELECT count(*) FROM BreakRecord WHERE creditedTaskTitle IS NULL"), 2);
}

TEST_F(Recording, aBreakKeepsEverythingThatItIsGiven) {
    BreakEntry entry =
        titled(longBreak(Date::fromMicroseconds(1'773'046'800'123'456), 299.875), "Write \"it\"");
    entry.plannedSeconds = 300.25;
    entry.displayCount = 3;
    recordBreak(entry);
    EXPECT_EQ(
        text("SELECT startedAt || ' ' || plannedSeconds || ' ' || actualSeconds || ' ' || isLong || ' ' "
             "|| outcomeRawValue || ' ' || displayCount || ' ' || creditedTaskTitle || ' ' || day "
             "FROM BreakRecord"),
        "1773046800123456 300.25 299.875 1 completed 3 Write \"it\" 1");
}

TEST_F(Recording, aTitleIsKeptToTheByte) {
    using namespace std::string_literals;
    const std::string title = "a\0b \xF0\x9F\xA6\x85\r\n"s + std::string(10'000, 'x') + "\xFF";
    recordBreak(titled(completedBreak(at("09:00:00"), 20), title));
    EXPECT_EQ(history().front().taskTitle, title);
}

TEST_F(Recording, aBreakTouchesNeitherActiveNorPausedSeconds) {
    addActiveTime(activeTime(7, "editor"));
    recordPause(pauseOf(PauseKind::meeting, at("08:00:00"), 9));
    recordBreak(completedBreak(at("09:00:00"), 20));
    EXPECT_EQ(summary(today()), (DaySummary{today(), 1, 0, 7, 9, 0}));
}

TEST_F(Recording, aSkippedBreakGrowsTheSkippedCountAndNotTheLongOnes) {
    recordBreak(longBreak(at("09:00:00"), 300));
    BreakEntry skipped = skippedBreak(at("10:00:00"));
    skipped.isLong = true;
    EXPECT_EQ(recordBreak(skipped), (DaySummary{today(), 1, 1, 0, 0, 1}));
}

TEST_F(Recording, timeWithoutAnAppRaisesTheDayAlone) {
    addActiveTime(activeTime(30, std::nullopt));
    addActiveTime(activeTime(12, "editor"));
    EXPECT_EQ(summary(today()).activeSeconds, 42);
    EXPECT_THAT(appUsage(today()), ElementsAre(AppUsageSummary{"editor", "editor's name", 1, 12}));
}

TEST_F(Recording, anEmptyIdentifierIsAnAppLikeAnyOther) {
    addActiveTime(activeTime(12, ""));
    EXPECT_THAT(appUsage(today()), ElementsAre(AppUsageSummary{"", "'s name", 1, 12}));
}

TEST_F(Recording, anAppWithoutANameHasAnEmptyOne) {
    addActiveTime({12, "editor", std::nullopt, 1, today()});
    EXPECT_THAT(appUsage(today()), ElementsAre(AppUsageSummary{"editor", "", 1, 12}));
}

TEST_F(Recording, oneAppOnTwoDisplaysHasTwoRowsAndKeepsItsFirstName) {
    addActiveTime({10, "editor", "Editor", 1, today()});
    addActiveTime({20, "editor", "Editor", 2, today()});
    addActiveTime({5, "editor", "Editor Pro", 1, today()});
    EXPECT_THAT(appUsage(today()), ElementsAre(AppUsageSummary{"editor", "Editor", 2, 20},
                                               AppUsageSummary{"editor", "Editor", 1, 15}));
}

TEST_F(Recording, secondsOnAnUnknownDisplayCollectInOneRow) {
    addActiveTime(activeTime(10, "editor", 0));
    addActiveTime(activeTime(10, "editor", 0));
    EXPECT_THAT(appUsage(today()), ElementsAre(AppUsageSummary{"editor", "editor's name", 0, 20}));
}

TEST_F(Recording, namesAreComparedExactly) {
    for (const char* const app : {"editor", "Editor", "editor ", "éditor",
                                  "e\xCC\x81"
                                  "ditor"}) {
        addActiveTime(activeTime(1, app));
        addWebsiteTime(websiteTime(1, app));
    }
    EXPECT_EQ(appUsage(today()).size(), 5U);
    EXPECT_EQ(websiteUsage(today()).size(), 5U);
}

TEST_F(Recording, oneAppAndOneSiteHaveARowOnEachDay) {
    for (const Date day : {yesterday(), today()}) {
        addActiveTime(activeTime(1, "editor", 1, day));
        addWebsiteTime(websiteTime(2, "example.org", day));
    }
    EXPECT_EQ(number("SELECT count(*) FROM AppUsageRecord"), 2);
    EXPECT_EQ(number("SELECT count(*) FROM WebsiteUsageRecord"), 2);
}

TEST_F(Recording, websiteSecondsOfOneDomainAddUp) {
    addWebsiteTime(websiteTime(2, "example.org"));
    addWebsiteTime(websiteTime(3, "example.com"));
    addWebsiteTime(websiteTime(2.5, "example.org"));
    EXPECT_THAT(websiteUsage(today()),
                ElementsAre(WebsiteUsageSummary{"example.org", 4.5}, WebsiteUsageSummary{"example.com", 3}));
}

TEST_F(Recording, whatBeganBeforeMidnightGoesWholeIntoTheDayThatIsNamed) {
    const Date began = at("2026-03-08 23:50:00");
    recordPause(pauseOf(PauseKind::systemSleep, began, 1'200));
    recordBreak(completedBreak(began, 20));
    EXPECT_EQ(summary(today()), (DaySummary{today(), 1, 0, 0, 1'200, 0}));
    EXPECT_EQ(dayRecordCount(), 1);
    for (const HistoryEntry& entry : history(today())) {
        EXPECT_EQ(entry.startedAt, began);
    }
    EXPECT_EQ(history(today()).size(), 2U);
}

TEST_F(Recording, aDayIsAnInstantSoAnotherZonesMidnightIsAnotherDay) {
    const Date inBerlin = at("2026-03-08 23:00:00");
    addActiveTime(activeTime(1, "editor", 1, today()));
    addActiveTime(activeTime(2, "editor", 1, inBerlin));
    addActiveTime(activeTime(4, "editor", 1, Date::fromMicroseconds(today().microseconds() + 1)));
    EXPECT_EQ(dayRecordCount(), 3);
    EXPECT_EQ(summary(inBerlin).activeSeconds, 2);
}

TEST_F(Recording, pausesKeepTheirKind) {
    for (const PauseKind kind : allCases<PauseKind>()) {
        recordPause(pauseOf(kind, at("09:00:00"), 1));
    }
    EXPECT_EQ(text("SELECT group_concat(kindRawValue) FROM (SELECT * FROM PauseRecord ORDER BY id)"),
              "manual,systemSleep,screenLocked,displaySleep,userIdle,meeting,videoPlayback,screenSharing,"
              "focusApp");
    EXPECT_EQ(summary(today()).pausedSeconds, 9);
}

TEST_F(Recording, whatWasRecordedIsThereWhenTheStoreIsOpenedAgain) {
    recordBreak(titled(completedBreak(at("09:00:00"), 20), "Write"));
    recordPause(pauseOf(PauseKind::meeting, at("10:00:00"), 60));
    addActiveTime(activeTime(5, "editor"));
    addWebsiteTime(websiteTime(5, "example.org"));
    makeTask("Write");
    const auto before = history();
    ASSERT_TRUE(open());
    EXPECT_EQ(history(), before);
    EXPECT_EQ(summary(today()), (DaySummary{today(), 1, 0, 5, 60, 0}));
    EXPECT_EQ(appUsage(today()).size(), 1U);
    EXPECT_EQ(websiteUsage(today()).size(), 1U);
    EXPECT_THAT(taskTitles(), ElementsAre("Write"));
}

} // namespace
} // namespace kestrelfen
