#include "store/StoreHarness.hpp"

#include <set>

namespace kestrelfen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Kind = HistoryEntry::Kind;

class History : public StoreTest {};

TEST_F(History, aBreakIsToldWithAllThatAListShows) {
    BreakEntry entry = titled(longBreak(at("09:00:00"), 299.5), "Write");
    entry.displayCount = 2;
    recordBreak(entry);
    EXPECT_THAT(history(),
                ElementsAre(HistoryEntry{"b-1", at("09:00:00"), Kind::completed(true), 299.5, "Write", 2}));
}

TEST_F(History, aSkippedBreakHasNoSeconds) {
    BreakEntry entry = titled(skippedBreak(at("09:00:00")), "Write");
    entry.isLong = true;
    entry.actualSeconds = 7;
    recordBreak(entry);
    EXPECT_THAT(history(), ElementsAre(HistoryEntry{"b-1", at("09:00:00"), Kind::skipped(), {}, "Write", 1}));
}

TEST_F(History, aPauseHasNeitherTaskNorDisplays) {
    recordBreak(titled(completedBreak(at("10:00:00"), 20), "Write"));
    recordPause(pauseOf(PauseKind::userIdle, at("09:00:00"), 300));
    EXPECT_EQ(history().back(),
              (HistoryEntry{"p-1", at("09:00:00"), Kind::paused(PauseKind::userIdle), 300, {}, 0}));
}

TEST_F(History, everyKindOfPauseIsReadBack) {
    for (const PauseKind kind : allCases<PauseKind>()) {
        recordPause(pauseOf(kind, at("09:00:00"), 1));
    }
    const auto entries = history();
    ASSERT_EQ(entries.size(), 9U);
    for (std::size_t index = 0; index < entries.size(); ++index) {
        EXPECT_EQ(entries[index].kind, Kind::paused(static_cast<PauseKind>(index)));
    }
}

TEST_F(History, anUnknownKindOfPauseIsManual) {
    recordPause(pauseOf(PauseKind::meeting, at("09:00:00"), 300));
    execute("UPDATE PauseRecord SET kindRawValue = 'siesta'");
    EXPECT_EQ(history().front().kind, Kind::paused(PauseKind::manual));
}

TEST_F(History, comesNewestFirstBreaksAndPausesMixed) {
    recordBreak(completedBreak(at("09:00:00"), 20));
    recordBreak(completedBreak(at("11:00:00"), 20));
    recordPause(pauseOf(PauseKind::manual, at("10:00:00"), 60));
    recordBreak(completedBreak(at("2026-03-08 12:00:00"), 20, yesterday()));
    recordPause(pauseOf(PauseKind::manual, at("12:00:00"), 60));
    std::string order;
    for (const HistoryEntry& entry : history()) {
        order += entry.id + " ";
    }
    EXPECT_EQ(order, "p-2 b-2 p-1 b-1 b-3 ");
}

TEST_F(History, atOneInstantTheBreakComesBeforeThePause) {
    recordPause(pauseOf(PauseKind::manual, at("09:00:00"), 60));
    recordBreak(completedBreak(at("09:00:00"), 20));
    EXPECT_EQ(history().front().id, "b-1");
    EXPECT_EQ(history(today(), 1).front().id, "b-1");
}

TEST_F(History, atOneInstantRowsComeByTheirDaysThenAsTheyWereAdded) {
    const Date instant = at("2026-03-08 23:59:00");
    recordPause(pauseOf(PauseKind::manual, instant, 60, today()));
    recordBreak(completedBreak(instant, 20, yesterday()));
    recordBreak(completedBreak(instant, 20, today()));
    recordPause(pauseOf(PauseKind::manual, instant, 60, yesterday()));
    recordBreak(completedBreak(instant, 20, yesterday()));
    std::string order;
    for (const HistoryEntry& entry : history()) {
        order += entry.id + " ";
    }
    EXPECT_EQ(order, "b-2 p-1 b-1 b-3 p-2 ");
}

TEST_F(History, theLimitKeepsTheNewest) {
    for (int minute = 0; minute < 10; ++minute) {
        recordBreak(completedBreak(at("09:00:00") + 60.0 * minute, 20));
        recordPause(pauseOf(PauseKind::manual, at("09:00:30") + 60.0 * minute, 60));
    }
    const auto newest = history(today(), 3);
    ASSERT_EQ(newest.size(), 3U);
    EXPECT_EQ(newest[0].id, "p-10");
    EXPECT_EQ(newest[1].id, "b-10");
    EXPECT_EQ(newest[2].id, "p-9");
}

