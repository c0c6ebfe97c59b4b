#pragma once

#include "base/Lifeline.hpp"
#include "base/Observable.hpp"
#include "core/BreakEngineConfig.hpp"
#include "core/BreakHistory.hpp"
#include "core/BreakState.hpp"
#include "core/DayRollover.hpp"
#include "core/SmartPause.hpp"
#include "core/SystemEvents.hpp"
#include "platform/ports/Log.hpp"
#include "platform/ports/Platform.hpp"
#include "platform/ports/Ticker.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace kestrelfen {

/// The timing state machine: one for the life of the program, on the main thread. A phase is the wall-clock
/// date at which it ends; every read-out is a difference between such a date and `now`, the date of the last
/// tick.
class BreakEngine {
  public:
    using Config = BreakEngineConfig;

    struct Collaborators {
        /// Null when history is unavailable: nothing is recorded then, and the timer runs all the same.
        BreakHistory* store = nullptr;
        std::unique_ptr<SystemEvents> systemEvents;
        std::unique_ptr<SmartPause> smartPause;
        /// Locks the screen; called at the start of a break, if the person asked for it.
        std::function<void()> lockScreen = [] {};
    };

    /// Called at the end of every tick with its date.
    std::function<void(Date)> onTick;
    /// Called on a day change with the new day's start.
    std::function<void(Date)> onDayRollover;
    /// Called when a break completes.
    std::function<void()> onWorkIntervalCompleted;

    BreakEngine(const Platform& platform, Collaborators collaborators);

    // Stored properties.
    const BreakState& state() const { return state_.get(); }
    Date now() const { return now_.get(); }
    std::optional<Date> nextBreakAt() const { return nextBreakAt_.get(); }
    std::int64_t breaksCompletedToday() const { return breaksCompletedToday_.get(); }
    std::int64_t breaksSkippedToday() const { return breaksSkippedToday_.get(); }
    double currentPhaseTotal() const { return currentPhaseTotal_.get(); }
    bool currentBreakIsLong() const { return currentBreakIsLong_.get(); }
    const std::optional<std::string>& activeTaskTitle() const { return activeTaskTitle_.get(); }
    void setActiveTaskTitle(std::optional<std::string> title) { activeTaskTitle_.set(std::move(title)); }
    const Config& config() const { return config_.get(); }
    const DayRollover& rollover() const { return rollover_; }
    std::optional<Date> pausedUntil() const { return pausedUntil_.get(); }
    std::int64_t snoozesOnCurrentBreak() const { return snoozesOnCurrentBreak_.get(); }
    SystemEvents& systemEvents() { return *systemEvents_; }
    SmartPause& smartPause() { return *smartPause_; }

    /// Tells of every real change of a stored property.
    [[nodiscard]] Subscription observe(std::function<void()> changed) {
        return changes_.add(std::move(changed));
    }
    [[nodiscard]] Subscription observeState(std::function<void()> changed) {
        return state_.observe(std::move(changed));
    }

    // Read-outs, in seconds where they are lengths. None has a side effect.
    double timeUntilNextBreak() const;
    double breakRemaining() const;
    /// 0 to 1.
    double phaseProgress() const;
    /// 0 outside a break; without the time for which the break was paused.
    double elapsedInCurrentBreak() const;
    bool isNextBreakLong() const;
    /// 1 for the first break of a cycle.
    std::int64_t cyclePosition() const;
    std::string menuBarText() const;

    // Gates. They read preferences and counters afresh at every call.
    bool canPostpone() const;
    bool canSnooze() const;
    bool canSkipCurrentBreak() const;
    bool canSkipNextBreak() const;
    bool canEndBreakEarly() const;

    /// Connects the monitors, starts the tick and the first work interval. A second call does nothing.
    void start();
    bool isTicking() const { return tickSubscription_ != nullptr; }
    /// Brings the day's counts from the store; `completion` runs at the end.
    void hydrate(const std::function<void()>& completion = {});
    void tick(Date date);
    void startWorkInterval(Date date);
    void beginBreak(Date date);
    void completeBreak(Date date);

