#include "core/BreakEngine.hpp"

#include "base/Fault.hpp"
#include "base/Translated.hpp"
#include "core/Formatters.hpp"
#include "core/Settings.hpp"
#include "platform/ports/Clock.hpp"
#include "platform/ports/Displays.hpp"
#include "platform/ports/MainQueue.hpp"
#include "platform/ports/Notifier.hpp"
#include "platform/ports/ProgramFocus.hpp"
#include "platform/ports/StandardOutput.hpp"
#include "platform/ports/TimeFormat.hpp"

namespace kestrelfen {

namespace {

constexpr double tickPeriod = 1.0;

} // namespace

BreakEngine::BreakEngine(const Platform& platform, Collaborators collaborators)
    : platform_(platform), store_(collaborators.store), state_(changes_, BreakState::idle()),
      now_(changes_, platform.clock.now()), nextBreakAt_(changes_), breaksCompletedToday_(changes_),
      breaksSkippedToday_(changes_), currentPhaseTotal_(changes_), currentBreakIsLong_(changes_),
      activeTaskTitle_(changes_), config_(changes_, Config::fromDefaults(platform.preferences)),
      rollover_(now_.get(), platform.calendar), pausedUntil_(changes_), snoozesOnCurrentBreak_(changes_),
      systemEvents_(std::move(collaborators.systemEvents)), smartPause_(std::move(collaborators.smartPause)),
      lockScreen_(std::move(collaborators.lockScreen)), log_(platform.log, "BreakEngine"),
      verboseLogging_(Settings::boolean(platform.preferences, "debugFastCycle", false)),
      breaksInCadence_(changes_), suspendedPhase_(changes_), suspendedRemaining_(changes_) {}

void BreakEngine::start() {
    if (tickSubscription_) {
        return;
    }
    systemEvents_->onPause = lifeline_.guard([this](PauseReason reason) {
        if (isEnabledInSettings(reason, platform_.preferences)) {
            pause(reason);
        }
    });
    systemEvents_->onResume = lifeline_.guard([this](PauseReason reason) { systemResume(reason); });
    systemEvents_->start();
    rollover_.onRollover = lifeline_.guard([this](Date from, Date to) { handleDayRollover(from, to); });
    tickSubscription_ = platform_.ticker.start(tickPeriod, lifeline_.guard([this] { handleTick(); }));
    startWorkInterval(platform_.clock.now());
}

void BreakEngine::handleTick() {
    if (std::this_thread::get_id() != thread_) {
        fault("a tick came off the main thread");
    }
    tick(platform_.clock.now());
}

void BreakEngine::tick(Date date) {
    now_.set(date);
    rollover_.check(date);
    const BreakState state = state_.get();
    switch (state.phase()) {
    case BreakState::Case::working:
        tickWorking(*state.endsAt(), date);
        break;
    case BreakState::Case::preBreakWarning:
        tickWarning(date);
        break;
    case BreakState::Case::onBreak:
        if (date >= *state.endsAt()) {
            completeBreak(date);
        }
        break;
    case BreakState::Case::paused:
        tickPaused(*state.reason(), date);
        break;
    case BreakState::Case::idle:
        break;
    }
    if (onTick) {
        onTick(date);
    }
}

void BreakEngine::tickWorking(Date due, Date date) {
    if (pauseIfAway(date)) {
        return;
    }
    if (date >= due) {
        beginBreak(date);
        return;
    }
    if (!warningDismissed_ && due - date <= config().preBreakWarningLead) {
        state_.set(BreakState::preBreakWarning());
        logTransition("pre-break warning (" + Formatters::countdown(due - date) + " to break)");
    }
}

void BreakEngine::tickWarning(Date date) {
    if (pauseIfAway(date)) {
        return;
    }
    if (nextBreakAt() && date >= *nextBreakAt()) {
        beginBreak(date);
    }
}

void BreakEngine::startWorkInterval(Date date) {
    config_.set(Config::fromDefaults(platform_.preferences));
    const Date due = date + config().workInterval;
    nextBreakAt_.set(due);
    currentPhaseTotal_.set(config().workInterval);
    warningDismissed_ = false;
    suspendedPhase_.set(std::nullopt);
    state_.set(BreakState::working(due));
    logTransition("work " + Formatters::loggedDuration(config().workInterval) + " → break at " +
                  platform_.timeFormat.shortTime(due) +
                  " (next break long: " + (isNextBreakLong() ? "true" : "false") + ")");
}

void BreakEngine::beginBreak(Date date) {
    const bool isLong = isNextBreakLong();
    const double duration = isLong ? config().longBreakDuration : config().breakDuration;
    const Date end = date + duration;
    currentBreakIsLong_.set(isLong);
    currentPhaseTotal_.set(duration);
    nextBreakAt_.set(std::nullopt);
    warningDismissed_ = false;
    suspendedPhase_.set(std::nullopt);
    currentBreakStartedAt_ = date;
    currentBreakDisplayCount_ = platform_.displays.count();
    snoozesOnCurrentBreak_.set(0);
    state_.set(BreakState::onBreak(end));
    logTransition((isLong ? "long break " : "break ") + Formatters::loggedDuration(duration) + " → ends " +
                  platform_.timeFormat.shortTime(end));
    postBreakNotification(isLong, duration);
    if (Settings::boolean(platform_.preferences, "lockOnBreakStart", false)) {
        lockScreen_();
    }
}

void BreakEngine::completeBreak(Date date) {
    breaksCompletedToday_.set(breaksCompletedToday() + 1);
    recordBreakOutcome(BreakOutcome::completed, date);
    if (onWorkIntervalCompleted) {
        onWorkIntervalCompleted();
    }
    advanceCadence();
    logTransition("break complete (today: " + std::to_string(breaksCompletedToday()) + ")");
    startWorkInterval(date);
}

void BreakEngine::advanceCadence() {
    breaksInCadence_.set((breaksInCadence_.get() + 1) % config().longBreakEvery);
}

void BreakEngine::postBreakNotification(bool isLong, double duration) const {
    if (platform_.programFocus.isActive()) {
        return;
    }
    const std::string title =
        isLong ? translated("Time for a long break") : translated("Look away — 20 seconds");
    const std::string length = Formatters::duration(duration);
    const std::string body = isLong ? translated("Stand up and step away for %1.", {length})
                                    : translated("Focus on something about 20 feet away for %1.", {length});
    platform_.mainQueue.post([platform = platform_, title, body] {
        const bool sound = Settings::boolean(platform.preferences, "soundOnBreakStart", false);
        platform.notifier.post({title, body, sound});
    });
}

void BreakEngine::logTransition(const std::string& message) const {
    log_.info(message);
    if (verboseLogging_) {
        platform_.standardOutput.print("[Kestrelfen] " + platform_.timeFormat.timeWithSeconds(now()) + " " +
                                       message);
    }
}

void BreakEngine::shutDown() {
    tickSubscription_.reset();
    systemEvents_->stop();
    state_.set(BreakState::idle());
    nextBreakAt_.set(std::nullopt);
}

} // namespace kestrelfen
