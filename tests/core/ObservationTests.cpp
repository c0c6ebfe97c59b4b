#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class ObservationTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }

    void TearDown() override {
        forget();
        EngineTest::TearDown();
    }

    /// How often an observer of everything is told while `act` runs.
    int told(const std::function<void()>& act) {
        int count = 0;
        const Subscription subscription = engine().observe([&] { ++count; });
        act();
        return count;
    }

    int toldOfState(const std::function<void()>& act) {
        int count = 0;
        const Subscription subscription = engine().observeState([&] { ++count; });
        act();
        return count;
    }
};

TEST_F(ObservationTest, AnUneventfulTickTellsOfNowAlone) {
    start();
    pass(1);
    EXPECT_EQ(told([&] { tick(); }), 1);
    pass(1);
    EXPECT_EQ(toldOfState([&] { tick(); }), 0);
}

TEST_F(ObservationTest, ATickAtTheSameInstantTellsNothing) {
    start();
    tick();
    EXPECT_EQ(told([&] { tick(); }), 0);
}

TEST_F(ObservationTest, AnUneventfulTickOfAPauseTellsOfNowAlone) {
    start();
    engine().pause(PauseReason::meeting);
    pass(1);
    EXPECT_EQ(told([&] { tick(); }), 1);
}

TEST_F(ObservationTest, OperationsThatAreRefusedTellNothing) {
    start();
    EXPECT_EQ(told([&] {
                  engine().start();
                  engine().resume(at("09:00:00"));
                  engine().snooze(60, now());
                  engine().postponeNextBreak(0, now());
                  engine().skipCurrentBreak();
                  engine().dismissPreBreakWarning();
                  engine().pauseFor(0, now());
              }),
              0);
    engine().pause(PauseReason::manual);
    EXPECT_EQ(told([&] {
                  engine().pause(PauseReason::screenLocked);
                  engine().skipNextBreak();
                  engine().postponeNextBreak(60, now());
                  sendResume(PauseReason::systemSleep);
              }),
              0);
}

TEST_F(ObservationTest, ReadOutsAndGatesTellNothing) {
    start();
    EXPECT_EQ(told([&] {
                  engine().timeUntilNextBreak();
                  engine().breakRemaining();
                  engine().phaseProgress();
                  engine().menuBarText();
                  engine().canPostpone();
                  engine().canSnooze();
                  engine().canSkipCurrentBreak();
                  engine().canSkipNextBreak();
                  engine().canEndBreakEarly();
              }),
              0);
}

TEST_F(ObservationTest, EachChangeOfStateIsToldOnce) {
    start();
    EXPECT_EQ(toldOfState([&] { tickAt("08:19:50"); }), 1);
    EXPECT_EQ(toldOfState([&] { tickAt("08:20:00"); }), 1);
    EXPECT_EQ(toldOfState([&] { engine().pause(PauseReason::manual); }), 1);
    EXPECT_EQ(toldOfState([&] { engine().resume(now()); }), 1);
    EXPECT_EQ(toldOfState([&] { tickAt("08:20:20"); }), 1);
    EXPECT_EQ(toldOfState([&] { engine().pauseFor(60, now()); }), 1);
    EXPECT_EQ(toldOfState([&] { engine().pauseFor(60, now()); }), 2) << "resumed, then paused again";
    EXPECT_EQ(toldOfState([&] { engine().beginBreak(now()); }), 1);
    EXPECT_EQ(toldOfState([&] { engine().snooze(60, now()); }), 1);
}

TEST_F(ObservationTest, AnObserverOfTheStateSeesTheWholeNewPhase) {
    start();
    std::string seen;
    const Subscription subscription = engine().observeState([&] {
        seen = state() + ", total " + secondsText(engine().currentPhaseTotal()) + ", remaining " +
               secondsText(engine().breakRemaining()) + ", next " +
               (engine().nextBreakAt() ? momentText(*engine().nextBreakAt()) : "none");
    });
    tickAt("08:20:00");
    EXPECT_EQ(seen, "onBreak until 08:20:20, total 20, remaining 20, next none");
    tickAt("08:20:20");
    EXPECT_EQ(seen, "working until 08:40:20, total 1200, remaining 0, next 08:40:20");
}

TEST_F(ObservationTest, TheTaskTitleIsToldOnlyWhenItChanges) {
    start();
    EXPECT_EQ(told([&] { engine().setActiveTaskTitle(std::nullopt); }), 0);
    EXPECT_EQ(told([&] { engine().setActiveTaskTitle("Write"); }), 1);
    EXPECT_EQ(told([&] { engine().setActiveTaskTitle("Write"); }), 0);
    EXPECT_EQ(told([&] { engine().setActiveTaskTitle(std::nullopt); }), 1);
}

TEST_F(ObservationTest, AHydrationWithTheSameCountsTellsNothing) {
    history.remember(at("00:00:00"), 5, 2);
    start();
    const auto hydrate = [&] {
        engine().hydrate();
        settle();
    };
    EXPECT_EQ(told(hydrate), 2);
    EXPECT_EQ(told(hydrate), 0);
}

TEST_F(ObservationTest, ACompletedBreakTellsOfItsCount) {
    start();
    engine().beginBreak(now());
    std::int64_t seen = 0;
    const Subscription subscription = engine().observe([&] { seen = engine().breaksCompletedToday(); });
    engine().completeBreak(now());
    EXPECT_EQ(seen, 1);
}

TEST_F(ObservationTest, TheCadenceIsToldSoThatItsReadOutsMove) {
    hasStore = false;
    start();
    engine().beginBreak(now());
    std::vector<std::int64_t> positions;
    const Subscription subscription =
        engine().observe([&] { positions.push_back(engine().cyclePosition()); });
    engine().completeBreak(now());
    EXPECT_EQ(positions.back(), 2);
}

TEST_F(ObservationTest, ARolloverWithoutBreaksTellsOfNowAlone) {
    prefer("workIntervalSeconds", 86'400.0);
    start();
    jumpTo("2026-03-10 00:00:00");
    EXPECT_EQ(told([&] { tick(); }), 1);
}

TEST_F(ObservationTest, AnEndedSubscriptionIsToldNothing) {
    start();
    int count = 0;
    Subscription subscription = engine().observe([&] { ++count; });
    subscription.cancel();
    run(5);
    EXPECT_EQ(count, 0);
}

TEST_F(ObservationTest, ASubscriptionMayOutliveTheEngine) {
    start();
    Subscription subscription = engine().observe([] {});
    Subscription ofState = engine().observeState([] {});
    destroyEngine();
    subscription.cancel();
    ofState.cancel();
}

} // namespace
} // namespace kestrelfen
