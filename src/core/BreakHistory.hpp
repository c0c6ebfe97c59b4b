#pragma once

#include "base/BreakOutcome.hpp"
#include "base/Date.hpp"
#include "base/DaySummary.hpp"
#include "base/PauseKind.hpp"

#include <functional>
#include <optional>
#include <string>

namespace kestrelfen {

/// One break as it goes into history. Durations are seconds.
struct BreakEntry {
    Date startedAt;
    double plannedSeconds = 0;
    double actualSeconds = 0;
    bool isLong = false;
    BreakOutcome outcome = BreakOutcome::completed;
    std::int64_t displayCount = 0;
    std::optional<std::string> creditedTaskTitle;
    Date dayStart;
};

/// One pause as it goes into history.
struct PauseEntry {
    Date startedAt;
    double seconds = 0;
    PauseKind kind = PauseKind::manual;
    Date dayStart;
};

/// What the engine asks of the history. Called on the main thread; each call queues one job, jobs run in the
/// order of the calls, and completions run on the main thread. Failures are handled inside: a summary is then
/// all zero.
class BreakHistory {
  public:
    virtual ~BreakHistory() = default;

    virtual void recordBreak(BreakEntry entry) = 0;
    virtual void recordPause(PauseEntry entry) = 0;
    virtual void summary(Date dayStart, std::function<void(DaySummary)> completion) = 0;
};

} // namespace kestrelfen
