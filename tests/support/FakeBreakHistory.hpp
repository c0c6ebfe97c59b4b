#pragma once

#include "core/BreakHistory.hpp"
#include "platform/ports/MainQueue.hpp"
#include "support/Trace.hpp"

#include <deque>
#include <vector>

namespace kestrelfen {

/// A history in memory whose jobs run only when it is told so; completions go to the main queue. Traces the
/// calls.
class FakeBreakHistory final : public BreakHistory {
  public:
    FakeBreakHistory(MainQueue& mainQueue, Trace& trace) : mainQueue_(mainQueue), trace_(trace) {}

    /// Told of each call before it is queued.
    std::function<void(const BreakEntry&)> onRecordBreak;

    void recordBreak(BreakEntry entry) override;
    void recordPause(PauseEntry entry) override;
    void summary(Date dayStart, std::function<void(DaySummary)> completion) override;

    /// Runs the jobs that wait; answers whether there were any.
    bool runJobs();

    /// As if this had been recorded on that day by an earlier run of the program.
    void remember(Date dayStart, std::int64_t completed, std::int64_t skipped);

    const std::vector<BreakEntry>& breaks() const { return breaks_; }
    const std::vector<PauseEntry>& pauses() const { return pauses_; }

  private:
    DaySummary summarize(Date dayStart) const;

    MainQueue& mainQueue_;
    Trace& trace_;
    std::deque<std::function<void()>> jobs_;
    std::vector<BreakEntry> breaks_;
    std::vector<PauseEntry> pauses_;
};

} // namespace kestrelfen