TEST_F(History, theDaySelectsARowNotItsOwnTime) {
    recordPause(pauseOf(PauseKind::systemSleep, at("2026-03-08 22:00:00"), 36'000, today()));
    recordBreak(completedBreak(at("00:10:00"), 20, yesterday()));
    const auto entries = history(today());
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries.front().startedAt, at("2026-03-08 22:00:00"));
}

TEST_F(History, identifiersAreUniqueWithinAResult) {
    for (int count = 0; count < 5; ++count) {
        recordBreak(completedBreak(at("09:00:00"), 20));
        recordPause(pauseOf(PauseKind::manual, at("09:00:00"), 60));
    }
    std::set<std::string> identifiers;
    for (const HistoryEntry& entry : history()) {
        identifiers.insert(entry.id);
    }
    EXPECT_EQ(identifiers.size(), 10U);
}

class Retention : public StoreTest {
  protected:
    void fillDay(Date day) {
        recordBreak(titled(completedBreak(day + 36'000.0, 20, day), "Write"));
        recordPause(pauseOf(PauseKind::manual, day + 40'000.0, 60, day));
        addActiveTime(activeTime(5, "editor", 1, day));
        addWebsiteTime(websiteTime(5, "example.org", day));
    }
};

TEST_F(Retention, aDayAtTheCutoffIsKeptAndTheDayBeforeIsRemovedWithItsRows) {
    fillDay(yesterday());
    fillDay(today());
    makeTask("Write");
    EXPECT_EQ(pruneHistory(today()), 1);
    EXPECT_THAT(takeLog(), ElementsAre("info: pruned 1 day record(s) before 2026-03-09 00:00:00 +0000"));
    EXPECT_EQ(rowCount(), 6);
    EXPECT_EQ(summaries().front().startOfDay, today());
    EXPECT_EQ(history().size(), 2U);
    EXPECT_EQ(websiteUsage(today()).size(), 1U);
    EXPECT_THAT(taskTitles(), ElementsAre("Write"));
}

TEST_F(Retention, nothingToPruneIsNotLogged) {
    fillDay(today());
    EXPECT_EQ(pruneHistory(today()), 0);
    EXPECT_EQ(rowCount(), 5);
}

TEST_F(Retention, theDateOfALineIsInUtcAndCutToSeconds) {
    fillDay(yesterday());
    EXPECT_EQ(pruneHistory(at("22:59:59.999")), 1);
    EXPECT_THAT(takeLog(), ElementsAre("info: pruned 1 day record(s) before 2026-03-09 22:59:59 +0000"));
}

TEST_F(Retention, manyDaysArePrunedAtOnce) {
    for (int day = 1; day <= 28; ++day) {
        fillDay(at("2026-02-01 00:00:00") + 86'400.0 * (day - 1));
    }
    EXPECT_EQ(pruneHistory(at("2026-02-20 00:00:00")), 19);
    EXPECT_EQ(rowCount(), 9 * 5);
    EXPECT_EQ(takeLog().size(), 1U);
}

TEST_F(Retention, allHistoryGoesAndTasksStay) {
    fillDay(yesterday());
    fillDay(today());
    makeTask("Write");
    EXPECT_EQ(deleteAllHistory(), 2);
    EXPECT_THAT(takeLog(), ElementsAre("info: deleted all history: 2 day record(s)"));
    EXPECT_EQ(rowCount(), 1);
    EXPECT_THAT(taskTitles(), ElementsAre("Write"));
}

TEST_F(Retention, deletingAnEmptyHistoryIsLoggedToo) {
    EXPECT_EQ(deleteAllHistory(), 0);
    EXPECT_THAT(takeLog(), ElementsAre("info: deleted all history: 0 day record(s)"));
}

TEST_F(Retention, theNextWriteAfterADeletionMakesAFreshDay) {
    fillDay(today());
    deleteAllHistory();
    takeLog();
    addActiveTime(activeTime(3, "editor"));
    EXPECT_EQ(summary(today()), (DaySummary{today(), 0, 0, 3, 0, 0}));
    EXPECT_EQ(rowCount(), 2);
}

TEST_F(Retention, whatWasDeletedIsNowhereInTheFiles) {
    recordBreak(titled(completedBreak(at("09:00:00"), 20), "a most private title"));
    addWebsiteTime(websiteTime(5, "most.private.example"));
    deleteAllHistory();
    takeLog();
    close();
    EXPECT_EQ(contentOf(configuration.file).find("most private title"), std::string::npos);
    EXPECT_EQ(contentOf(configuration.file).find("most.private.example"), std::string::npos);
    EXPECT_THAT(folder.names(), ElementsAre("Kestrelfen.sqlite"));
}

} // namespace
} // namespace kestrelfen
