#pragma once

#include "support/EngineHarness.hpp"

#include <deque>

namespace kestrelfen {

/// Says beforehand to which state each operation of the engine leads, from the rules alone: from what can be
/// read of the engine, and a memory of the little that cannot. Ask just before the operation, at the
/// clock's time.
class EngineOracle {
  public:
    explicit EngineOracle(EngineHarness& harness) : harness_(harness) {}

    std::string afterTick();
    std::string afterStart();
    std::string afterBeginBreak();
    std::string afterCompleteBreak();
    std::string afterPause(PauseReason reason);
    std::string afterSystemPause(PauseReason reason);
    std::string afterSystemResume();
    std::string afterPauseFor(double seconds);
    std::string afterResume();
    std::string afterSnooze(double seconds);
    std::string afterPostpone(double seconds);
    std::string afterSkipCurrentBreak();
    std::string afterSkipNextBreak();
    std::string afterDismissal();

    bool isSnoozeOpen() const;
    bool isPostponeOpen() const;
    bool isSkipNextOpen() const;
    bool isSkipCurrentOpen() const;
    bool isEndEarlyOpen() const;
    std::int64_t usedToday(std::string_view key) const;

    /// When the break began that is recorded next.
    Date takeRecordedStart();

  private:
    enum class Suspended { nothing, work, onBreak };

    const BreakEngine& engine() const { return harness_.engine(); }
    bool isIn(BreakState::Case phase) const { return engine().state().is(phase); }
    bool isComing() const;
    bool flag(std::string_view key, bool fallback) const;
    bool isQuotaOpen(std::string_view key, std::int64_t used) const;
    std::optional<PauseReason> away() const;
    bool isPauseOver(PauseReason reason) const;

    std::string same() const { return stateText(engine().state()); }
    std::string work(double seconds);
    std::string newInterval();
    std::string tickOfPause(PauseReason reason);

    EngineHarness& harness_;
    bool dismissed_ = false;
    Suspended suspended_ = Suspended::nothing;
    Date breakStartedAt_;
    std::deque<Date> recordedStarts_;
};

} // namespace kestrelfen
