#pragma once

#include "core/BreakEngine.hpp"
#include "platform/fake/FakePlatform.hpp"
#include "support/FakeBreakHistory.hpp"
#include "support/FakeSmartPause.hpp"
#include "support/FakeSystemEvents.hpp"
#include "support/Moments.hpp"
#include "support/Trace.hpp"

#include <memory>
#include <string>

namespace kestrelfen {

/// The timing engine on a fake machine, at 2026-03-09 08:00 UTC at first. Everything that it does to the
/// outside goes into the trace. Without `start` there is no engine yet, so that preferences can be set.
class EngineHarness {
  public:
    EngineHarness();
    virtual ~EngineHarness() = default;
    EngineHarness(const EngineHarness&) = delete;
    EngineHarness& operator=(const EngineHarness&) = delete;

    FakePlatform platform;
    Trace trace{platform.clock};
    FakeBreakHistory history{platform.mainQueue, trace};
    bool hasStore = true;
    /// Whether the trace tells of onTick.
    bool tracesTicks = false;

    void prefer(std::string_view key, PreferenceValue value) {
        platform.preferences.set(key, std::move(value));
    }

    /// Builds the engine anew, unstarted.
    BreakEngine& create();
    /// The engine that stands, or a new one.
    BreakEngine& engine();
    void destroyEngine();

    /// Starts the engine and forgets the trace of it.
    void start();

    Date now() const { return platform.clock.now(); }
    /// Moves the clock, with no tick.
    void jumpTo(std::string_view moment) { platform.clock.set(at(moment)); }
    void pass(double seconds) { platform.clock.advance(seconds); }
    /// Fires the engine's timer, and lets everything that it queued end.
    void tick();
    /// As `count` times: the clock moves by `step`, and the timer fires.
    void run(int count, double step = 1.0);
    /// Moves the clock and fires the timer once.
    void tickAt(std::string_view moment);
    /// Runs the main queue and the history's jobs until both are empty.
    void settle();

    /// Signals, by the connected monitor's callbacks.
    void sendPause(PauseReason reason);
    void sendResume(PauseReason reason);
    /// Only where the engine has the fake one.
    FakeSmartPause& smartPause() { return *smartPause_; }

    /// What happened since the last call.
    std::string happened() { return trace.take(); }
    void forget() { trace.take(); }

  protected:
    /// The monitors that the next engine gets.
    virtual std::unique_ptr<SystemEvents> makeSystemEvents();
    virtual std::unique_ptr<SmartPause> makeSmartPause();
    /// What locks the screen for the next engine.
    virtual std::function<void()> makeLockScreen();

  private:
    void listenToPlatform();
    void listenToEngine();

    std::unique_ptr<BreakEngine> engine_;
    FakeSmartPause* smartPause_ = nullptr;
};

/// "working until 08:20:00", "onBreak until …", "paused (manual)", "idle", "preBreakWarning".
std::string stateText(const BreakState& state);

} // namespace kestrelfen
