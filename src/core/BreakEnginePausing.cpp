#include "core/BreakEngine.hpp"
#include "core/Formatters.hpp"
#include "core/IdleMode.hpp"
#include "core/Settings.hpp"
#include "platform/ports/Clock.hpp"
#include "platform/ports/InputIdle.hpp"
#include "platform/ports/MainQueue.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr double shortestPauseToRecord = 1.0;

} // namespace

void BreakEngine::pause(PauseReason reason) {
    if (state().is(BreakState::Case::paused)) {
        return;
    }
    suspendPhase();
    pauseStartedAt_ = now();
    state_.set(BreakState::paused(reason));
    logTransition("paused (" + std::string(rawValue(reason)) + ", " +
                  Formatters::countdown(suspendedRemaining_.get()) + " left)");
}

void BreakEngine::suspendPhase() {
    switch (state().phase()) {
    case BreakState::Case::onBreak:
        suspendedRemaining_.set(breakRemaining());
        suspendedPhase_.set(
            SuspendedPhase{SuspendedPhase::Case::onBreak, currentBreakIsLong(), currentPhaseTotal()});
        return;
    case BreakState::Case::working:
    case BreakState::Case::preBreakWarning:
        suspendedRemaining_.set(timeUntilNextBreak());
        suspendedPhase_.set(SuspendedPhase{SuspendedPhase::Case::work});
        return;
    case BreakState::Case::paused:
    case BreakState::Case::idle:
        suspendedRemaining_.set(0.0);
        suspendedPhase_.set(std::nullopt);
        return;
    }
}

void BreakEngine::pauseFor(double seconds, Date date) {
    if (!(seconds > 0)) {
        return;
    }
    if (state().is(BreakState::Case::paused)) {
        resume(date);
    }
    pause(PauseReason::manual);
    pausedUntil_.set(date + seconds);
    logTransition("paused for " + Formatters::loggedDuration(seconds));
}

void BreakEngine::resume(Date date) {
    const auto reason = state().reason();
    if (!reason) {
        return;
    }
    now_.set(date);
    pausedUntil_.set(std::nullopt);
    recordPause(*reason, date);
    restorePhase(date);
    suspendedPhase_.set(std::nullopt);
    suspendedRemaining_.set(0.0);
}

void BreakEngine::restorePhase(Date date) {
    const std::optional<SuspendedPhase> phase = suspendedPhase_.get();
    if (!phase) {
        startWorkInterval(date);
        return;
    }
    const double remaining = suspendedRemaining_.get();
    const Date end = date + remaining;
    switch (phase->phase) {
    case SuspendedPhase::Case::work:
        nextBreakAt_.set(end);
        currentPhaseTotal_.set(std::max(currentPhaseTotal(), remaining));
        warningDismissed_ = false;
        state_.set(BreakState::working(end));
        logTransition("resumed work (" + Formatters::countdown(remaining) + " to break)");
        return;
    case SuspendedPhase::Case::onBreak:
        currentBreakIsLong_.set(phase->isLong);
        currentPhaseTotal_.set(phase->total);
        state_.set(BreakState::onBreak(end));
        logTransition("resumed break (" + Formatters::countdown(remaining) + " left)");
        return;
    }
}

bool BreakEngine::resumesAutomatically() const {
    return Settings::boolean(platform_.preferences, "resumeAutomatically", true);
}

void BreakEngine::systemResume(PauseReason signal) {
    const auto reason = state().reason();
    if (!resumesAutomatically() || !reason || !isAutomatic(*reason)) {
        return;
    }
    logTransition("system resume signal (" + std::string(rawValue(signal)) + ") clearing " +
                  std::string(rawValue(*reason)) + " pause");
    resume(platform_.clock.now());
}

bool BreakEngine::pauseIfAway(Date date) {
    if (const auto kind = smartPause_->sample(date)) {
        const PauseReason reason = pauseReason(*kind);
        if (isEnabledInSettings(reason, platform_.preferences)) {
            pause(reason);
            return true;
        }
    }
    return autoPauseIfIdle();
}

bool BreakEngine::autoPauseIfIdle() {
    if (current<IdleMode>(platform_.preferences) == IdleMode::off) {
        return false;
    }
    const auto age = platform_.inputIdle.secondsSinceLastInput();
    if (!age || !(config().idleThreshold < *age)) {
        return false;
    }
    pause(PauseReason::userIdle);
    return true;
}

void BreakEngine::tickPaused(PauseReason reason, Date date) {
    if (isSmart(reason)) {
        smartPause_->sample(date);
        if (resumesAutomatically() && smartPause_->hasSettled(date)) {
            resume(date);
        }
        return;
    }
    if (pausedUntil() && date >= *pausedUntil()) {
        resume(date);
        return;
    }
    if (reason != PauseReason::userIdle || !resumesAutomatically()) {
        return;
    }
    const auto age = platform_.inputIdle.secondsSinceLastInput();
    if (age && *age < config().idleThreshold) {
        resume(platform_.clock.now());
    }
}

void BreakEngine::recordPause(PauseReason reason, Date endedAt) {
    if (!store_ || !pauseStartedAt_) {
        return;
    }
    const Date started = *pauseStartedAt_;
    pauseStartedAt_.reset();
    const double seconds = std::max(endedAt - started, 0.0);
    if (seconds < shortestPauseToRecord) {
        return;
    }
    const PauseEntry entry{started, seconds, pauseKind(reason), rollover_.currentDayStart()};
    platform_.mainQueue.post(lifeline_.guard([this, entry] { store_->recordPause(entry); }));
}

} // namespace kestrelfen
