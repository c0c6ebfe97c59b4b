#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

/// Here the main queue and the history's jobs run only where a test says so.
class HydrationTest : public EngineTest {
  protected:
    void SetUp() override {
        platform.programFocus.setActive(true);
        prefer("enforcementLevel", "casual");
    }

    void TearDown() override {
        forget();
        EngineTest::TearDown();
    }

    void complete() {
        engine().beginBreak(now());
        engine().completeBreak(now());
    }

    void skip() {
        engine().beginBreak(now());
        engine().skipCurrentBreak();
    }

    std::string counts() {
        return std::to_string(engine().breaksCompletedToday()) + " and " +
               std::to_string(engine().breaksSkippedToday());
    }

    void tickOnlyAt(std::string_view moment) {
        jumpTo(moment);
        engine().tick(now());
    }
};

TEST_F(HydrationTest, BringsTheDaysCountsAndSaysSo) {
    history.remember(at("00:00:00"), 5, 2);
    history.remember(at("2026-03-08 00:00:00"), 9, 9);
    start();
    bool completed = false;
    engine().hydrate([&] {
        completed = true;
        EXPECT_EQ(counts(), "5 and 2");
    });
    EXPECT_EQ(counts(), "0 and 0");
    EXPECT_EQ(happened(), lines({"08:00:00 query day 2026-03-09"}));
    history.runJobs();
    EXPECT_EQ(counts(), "0 and 0");
    platform.mainQueue.drain();
    EXPECT_EQ(happened(), lines({"08:00:00 log hydrated day 2026-03-09: 5 completed, 2 skipped"}));
    EXPECT_TRUE(completed);
}

TEST_F(HydrationTest, WithoutAStoreTheCountsStayAndTheCompletionRuns) {
    hasStore = false;
    start();
    complete();
    forget();
    bool completed = false;
    engine().hydrate([&] { completed = true; });
    settle();
    EXPECT_TRUE(completed);
    EXPECT_EQ(counts(), "1 and 0");
    EXPECT_EQ(happened(), "");
}

TEST_F(HydrationTest, WorksOnAnEngineThatNeverStarted) {
    history.remember(at("00:00:00"), 3, 1);
    create().hydrate();
    settle();
    EXPECT_EQ(counts(), "3 and 1");
    EXPECT_EQ(state(), "idle");
}

TEST_F(HydrationTest, AsksForTheDayThatTheTimerKnowsAndNotForTheClocks) {
    start();
    jumpTo("2026-03-10 08:00:00");
    engine().hydrate();
    EXPECT_EQ(happened(), lines({"2026-03-10 08:00:00 query day 2026-03-09"}));
    settle();
}

TEST_F(HydrationTest, ABreakWrittenBeforeTheQueryIsInTheAnswerOnce) {
    start();
    complete();
    settle();
    engine().hydrate();
    settle();
    EXPECT_EQ(counts(), "1 and 0");
}

TEST_F(HydrationTest, ABreakCountedButNotYetHandedOverStaysCounted) {
    start();
    complete();
    skip();
    engine().hydrate();
    settle();
    EXPECT_EQ(counts(), "1 and 1");
    EXPECT_EQ(history.breaks().size(), 2U);
}

TEST_F(HydrationTest, ABreakThatEndsWhileTheQueryIsOnItsWayStaysCounted) {
    history.remember(at("00:00:00"), 5, 2);
    start();
    engine().hydrate();
    complete();
    platform.mainQueue.drain();
    skip();
    forget();
    settle();
    EXPECT_EQ(counts(), "6 and 3");
    EXPECT_EQ(happened(),
              lines({"08:00:00 record skipped short break from 08:00:00, 0 of 20 s, displays 1, task -, "
                     "day 2026-03-09",
                     "08:00:00 log hydrated day 2026-03-09: 5 completed, 2 skipped"}))
        << "the line names the store's own numbers";
}

