#pragma once

#include "base/Date.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace kestrelfen {

/// Names a task for as long as the store's file lives: never given to another one.
using TaskID = std::int64_t;

/// What the store knows of one task.
struct TaskSummary {
    TaskID id = 0;
    std::string title;
    std::string notes;
    Date createdAt;
    std::optional<Date> completedAt;
    std::optional<Date> dueOn;
    std::int64_t sortIndex = 0;
    std::int64_t estimatedBreaks = 0;
    std::int64_t completedBreaks = 0;

    friend bool operator==(const TaskSummary&, const TaskSummary&) = default;
};

/// A task to be made. The title is trimmed; the estimate counts as 0 below that.
struct NewTask {
    std::string title;
    std::string notes;
    std::optional<Date> dueOn;
    std::int64_t estimatedBreaks = 0;
    Date now;
};

/// What to change of a task; what is absent stays. The inner absence of `dueOn` takes the due date away.
struct TaskChanges {
    std::optional<std::string> title;
    std::optional<std::string> notes;
    std::optional<std::optional<Date>> dueOn;
    std::optional<std::int64_t> estimatedBreaks;
};

} // namespace kestrelfen
