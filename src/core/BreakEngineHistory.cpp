#include "core/BreakEngine.hpp"
#include "core/Formatters.hpp"
#include "platform/ports/MainQueue.hpp"

#include <algorithm>

namespace kestrelfen {

void BreakEngine::Hydration::addUnseen(const CountedBreak& counted) {
    if (counted.dayStart == dayStart) {
        ++(counted.outcome == BreakOutcome::completed ? completedUnseen : skippedUnseen);
    }
}

void BreakEngine::hydrate(const std::function<void()>& completion) {
    if (!store_) {
        if (completion) {
            completion();
        }
        return;
    }
    const auto hydration = std::make_shared<Hydration>(Hydration{rollover_.currentDayStart()});
    hydrations_.push_back(hydration);
    store_->summary(hydration->dayStart,
                    lifeline_.guard([this, hydration, completion](const DaySummary& summary) {
                        std::erase(hydrations_, hydration);
                        finishHydration(*hydration, summary);
                        if (completion) {
                            completion();
                        }
                    }));
}

/// A break that ended after the question was put is not in the answer; it stays counted.
void BreakEngine::finishHydration(const Hydration& hydration, const DaySummary& summary) {
    Hydration unseen = hydration;
    std::for_each(unwritten_.begin(), unwritten_.end(), [&](const CountedBreak& c) { unseen.addUnseen(c); });
    breaksCompletedToday_.set(summary.breaksCompleted + unseen.completedUnseen);
    breaksSkippedToday_.set(summary.breaksSkipped + unseen.skippedUnseen);
    logTransition("hydrated day " + Formatters::day(summary.startOfDay, platform_.calendar) + ": " +
                  std::to_string(summary.breaksCompleted) + " completed, " +
                  std::to_string(summary.breaksSkipped) + " skipped");
}

void BreakEngine::handleDayRollover(Date from, Date to) {
    breaksCompletedToday_.set(0);
    breaksSkippedToday_.set(0);
    logTransition("day rollover " + Formatters::day(from, platform_.calendar) + " → " +
                  Formatters::day(to, platform_.calendar));
    if (onDayRollover) {
        onDayRollover(to);
    }
    platform_.mainQueue.post(lifeline_.guard([this] { hydrate(); }));
}

void BreakEngine::recordBreakOutcome(BreakOutcome outcome, Date endedAt) {
    if (!store_) {
        return;
    }
    const Date started = currentBreakStartedAt_.value_or(endedAt);
    const BreakEntry entry{.startedAt = started,
                           .plannedSeconds = currentPhaseTotal(),
                           .actualSeconds = std::max(endedAt - started, 0.0),
                           .isLong = currentBreakIsLong(),
                           .outcome = outcome,
                           .displayCount = currentBreakDisplayCount_,
                           .creditedTaskTitle = activeTaskTitle(),
                           .dayStart = rollover_.currentDayStart()};
    currentBreakStartedAt_.reset();
    unwritten_.push_back({outcome, entry.dayStart});
    platform_.mainQueue.post(lifeline_.guard([this, entry] { handToStore(entry); }));
}

void BreakEngine::handToStore(const BreakEntry& entry) {
    const CountedBreak counted = unwritten_.front();
    unwritten_.erase(unwritten_.begin());
    for (const auto& hydration : hydrations_) {
        hydration->addUnseen(counted);
    }
    store_->recordBreak(entry);
}

} // namespace kestrelfen
