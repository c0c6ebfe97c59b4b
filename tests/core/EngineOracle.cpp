#include "core/EngineOracle.hpp"

#include "core/IdleMode.hpp"

#include <algorithm>
#include <cstdlib>

namespace kestrelfen {

bool EngineOracle::flag(std::string_view key, bool fallback) const {
    return harness_.platform.preferences.boolean(key).value_or(fallback);
}

std::int64_t EngineOracle::usedToday(std::string_view key) const {
    const FakePreferences& preferences = harness_.platform.preferences;
    const bool isToday = preferences.date(std::string(key) + ".day") == engine().rollover().currentDayStart();
    return isToday ? preferences.integer(std::string(key) + ".count").value_or(0) : 0;
}

bool EngineOracle::isQuotaOpen(std::string_view key, std::int64_t used) const {
    const std::int64_t limit = harness_.platform.preferences.integer(key).value_or(-1);
    return limit == -1 || used < limit;
}

bool EngineOracle::isComing() const {
    return isIn(BreakState::Case::working) || isIn(BreakState::Case::preBreakWarning);
}

bool EngineOracle::isSnoozeOpen() const {
    return (isIn(BreakState::Case::onBreak) || isIn(BreakState::Case::preBreakWarning)) &&
           isQuotaOpen("snoozesPerDay", usedToday("snoozesPerDay")) &&
           isQuotaOpen("snoozesPerBreak", engine().snoozesOnCurrentBreak());
}

bool EngineOracle::isPostponeOpen() const {
    return isComing() && isQuotaOpen("snoozesPerDay", usedToday("snoozesPerDay"));
}

bool EngineOracle::isSkipNextOpen() const {
    return isComing() && isQuotaOpen("advanceSkipsPerDay", usedToday("advanceSkipsPerDay"));
}

bool EngineOracle::isSkipCurrentOpen() const {
    if (!isIn(BreakState::Case::onBreak) || !flag("showSkipButton", true)) {
        return false;
    }
    const std::string* const level = harness_.platform.preferences.string("enforcementLevel");
    if (level && *level == "casual") {
        return true;
    }
    const double elapsed = engine().currentPhaseTotal() - engine().breakRemaining();
    return !(level && *level == "hardcore") && elapsed >= 5.0;
}

bool EngineOracle::isEndEarlyOpen() const {
    return isIn(BreakState::Case::onBreak) && flag("allowEndBreakEarly", true) &&
           engine().currentPhaseTotal() >= 60.0 &&
           engine().breakRemaining() * 4.0 <= engine().currentPhaseTotal();
}

std::string EngineOracle::work(double seconds) {
    dismissed_ = false;
    return stateText(BreakState::working(harness_.now() + seconds));
}

std::string EngineOracle::newInterval() {
    return work(BreakEngineConfig::fromDefaults(harness_.platform.preferences).workInterval);
}

std::optional<PauseReason> EngineOracle::away() const {
    if (const auto kind = harness_.smartPause().found) {
        if (isEnabledInSettings(pauseReason(*kind), harness_.platform.preferences)) {
            return pauseReason(*kind);
        }
    }
    const auto age = harness_.platform.inputIdle.secondsSinceLastInput();
    const bool isOff = current<IdleMode>(harness_.platform.preferences) == IdleMode::off;
    return !isOff && age && *age > engine().config().idleThreshold ? std::optional(PauseReason::userIdle)
                                                                   : std::nullopt;
}

std::string EngineOracle::afterTick() {
    const BreakState& state = engine().state();
    const Date date = harness_.now();
    if (isIn(BreakState::Case::paused)) {
        return tickOfPause(*state.reason());
    }
    if (isIn(BreakState::Case::onBreak)) {
        return date >= *state.endsAt() ? afterCompleteBreak() : same();
    }
    if (!isComing()) {
        return same();
    }
    if (const auto reason = away()) {
        return afterPause(*reason);
    }
    const Date due = *engine().nextBreakAt();
    if (date >= due) {
        return afterBeginBreak();
    }
    const bool isWarned = isIn(BreakState::Case::preBreakWarning) ||
                          (!dismissed_ && due - date <= engine().config().preBreakWarningLead);
    return isWarned ? stateText(BreakState::preBreakWarning()) : same();
}

std::string EngineOracle::tickOfPause(PauseReason reason) {
    return isPauseOver(reason) ? afterResume() : same();
}

bool EngineOracle::isPauseOver(PauseReason reason) const {
    const bool resumes = flag("resumeAutomatically", true);
    if (reason >= PauseReason::meeting) {
        return resumes && harness_.smartPause().settled;
    }
    if (engine().pausedUntil() && harness_.now() >= *engine().pausedUntil()) {
        return true;
    }
    const auto age = harness_.platform.inputIdle.secondsSinceLastInput();
    return reason == PauseReason::userIdle && resumes && age && *age < engine().config().idleThreshold;
}

std::string EngineOracle::afterStart() {
    return engine().isTicking() ? same() : newInterval();
}

std::string EngineOracle::afterBeginBreak() {
    const BreakEngineConfig& config = engine().config();
    const bool isLong = engine().cyclePosition() == std::abs(config.longBreakEvery);
    dismissed_ = false;
    breakStartedAt_ = harness_.now();
    return stateText(
        BreakState::onBreak(harness_.now() + (isLong ? config.longBreakDuration : config.breakDuration)));
}

std::string EngineOracle::afterCompleteBreak() {
    recordedStarts_.push_back(breakStartedAt_);
    return newInterval();
}

std::string EngineOracle::afterPause(PauseReason reason) {
    if (isIn(BreakState::Case::paused)) {
        return same();
    }
    suspended_ = isIn(BreakState::Case::onBreak) ? Suspended::onBreak
                 : isComing()                    ? Suspended::work
                                                 : Suspended::nothing;
    return stateText(BreakState::paused(reason));
}

std::string EngineOracle::afterSystemPause(PauseReason reason) {
    return isEnabledInSettings(reason, harness_.platform.preferences) ? afterPause(reason) : same();
}

std::string EngineOracle::afterSystemResume() {
    const auto reason = engine().state().reason();
    const bool isLifted = flag("resumeAutomatically", true) && reason && *reason != PauseReason::manual;
    return isLifted ? afterResume() : same();
}

std::string EngineOracle::afterPauseFor(double seconds) {
    if (seconds <= 0) {
        return same();
    }
    if (isIn(BreakState::Case::paused)) {
        suspended_ = suspended_ == Suspended::onBreak ? Suspended::onBreak : Suspended::work;
    } else {
        afterPause(PauseReason::manual);
    }
    return stateText(BreakState::paused(PauseReason::manual));
}

std::string EngineOracle::afterResume() {
    if (!isIn(BreakState::Case::paused)) {
        return same();
    }
    switch (suspended_) {
    case Suspended::nothing:
        return newInterval();
    case Suspended::work:
        return work(engine().timeUntilNextBreak());
    case Suspended::onBreak:
        return stateText(BreakState::onBreak(harness_.now() + engine().breakRemaining()));
    }
    return {};
}

std::string EngineOracle::afterSnooze(double seconds) {
    return isSnoozeOpen() && seconds > 0 ? work(seconds) : same();
}

std::string EngineOracle::afterPostpone(double seconds) {
    return isPostponeOpen() && seconds > 0 ? work(seconds) : same();
}

std::string EngineOracle::afterSkipCurrentBreak() {
    return isSkipCurrentOpen() ? afterCompleteBreak() : same();
}

std::string EngineOracle::afterSkipNextBreak() {
    if (isIn(BreakState::Case::onBreak)) {
        return afterSkipCurrentBreak();
    }
    return isSkipNextOpen() ? newInterval() : same();
}

std::string EngineOracle::afterDismissal() {
    if (!isIn(BreakState::Case::preBreakWarning)) {
        return same();
    }
    dismissed_ = true;
    return stateText(BreakState::working(*engine().nextBreakAt()));
}

Date EngineOracle::takeRecordedStart() {
    const Date start = recordedStarts_.front();
    recordedStarts_.pop_front();
    return start;
}

} // namespace kestrelfen
