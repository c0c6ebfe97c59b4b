#include "core/EngineScenario.hpp"

#include <gtest/gtest.h>

#include <sstream>

namespace kestrelfen {

namespace {

constexpr double year = 365.25 * 86'400;
constexpr double steps[] = {1, 1, 1, 1, 1, 1, 5, 5, 10, 30};
constexpr double jumps[] = {0,   0.4,   60,    290,     1190,    3600,      43'200,   86'400,    5 * year,
                            -30, -1200, -3600, -43'200, -86'400, -5 * year, 0.000001, -0.000001, -0.25};
constexpr double lengths[] = {-5, 0, 0.5, 5, 10, 60, 300, 900};
constexpr double inputAges[] = {0, 14.5, 15, 29, 30, 30.5, 60, 61, 5000};
constexpr const char* zones[] = {"UTC", "Europe/Berlin", "America/New_York", "Pacific/Apia"};
constexpr PauseReason signals[] = {PauseReason::systemSleep, PauseReason::screenLocked,
                                   PauseReason::displaySleep};

struct Choice {
    std::string_view key;
    std::vector<PreferenceValue> values;
};

const std::vector<PreferenceValue> limits{-2, -1, 0, 1, 3};
const std::vector<PreferenceValue> truths{true, false};

const std::vector<Choice> choices{
    {"workIntervalSeconds", {0.0, 60.0, 300.0, 1200.0, 1800.5}},
    {"breakDurationSeconds", {0.0, 5.0, 20.0, 60.0, 61.25}},
    {"longBreakDurationSeconds", {60.0, 300.0}},
    {"longBreakEvery", {-3, 0, 1, 2, 3, 4}},
    {"preBreakWarningLeadSeconds", {0.0, 10.0, 55.0, 5000.0}},
    {"debugFastCycle", truths},
    {"snoozesPerDay", limits},
    {"snoozesPerBreak", limits},
    {"advanceSkipsPerDay", limits},
    {"allowEndBreakEarly", truths},
    {"lockOnBreakStart", truths},
    {"showSkipButton", truths},
    {"enforcementLevel", {"casual", "balanced", "hardcore", "unknown"}},
    {"idleMode", {"off", "automatic", "custom", "unknown"}},
    {"pauseOnIdle", truths},
    {"idleThresholdSeconds", {0.0, 15.0, 60.0}},
    {"pauseOnScreenLock", truths},
    {"pauseOnDisplaySleep", truths},
    {"pauseOnSystemSleep", truths},
    {"resumeAutomatically", truths},
    {"smartPauseMeetings", truths},
    {"smartPauseVideo", truths},
    {"smartPauseScreenSharing", truths},
    {"smartPauseFocusApps", truths},
};

/// The lines of phase changes; a change of day is none.
int transitionsIn(const std::string& trace) {
    std::istringstream stream(trace);
    int count = 0;
    for (std::string line; std::getline(stream, line);) {
        const bool isLogged = line.find(" log ") != std::string::npos;
        count += isLogged && line.find("day rollover") == std::string::npos ? 1 : 0;
    }
    return count;
}

} // namespace

EngineScenario::EngineScenario(std::uint64_t seed) : random_(seed) {
    harness_.history.onRecordBreak = [this](const BreakEntry& entry) {
        EXPECT_EQ(momentText(entry.startedAt), momentText(oracle_.takeRecordedStart()));
        EXPECT_GE(entry.actualSeconds, 0.0);
    };
    harness_.create();
}

const std::string& EngineScenario::story() {
    story_ += harness_.happened();
    return story_;
}

void EngineScenario::expectState(const std::string& expected) {
    EXPECT_EQ(stateText(harness_.engine().state()), expected);
}

void EngineScenario::step() {
    const std::uint64_t kind = pick(20);
    if (kind < 12) {
        harness_.pass(kind < 10 ? oneOf(steps) : oneOf(jumps));
        tick();
    } else if (kind < 16) {
        operate();
    } else {
        changeTheWorld();
    }
    if (!oneIn(4)) {
        harness_.settle();
    }
}

void EngineScenario::tick() {
    story();
    const BreakEngine& engine = harness_.engine();
    if (!engine.isTicking()) {
        return;
    }
    const BreakState before = engine.state();
    perform("tick", oracle_.afterTick(), [&] { harness_.platform.ticker.fire(); });
    EXPECT_EQ(engine.now(), harness_.now());
    const bool isChanged = engine.state() != before;
    const bool isCompleted = isChanged && before.is(BreakState::Case::onBreak);
    EXPECT_EQ(transitionsIn(harness_.trace.text()), isCompleted ? 2 : isChanged ? 1 : 0);
}

void EngineScenario::operate() {
    if (oneIn(3)) {
        harness_.pass(oneOf(jumps));
    }
    const std::int64_t snoozes = oracle_.usedToday("snoozesPerDay");
    const std::int64_t skips = oracle_.usedToday("advanceSkipsPerDay");
    const bool mayCountSnooze = oracle_.isSnoozeOpen() || oracle_.isPostponeOpen();
    const bool mayCountSkip = oracle_.isSkipNextOpen();
    if (oneIn(2)) {
        operateOnBreaks();
    } else {
        operateOnPauses();
    }
    EXPECT_LE(oracle_.usedToday("snoozesPerDay"), snoozes + (mayCountSnooze ? 1 : 0)) << "overdrawn";
    EXPECT_LE(oracle_.usedToday("advanceSkipsPerDay"), skips + (mayCountSkip ? 1 : 0)) << "overdrawn";
}

void EngineScenario::operateOnBreaks() {
    BreakEngine& engine = harness_.engine();
    const Date now = harness_.now();
    const double seconds = oneOf(lengths);
    const std::string amount = secondsText(seconds);
    const std::int64_t snoozes = oracle_.usedToday("snoozesPerDay");
    switch (pick(7)) {
    case 0:
        return perform("snooze " + amount, oracle_.afterSnooze(seconds), [&] {
            const bool isDone = engine.snooze(seconds, now);
            EXPECT_EQ(oracle_.usedToday("snoozesPerDay"), snoozes + (isDone ? 1 : 0));
        });
    case 1:
        return perform("postpone " + amount, oracle_.afterPostpone(seconds), [&] {
            const bool isDone = engine.postponeNextBreak(seconds, now);
            EXPECT_EQ(oracle_.usedToday("snoozesPerDay"), snoozes + (isDone ? 1 : 0));
        });
    case 2:
        return perform("skip the break", oracle_.afterSkipCurrentBreak(), [&] { engine.skipCurrentBreak(); });
    case 3:
        return perform("skip the next break", oracle_.afterSkipNextBreak(), [&] { engine.skipNextBreak(); });
    case 4:
        return perform("dismiss", oracle_.afterDismissal(), [&] { engine.dismissPreBreakWarning(); });
    case 5:
        return perform("begin a break", oracle_.afterBeginBreak(), [&] { engine.beginBreak(now); });
    default:
        if (engine.canEndBreakEarly()) {
            perform("end the break", oracle_.afterCompleteBreak(), [&] { engine.completeBreak(now); });
        }
    }
}

void EngineScenario::operateOnPauses() {
    BreakEngine& engine = harness_.engine();
    const Date now = harness_.now();
    const double seconds = oneOf(lengths);
    const PauseReason reason = allCases<PauseReason>()[pick(allCases<PauseReason>().size())];
    const PauseReason signal = oneOf(signals);
    const bool isConnected = engine.isTicking();
    switch (pick(isConnected ? 6 : 4)) {
    case 0:
        return perform("start", oracle_.afterStart(), [&] { engine.start(); });
    case 1:
        return perform("pause " + std::string(rawValue(reason)), oracle_.afterPause(reason),
                       [&] { engine.pause(reason); });
    case 2:
        return perform("pause for " + secondsText(seconds), oracle_.afterPauseFor(seconds),
                       [&] { engine.pauseFor(seconds, now); });
    case 3:
        return perform("resume", oracle_.afterResume(), [&] { engine.resume(now); });
    case 4:
        return perform("signal pause " + std::string(rawValue(signal)), oracle_.afterSystemPause(signal),
                       [&] { harness_.sendPause(signal); });
    default:
        return perform("signal resume", oracle_.afterSystemResume(), [&] { harness_.sendResume(signal); });
    }
}

void EngineScenario::changeTheWorld() {
    FakeSmartPause& smartPause = harness_.smartPause();
    switch (pick(8)) {
    case 0:
        smartPause.found = allCases<SmartPauseKind>()[pick(4)];
        break;
    case 1:
        smartPause.found.reset();
        smartPause.settled = oneIn(2);
        break;
    case 2:
        harness_.platform.inputIdle.setAge(oneOf(inputAges));
        break;
    case 3:
        oneIn(4) ? harness_.platform.inputIdle.setUnavailable() : harness_.platform.inputIdle.setActive();
        break;
    case 4:
        harness_.platform.calendar.setZone(oneOf(zones));
        break;
    case 5:
        harness_.engine().hydrate();
        break;
    default:
        changeAPreference();
    }
}

void EngineScenario::changeAPreference() {
    const Choice& choice = choices[pick(choices.size())];
    harness_.trace.add("-- change " + std::string(choice.key));
    if (oneIn(3)) {
        harness_.platform.preferences.remove(choice.key);
    } else {
        harness_.prefer(choice.key, choice.values[pick(choice.values.size())]);
    }
}

} // namespace kestrelfen
