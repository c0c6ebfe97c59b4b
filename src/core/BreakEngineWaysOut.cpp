#include "core/BreakEngine.hpp"
#include "core/DailyCounter.hpp"
#include "core/Formatters.hpp"
#include "platform/ports/Clock.hpp"

namespace kestrelfen {

std::int64_t BreakEngine::countDailyUse(std::string_view key) {
    DailyCounter::increment(platform_.preferences, key, rollover_.currentDayStart());
    return DailyCounter::used(platform_.preferences, key, rollover_.currentDayStart());
}

bool BreakEngine::snooze(double seconds, Date date) {
    if (!canSnooze() || !(seconds > 0)) {
        return false;
    }
    const std::int64_t today = countDailyUse("snoozesPerDay");
    snoozesOnCurrentBreak_.set(snoozesOnCurrentBreak() + 1);
    const Date due = date + seconds;
    nextBreakAt_.set(due);
    currentPhaseTotal_.set(seconds);
    warningDismissed_ = false;
    suspendedPhase_.set(std::nullopt);
    currentBreakStartedAt_.reset();
    state_.set(BreakState::working(due));
    logTransition("snoozed " + Formatters::loggedDuration(seconds) + " (today: " + std::to_string(today) +
                  ", this break: " + std::to_string(snoozesOnCurrentBreak()) + ")");
    return true;
}

bool BreakEngine::postponeNextBreak(double seconds, Date date) {
    if (!canPostpone() || !(seconds > 0)) {
        return false;
    }
    const std::int64_t today = countDailyUse("snoozesPerDay");
    const Date due = date + seconds;
    nextBreakAt_.set(due);
    currentPhaseTotal_.set(seconds);
    warningDismissed_ = false;
    state_.set(BreakState::working(due));
    logTransition("postponed " + Formatters::loggedDuration(seconds) + " (today: " + std::to_string(today) +
                  ")");
    return true;
}

void BreakEngine::skipCurrentBreak() {
    if (!canSkipCurrentBreak()) {
        return;
    }
    breaksSkippedToday_.set(breaksSkippedToday() + 1);
    recordBreakOutcome(BreakOutcome::skipped, platform_.clock.now());
    advanceCadence();
    logTransition("break skipped (today: " + std::to_string(breaksSkippedToday()) + " skipped)");
    startWorkInterval(platform_.clock.now());
}

void BreakEngine::skipNextBreak() {
    switch (state().phase()) {
    case BreakState::Case::onBreak:
        skipCurrentBreak();
        return;
    case BreakState::Case::paused:
    case BreakState::Case::idle:
        return;
    case BreakState::Case::working:
    case BreakState::Case::preBreakWarning:
        break;
    }
    if (!canSkipNextBreak()) {
        logTransition("advance skip refused (quota spent)");
        return;
    }
    const std::int64_t today = countDailyUse("advanceSkipsPerDay");
    logTransition("next break skipped (today: " + std::to_string(today) + ")");
    startWorkInterval(platform_.clock.now());
}

void BreakEngine::dismissPreBreakWarning() {
    if (!state().is(BreakState::Case::preBreakWarning) || !nextBreakAt()) {
        return;
    }
    warningDismissed_ = true;
    state_.set(BreakState::working(*nextBreakAt()));
}

} // namespace kestrelfen