    void pause(PauseReason reason);
    /// A manual pause that ends by itself after `seconds`.
    void pauseFor(double seconds, Date date);
    void resume(Date date);

    /// Both answer whether it was done.
    bool snooze(double seconds, Date date);
    bool postponeNextBreak(double seconds, Date date);
    void skipCurrentBreak();
    void skipNextBreak();
    void dismissPreBreakWarning();

    void logTransition(const std::string& message) const;

    /// Ends the tick and the monitors; for the end of the program.
    void shutDown();

  private:
    /// What a pause interrupted.
    struct SuspendedPhase {
        enum class Case { onBreak, work };
        Case phase = Case::work;
        /// Only in `onBreak`.
        bool isLong = false;
        double total = 0;

        friend bool operator==(const SuspendedPhase&, const SuspendedPhase&) = default;
    };

    struct CountedBreak {
        BreakOutcome outcome;
        Date dayStart;
    };

    /// A question for the day's counts on its way, with the breaks of that day that it cannot have seen.
    struct Hydration {
        Date dayStart;
        std::int64_t completedUnseen = 0;
        std::int64_t skippedUnseen = 0;

        void addUnseen(const CountedBreak& counted);
    };

    bool isSuspended(SuspendedPhase::Case phase) const;

    void handleTick();
    void tickWorking(Date due, Date date);
    void tickWarning(Date date);
    void tickPaused(PauseReason reason, Date date);
    bool pauseIfAway(Date date);
    bool autoPauseIfIdle();
    bool resumesAutomatically() const;
    void systemResume(PauseReason signal);
    void suspendPhase();
    void restorePhase(Date date);
    void handleDayRollover(Date from, Date to);
    void recordBreakOutcome(BreakOutcome outcome, Date endedAt);
    void handToStore(const BreakEntry& entry);
    void finishHydration(const Hydration& hydration, const DaySummary& summary);
    void recordPause(PauseReason reason, Date endedAt);
    void advanceCadence();
    void postBreakNotification(bool isLong, double duration) const;
    bool isDailyQuotaOpen(std::string_view key) const;
    bool isSnoozeQuotaOpen() const;
    std::int64_t countDailyUse(std::string_view key);

    const Platform platform_;
    BreakHistory* const store_;
    Observers changes_;

    Property<BreakState> state_;
    Property<Date> now_;
    Property<std::optional<Date>> nextBreakAt_;
    Property<std::int64_t> breaksCompletedToday_;
    Property<std::int64_t> breaksSkippedToday_;
    Property<double> currentPhaseTotal_;
    Property<bool> currentBreakIsLong_;
    Property<std::optional<std::string>> activeTaskTitle_;
    Property<Config> config_;
    DayRollover rollover_;
    std::optional<Date> currentBreakStartedAt_;
    std::optional<Date> pauseStartedAt_;
    Property<std::optional<Date>> pausedUntil_;
    std::int64_t currentBreakDisplayCount_ = 0;
    Property<std::int64_t> snoozesOnCurrentBreak_;
    std::unique_ptr<SystemEvents> systemEvents_;
    std::unique_ptr<SmartPause> smartPause_;
    std::function<void()> lockScreen_;
    Logger log_;
    const bool verboseLogging_;
    const std::thread::id thread_ = std::this_thread::get_id();
    bool warningDismissed_ = false;
    Property<std::int64_t> breaksInCadence_;
    Property<std::optional<SuspendedPhase>> suspendedPhase_;
    Property<double> suspendedRemaining_;

    /// Counted, and not yet handed to the store.
    std::vector<CountedBreak> unwritten_;
    std::vector<std::shared_ptr<Hydration>> hydrations_;
    std::unique_ptr<Ticker::Handle> tickSubscription_;
    Lifeline lifeline_;
};

} // namespace kestrelfen