TEST_F(HydrationTest, ABreakThatEndsBetweenTheQuerysJobAndItsAnswerStaysCounted) {
    history.remember(at("00:00:00"), 5, 2);
    start();
    engine().hydrate();
    history.runJobs();
    complete();
    settle();
    EXPECT_EQ(counts(), "6 and 2");
}

TEST_F(HydrationTest, TwoQueriesInTurnCountEachBreakOnce) {
    start();
    engine().hydrate();
    complete();
    platform.mainQueue.drain();
    engine().hydrate();
    complete();
    settle();
    EXPECT_EQ(counts(), "2 and 0");
    engine().hydrate();
    settle();
    EXPECT_EQ(counts(), "2 and 0");
}

TEST_F(HydrationTest, ABreakThatEndsInTheRolloversTickStaysCounted) {
    jumpTo("23:39:40");
    start();
    tickOnlyAt("23:59:40");
    tickOnlyAt("2026-03-10 00:00:00");
    EXPECT_EQ(counts(), "1 and 0");
    settle();
    EXPECT_EQ(counts(), "1 and 0");
    EXPECT_EQ(history.breaks().at(0).dayStart, at("2026-03-10 00:00:00"));
}

TEST_F(HydrationTest, ABreakThatEndedJustBeforeTheRolloverIsNotOfTheNewDay) {
    jumpTo("23:59:59");
    start();
    complete();
    tickOnlyAt("2026-03-10 00:00:00");
    settle();
    EXPECT_EQ(counts(), "0 and 0");
}

TEST_F(HydrationTest, ABreakOfAnotherDayThatIsStillToBeWrittenDoesNotCount) {
    jumpTo("23:59:59");
    start();
    complete();
    tickOnlyAt("2026-03-10 00:00:00");
    std::string seen;
    engine().hydrate([&] { seen = counts(); });
    settle();
    EXPECT_EQ(seen, "0 and 0");
}

TEST_F(HydrationTest, ABreakOfADayThatIsLeftAndComesBackIsCountedOnce) {
    jumpTo("23:59:59");
    start();
    complete();
    tickOnlyAt("2026-03-10 00:00:00");
    tickOnlyAt("23:59:59");
    EXPECT_EQ(counts(), "0 and 0");
    settle();
    EXPECT_EQ(counts(), "1 and 0");
}

TEST_F(HydrationTest, AfterARolloverDuringTheQueryTheLaterQuerySettlesTheCounts) {
    history.remember(at("00:00:00"), 5, 2);
    history.remember(at("2026-03-10 00:00:00"), 1, 1);
    jumpTo("23:59:59");
    start();
    engine().hydrate();
    tickOnlyAt("2026-03-10 00:00:00");
    complete();
    settle();
    EXPECT_EQ(counts(), "2 and 1");
}

TEST_F(HydrationTest, AChangeOfZoneAsksForTheMovedDay) {
    history.remember(at("00:00:00"), 4, 0);
    start();
    engine().hydrate();
    settle();
    EXPECT_EQ(counts(), "4 and 0");
    platform.calendar.setZone("Europe/Berlin");
    tick();
    EXPECT_EQ(counts(), "0 and 0");
    platform.calendar.setZone("UTC");
    tick();
    EXPECT_EQ(counts(), "4 and 0");
}

TEST_F(HydrationTest, StartComesFirstAndTheCountsArriveAMomentLater) {
    history.remember(at("00:00:00"), 5, 2);
    create();
    platform.mainQueue.post([this] { engine().hydrate(); });
    engine().start();
    EXPECT_EQ(counts(), "0 and 0");
    settle();
    EXPECT_EQ(happened(), lines({"08:00:00 monitor starts",
                                 "08:00:00 log work 20 min → break at 08:20 (next break long: false)",
                                 "08:00:00 query day 2026-03-09",
                                 "08:00:00 log hydrated day 2026-03-09: 5 completed, 2 skipped"}));
    complete();
    EXPECT_EQ(counts(), "6 and 2");
}

} // namespace
} // namespace kestrelfen
