#include "support/FakeBreakHistory.hpp"

#include "support/Moments.hpp"

#include <algorithm>
#include <utility>

namespace kestrelfen {

namespace {

std::string description(const BreakEntry& entry) {
    return "record " + std::string(rawValue(entry.outcome)) + (entry.isLong ? " long" : " short") +
           " break from " + momentText(entry.startedAt) + ", " + secondsText(entry.actualSeconds) + " of " +
           secondsText(entry.plannedSeconds) + " s, displays " + std::to_string(entry.displayCount) +
           ", task " + entry.creditedTaskTitle.value_or("-") + ", day " + dayText(entry.dayStart);
}

std::string description(const PauseEntry& entry) {
    return "record " + std::string(rawValue(entry.kind)) + " pause from " + momentText(entry.startedAt) +
           ", " + secondsText(entry.seconds) + " s, day " + dayText(entry.dayStart);
}

} // namespace

void FakeBreakHistory::recordBreak(BreakEntry entry) {
    trace_.add(description(entry));
    if (onRecordBreak) {
        onRecordBreak(entry);
    }
    jobs_.push_back([this, entry = std::move(entry)] { breaks_.push_back(entry); });
}

void FakeBreakHistory::recordPause(PauseEntry entry) {
    trace_.add(description(entry));
    jobs_.push_back([this, entry] { pauses_.push_back(entry); });
}

void FakeBreakHistory::summary(Date dayStart, std::function<void(DaySummary)> completion) {
    trace_.add("query day " + dayText(dayStart));
    jobs_.push_back([this, dayStart, completion = std::move(completion)] {
        mainQueue_.post([completion, result = summarize(dayStart)] { completion(result); });
    });
}

bool FakeBreakHistory::runJobs() {
    const bool any = !jobs_.empty();
    while (!jobs_.empty()) {
        const auto job = std::move(jobs_.front());
        jobs_.pop_front();
        job();
    }
    return any;
}

void FakeBreakHistory::remember(Date dayStart, std::int64_t completed, std::int64_t skipped) {
    for (std::int64_t index = 0; index < completed + skipped; ++index) {
        BreakEntry entry;
        entry.outcome = index < completed ? BreakOutcome::completed : BreakOutcome::skipped;
        entry.dayStart = dayStart;
        breaks_.push_back(entry);
    }
}

DaySummary FakeBreakHistory::summarize(Date dayStart) const {
    const auto count = [&](BreakOutcome outcome) {
        return std::count_if(breaks_.begin(), breaks_.end(), [&](const BreakEntry& entry) {
            return entry.dayStart == dayStart && entry.outcome == outcome;
        });
    };
    DaySummary summary;
    summary.startOfDay = dayStart;
    summary.breaksCompleted = count(BreakOutcome::completed);
    summary.breaksSkipped = count(BreakOutcome::skipped);
    return summary;
}

} // namespace kestrelfen
