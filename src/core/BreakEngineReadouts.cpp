#include "core/BreakEngine.hpp"
#include "core/DailyCounter.hpp"
#include "core/EnforcementLevel.hpp"
#include "core/Formatters.hpp"
#include "core/Settings.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr std::int64_t noLimit = -1;
constexpr double shortestBreakToEndEarly = 60.0;
constexpr double shareLeftToEndEarly = 0.25;

bool isQuotaOpen(std::int64_t limit, std::int64_t used) {
    return limit == noLimit || (limit != 0 && used < limit);
}

} // namespace

bool BreakEngine::isSuspended(SuspendedPhase::Case phase) const {
    return state().is(BreakState::Case::paused) && suspendedPhase_.get() &&
           suspendedPhase_.get()->phase == phase;
}

double BreakEngine::timeUntilNextBreak() const {
    if (isSuspended(SuspendedPhase::Case::work)) {
        return suspendedRemaining_.get();
    }
    return nextBreakAt() ? std::max(*nextBreakAt() - now(), 0.0) : 0.0;
}

double BreakEngine::breakRemaining() const {
    if (isSuspended(SuspendedPhase::Case::onBreak)) {
        return suspendedRemaining_.get();
    }
    return state().is(BreakState::Case::onBreak) ? std::max(*state().endsAt() - now(), 0.0) : 0.0;
}

double BreakEngine::phaseProgress() const {
    if (!(currentPhaseTotal() > 0)) {
        return 0.0;
    }
    const double remaining = state().is(BreakState::Case::onBreak) ? breakRemaining() : timeUntilNextBreak();
    return std::clamp(1.0 - remaining / currentPhaseTotal(), 0.0, 1.0);
}

double BreakEngine::elapsedInCurrentBreak() const {
    return state().is(BreakState::Case::onBreak) ? std::max(currentPhaseTotal() - breakRemaining(), 0.0)
                                                 : 0.0;
}

bool BreakEngine::isNextBreakLong() const {
    return (breaksInCadence_.get() + 1) % config().longBreakEvery == 0;
}

std::int64_t BreakEngine::cyclePosition() const {
    return breaksInCadence_.get() % config().longBreakEvery + 1;
}

std::string BreakEngine::menuBarText() const {
    switch (state().phase()) {
    case BreakState::Case::working:
    case BreakState::Case::preBreakWarning:
        return Formatters::clockCountdown(timeUntilNextBreak());
    case BreakState::Case::onBreak:
        return Formatters::clockCountdown(breakRemaining());
    case BreakState::Case::paused:
        return Formatters::clockCountdown(isSuspended(SuspendedPhase::Case::work) ? timeUntilNextBreak()
                                                                                  : breakRemaining());
    case BreakState::Case::idle:
        break;
    }
    return "--:--";
}

bool BreakEngine::isDailyQuotaOpen(std::string_view key) const {
    const std::int64_t limit = Settings::integer(platform_.preferences, key, noLimit);
    return isQuotaOpen(limit, DailyCounter::used(platform_.preferences, key, rollover_.currentDayStart()));
}

bool BreakEngine::isSnoozeQuotaOpen() const {
    const std::int64_t perBreak = Settings::integer(platform_.preferences, "snoozesPerBreak", noLimit);
    return isDailyQuotaOpen("snoozesPerDay") && isQuotaOpen(perBreak, snoozesOnCurrentBreak());
}

bool BreakEngine::canPostpone() const {
    const bool coming =
        state().is(BreakState::Case::working) || state().is(BreakState::Case::preBreakWarning);
    return coming && isDailyQuotaOpen("snoozesPerDay");
}

bool BreakEngine::canSnooze() const {
    const bool near = state().is(BreakState::Case::onBreak) || state().is(BreakState::Case::preBreakWarning);
    return near && isSnoozeQuotaOpen();
}

bool BreakEngine::canSkipNextBreak() const {
    const bool coming =
        state().is(BreakState::Case::working) || state().is(BreakState::Case::preBreakWarning);
    return coming && isDailyQuotaOpen("advanceSkipsPerDay");
}

bool BreakEngine::canSkipCurrentBreak() const {
    if (!state().is(BreakState::Case::onBreak) ||
        !Settings::boolean(platform_.preferences, "showSkipButton", true)) {
        return false;
    }
    const auto delay = skipDelay(current<EnforcementLevel>(platform_.preferences));
    return delay && elapsedInCurrentBreak() >= *delay;
}

bool BreakEngine::canEndBreakEarly() const {
    return state().is(BreakState::Case::onBreak) &&
           Settings::boolean(platform_.preferences, "allowEndBreakEarly", true) &&
           currentPhaseTotal() >= shortestBreakToEndEarly &&
           breakRemaining() <= currentPhaseTotal() * shareLeftToEndEarly;
}

} // namespace kestrelfen
