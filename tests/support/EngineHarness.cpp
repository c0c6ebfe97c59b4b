#include "support/EngineHarness.hpp"

namespace kestrelfen {

EngineHarness::EngineHarness() {
    platform.clock.set(at("08:00:00"));
    listenToPlatform();
}

void EngineHarness::listenToPlatform() {
    platform.log.onLine = [this](const FakeLog::Line& line) {
        const bool usual = line.level == LogLevel::info && line.category == "BreakEngine";
        trace.add("log " + (usual ? "" : std::string(rawValue(line.level)) + " " + line.category + ": ") +
                  line.text);
    };
    platform.standardOutput.onPrint = [this](const std::string& line) { trace.add("stdout " + line); };
    platform.notifier.onPost = [this](const Notification& notification) {
        trace.add("notify " + notification.title + " | " + notification.body +
                  (notification.sound ? " (sound)" : ""));
    };
    platform.sessionLock.onLock = [this] { trace.add("session locks"); };
}

BreakEngine& EngineHarness::create() {
    destroyEngine();
    engine_ = std::make_unique<BreakEngine>(platform.ports(),
                                            BreakEngine::Collaborators{.store = hasStore ? &history : nullptr,
                                                                       .systemEvents = makeSystemEvents(),
                                                                       .smartPause = makeSmartPause(),
                                                                       .lockScreen = makeLockScreen()});
    listenToEngine();
    return *engine_;
}

void EngineHarness::listenToEngine() {
    engine_->onWorkIntervalCompleted = [this] { trace.add("onWorkIntervalCompleted"); };
    engine_->onDayRollover = [this](Date dayStart) { trace.add("onDayRollover " + dayText(dayStart)); };
    engine_->onTick = [this](Date date) {
        if (tracesTicks) {
            trace.add("onTick " + momentText(date));
        }
    };
}

std::unique_ptr<SystemEvents> EngineHarness::makeSystemEvents() {
    return std::make_unique<FakeSystemEvents>(trace);
}

std::unique_ptr<SmartPause> EngineHarness::makeSmartPause() {
    auto smartPause = std::make_unique<FakeSmartPause>();
    smartPause_ = smartPause.get();
    return smartPause;
}

std::function<void()> EngineHarness::makeLockScreen() {
    return [this] { trace.add("lock in state " + stateText(engine_->state())); };
}

BreakEngine& EngineHarness::engine() {
    return engine_ ? *engine_ : create();
}

void EngineHarness::destroyEngine() {
    engine_.reset();
    smartPause_ = nullptr;
}

void EngineHarness::start() {
    engine().start();
    settle();
    forget();
}

void EngineHarness::tick() {
    platform.ticker.fire();
    settle();
}

void EngineHarness::run(int count, double step) {
    for (int index = 0; index < count; ++index) {
        pass(step);
        tick();
    }
}

void EngineHarness::tickAt(std::string_view moment) {
    jumpTo(moment);
    tick();
}

void EngineHarness::settle() {
    bool any = true;
    while (any) {
        const bool ranTasks = platform.mainQueue.drain();
        const bool ranJobs = history.runJobs();
        any = ranTasks || ranJobs;
    }
}

void EngineHarness::sendPause(PauseReason reason) {
    engine().systemEvents().onPause(reason);
}

void EngineHarness::sendResume(PauseReason reason) {
    engine().systemEvents().onResume(reason);
}

std::string stateText(const BreakState& state) {
    std::string text(rawValue(state.phase()));
    if (const auto end = state.endsAt()) {
        text += " until " + momentText(*end);
    }
    if (const auto reason = state.reason()) {
        text += " (" + std::string(rawValue(*reason)) + ")";
    }
    return text;
}

} // namespace kestrelfen
