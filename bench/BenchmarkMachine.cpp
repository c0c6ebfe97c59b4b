#include "bench/BenchmarkMachine.hpp"

#include <string>

namespace kestrelfen {

namespace {

/// As many choices as a person's file may hold, with those in it that a tick and the gates read.
void fill(Preferences& preferences) {
    preferences.set("hasCompletedOnboarding", true);
    preferences.set("workIntervalSeconds", 1200.0);
    preferences.set("breakDurationSeconds", 20.0);
    preferences.set("snoozesPerDay", std::int64_t{10});
    preferences.set("advanceSkipsPerDay", std::int64_t{10});
    preferences.set("snoozesPerBreak", std::int64_t{3});
    preferences.set("idleMode", std::string("automatic"));
    preferences.set("resumeAutomatically", true);
    for (int index = 0; index < 40; ++index) {
        preferences.set("anotherChoice" + std::to_string(index), std::int64_t{index});
    }
}

} // namespace

std::string_view BenchmarkMachine::name(Ports ports) {
    return ports == Ports::real ? "real" : "byHand";
}

std::string_view BenchmarkMachine::name(Moment moment) {
    switch (moment) {
    case Moment::working:
        return "working";
    case Moment::warning:
        return "warning";
    case Moment::onBreak:
        return "onBreak";
    case Moment::paused:
        return "paused";
    case Moment::away:
        return "away";
    }
    return "";
}

BenchmarkMachine::BenchmarkMachine(Ports ports, Moment moment)
    : realPreferences_(folder_ / "preferences.json", fake_.log, fake_.mainQueue), ports_(choosePorts(ports)) {
    fill(ports_.preferences);
    program_ = std::make_unique<SimulatedProgram>(
        ports_, StoreConfiguration{folder_ / StoreConfiguration::fileName, {}, {}}, [](std::string_view) {});
    face_ = engine().observe([this] { ++facesChanges_; });
    program_->delegate().applicationDidFinishLaunching();
    pass(1);
    bringTo(moment);
    pass(1);
    state_ = engine().state();
}

Platform BenchmarkMachine::choosePorts(Ports ports) {
    const Platform byHand = fake_.ports();
    if (ports == Ports::byHand) {
        return byHand;
    }
    return {byHand.clock,
            realCalendar_,
            byHand.timeFormat,
            byHand.mainQueue,
            byHand.storeExecutor,
            byHand.ticker,
            realPreferences_,
            byHand.inputIdle,
            byHand.systemSignals,
            byHand.displays,
            byHand.displayPower,
            byHand.applications,
            byHand.windowList,
            byHand.audioProcesses,
            byHand.browserAccess,
            byHand.programFocus,
            byHand.activationPolicy,
            byHand.interfaceAppearance,
            byHand.notificationAuthorization,
            byHand.notifier,
            byHand.sessionLock,
            byHand.loginItem,
            byHand.statusBarButton,
            byHand.standardOutput,
            byHand.log};
}

void BenchmarkMachine::bringTo(Moment moment) {
    switch (moment) {
    case Moment::working:
        return;
    case Moment::warning:
        pass(engine().timeUntilNextBreak() - engine().config().preBreakWarningLead);
        return;
    case Moment::onBreak:
        pass(engine().timeUntilNextBreak());
        return;
    case Moment::paused:
        engine().pause(PauseReason::manual);
        return;
    case Moment::away:
        fake_.inputIdle.setAway();
        pass(engine().config().idleThreshold + 1);
        return;
    }
}

void BenchmarkMachine::pass(double seconds) {
    fake_.clock.advance(seconds);
    engine().tick(fake_.clock.now());
    while (fake_.mainQueue.drain() || fake_.storeExecutor.drain()) {
    }
}

} // namespace kestrelfen
