#include "core/EngineTest.hpp"

#include <map>

namespace kestrelfen {
namespace {

using Operation = std::function<void(BreakEngine&, Date)>;

/// Every operation from every state: where it leads.
class TransitionTest : public EngineTest {
  protected:
    void SetUp() override {
        platform.programFocus.setActive(true);
        prefer("enforcementLevel", "casual");
    }

    void TearDown() override {
        forget();
        EngineTest::TearDown();
    }

    const std::map<std::string, Operation> operations{
        {"start", [](BreakEngine& engine, Date) { engine.start(); }},
        {"beginBreak", [](BreakEngine& engine, Date date) { engine.beginBreak(date); }},
        {"pause", [](BreakEngine& engine, Date) { engine.pause(PauseReason::manual); }},
        {"pauseFor", [](BreakEngine& engine, Date date) { engine.pauseFor(60, date); }},
        {"resume", [](BreakEngine& engine, Date date) { engine.resume(date); }},
        {"snooze", [](BreakEngine& engine, Date date) { engine.snooze(60, date); }},
        {"postpone", [](BreakEngine& engine, Date date) { engine.postponeNextBreak(60, date); }},
        {"skipCurrent", [](BreakEngine& engine, Date) { engine.skipCurrentBreak(); }},
        {"skipNext", [](BreakEngine& engine, Date) { engine.skipNextBreak(); }},
        {"dismiss", [](BreakEngine& engine, Date) { engine.dismissPreBreakWarning(); }},
    };

    /// Enters a state by `enter` on a fresh engine, tries each operation, and compares where it led;
    /// operations that are not listed must leave the state as it is.
    void expectTransitions(const std::function<void()>& enter,
                           const std::map<std::string, std::string>& expected) {
        for (const auto& [name, operation] : operations) {
            jumpTo("08:00:00");
            create();
            enter();
            const std::string before = state();
            operation(engine(), now());
            settle();
            const auto found = expected.find(name);
            EXPECT_EQ(state(), found == expected.end() ? before : found->second)
                << name << " from " << before;
        }
    }
};

TEST_F(TransitionTest, FromIdle) {
    expectTransitions([] {}, {{"start", "working until 08:20:00"},
                              {"beginBreak", "onBreak until 08:00:20"},
                              {"pause", "paused (manual)"},
                              {"pauseFor", "paused (manual)"}});
}

TEST_F(TransitionTest, FromWorking) {
    const auto work = [this] {
        start();
        tickAt("08:01:00");
    };
    expectTransitions(work, {{"beginBreak", "onBreak until 08:01:20"},
                             {"pause", "paused (manual)"},
                             {"pauseFor", "paused (manual)"},
                             {"postpone", "working until 08:02:00"},
                             {"skipNext", "working until 08:21:00"}});
}

TEST_F(TransitionTest, FromTheWarning) {
    const auto beWarned = [this] {
        start();
        tickAt("08:19:55");
    };
    expectTransitions(beWarned, {{"beginBreak", "onBreak until 08:20:15"},
                                 {"pause", "paused (manual)"},
                                 {"pauseFor", "paused (manual)"},
                                 {"snooze", "working until 08:20:55"},
                                 {"postpone", "working until 08:20:55"},
                                 {"skipNext", "working until 08:39:55"},
                                 {"dismiss", "working until 08:20:00"}});
}

TEST_F(TransitionTest, FromABreak) {
    const auto takeBreak = [this] {
        start();
        tickAt("08:20:00");
        tickAt("08:20:05");
    };
    expectTransitions(takeBreak, {{"beginBreak", "onBreak until 08:20:25"},
                                  {"pause", "paused (manual)"},
                                  {"pauseFor", "paused (manual)"},
                                  {"snooze", "working until 08:21:05"},
                                  {"skipCurrent", "working until 08:40:05"},
                                  {"skipNext", "working until 08:40:05"}});
}

TEST_F(TransitionTest, FromAPauseOfWork) {
    const auto pauseWork = [this] {
        start();
        tickAt("08:01:00");
        engine().pause(PauseReason::meeting);
        tickAt("08:02:00");
    };
    expectTransitions(pauseWork, {{"beginBreak", "onBreak until 08:02:20"},
                                  {"pauseFor", "paused (manual)"},
                                  {"resume", "working until 08:21:00"}});
}

TEST_F(TransitionTest, FromAPauseOfABreak) {
    const auto pauseBreak = [this] {
        start();
        tickAt("08:20:00");
        engine().pause(PauseReason::meeting);
        tickAt("08:21:00");
    };
    expectTransitions(pauseBreak, {{"beginBreak", "onBreak until 08:21:20"},
                                   {"pauseFor", "paused (manual)"},
                                   {"resume", "onBreak until 08:21:20"}});
}

TEST_F(TransitionTest, FromAPauseOfIdle) {
    const auto pauseIdle = [this] { engine().pause(PauseReason::manual); };
    expectTransitions(pauseIdle, {{"start", "working until 08:20:00"},
                                  {"beginBreak", "onBreak until 08:00:20"},
                                  {"pauseFor", "paused (manual)"},
                                  {"resume", "working until 08:20:00"}});
}

TEST_F(TransitionTest, TwoStatesAreEqualWithTheSameCaseAndPayload) {
    const Date date = at("08:20:00");
    EXPECT_EQ(BreakState::working(date), BreakState::working(date));
    EXPECT_NE(BreakState::working(date), BreakState::working(date + 1));
    EXPECT_NE(BreakState::working(date), BreakState::onBreak(date));
    EXPECT_NE(BreakState::onBreak(date), BreakState::onBreak(date + 1));
    EXPECT_EQ(BreakState::paused(PauseReason::manual), BreakState::paused(PauseReason::manual));
    EXPECT_NE(BreakState::paused(PauseReason::manual), BreakState::paused(PauseReason::meeting));
    EXPECT_EQ(BreakState::idle(), BreakState::idle());
    EXPECT_NE(BreakState::idle(), BreakState::preBreakWarning());
}

TEST_F(TransitionTest, OnlyWorkAndBreakEndAndOnlyAPauseHasAReason) {
    const Date date = at("08:20:00");
    EXPECT_EQ(BreakState::working(date).endsAt(), date);
    EXPECT_EQ(BreakState::onBreak(date).endsAt(), date);
    EXPECT_EQ(BreakState::paused(PauseReason::meeting).endsAt(), std::nullopt);
    EXPECT_EQ(BreakState::idle().endsAt(), std::nullopt);
    EXPECT_EQ(BreakState::preBreakWarning().endsAt(), std::nullopt);
    EXPECT_EQ(BreakState::paused(PauseReason::meeting).reason(), PauseReason::meeting);
    EXPECT_EQ(BreakState::working(date).reason(), std::nullopt);
    EXPECT_EQ(BreakState::idle().reason(), std::nullopt);
}

} // namespace
} // namespace kestrelfen
