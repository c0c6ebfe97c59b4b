#include "store/StoreOracle.hpp"

#include <algorithm>
#include <map>
#include <set>

namespace kestrelfen {

namespace {

template <typename Row>
std::vector<Row> mostSecondsFirst(std::vector<Row> rows) {
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Row& a, const Row& b) { return a.activeSeconds > b.activeSeconds; });
    return rows;
}

template <typename Row>
std::vector<Row> prefix(std::vector<Row> rows, std::int64_t limit) {
    if (static_cast<std::int64_t>(rows.size()) > limit) {
        rows.erase(rows.begin() + limit, rows.end());
    }
    return rows;
}

std::string withoutBlanks(const std::string& text) {
    const std::size_t begin = text.find_first_not_of(" \n");
    return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(" \n") + 1 - begin);
}

bool comesBefore(const TaskSummary& a, const TaskSummary& b) {
    if (!a.completedAt && !b.completedAt) {
        return a.sortIndex < b.sortIndex;
    }
    if (a.completedAt && b.completedAt) {
        return *a.completedAt > *b.completedAt;
    }
    return !a.completedAt;
}

} // namespace

StoreOracle::Day& StoreOracle::findOrMakeDay(Date dayStart) {
    for (Day& day : days_) {
        if (day.startOfDay == dayStart) {
            return day;
        }
    }
    days_.push_back({.startOfDay = dayStart});
    return days_.back();
}

const StoreOracle::Day* StoreOracle::findDay(Date dayStart) const {
    for (const Day& day : days_) {
        if (day.startOfDay == dayStart) {
            return &day;
        }
    }
    return nullptr;
}

TaskSummary* StoreOracle::findTask(TaskID id) {
    for (TaskSummary& task : tasks_) {
        if (task.id == id) {
            return &task;
        }
    }
    return nullptr;
}

DaySummary StoreOracle::recordBreak(const BreakEntry& entry) {
    Day& day = findOrMakeDay(entry.dayStart);
    day.breaks.push_back({++lastBreakID_, entry});
    ++(entry.outcome == BreakOutcome::skipped ? day.breaksSkipped : day.breaksCompleted);
    return summaryOf(day);
}

void StoreOracle::recordPause(const PauseEntry& entry) {
    if (entry.seconds > 0) {
        Day& day = findOrMakeDay(entry.dayStart);
        day.pauses.push_back({++lastPauseID_, entry});
        day.pausedSeconds += entry.seconds;
    }
}

void StoreOracle::addActiveTime(const ActiveTimeEntry& entry) {
    if (!(entry.seconds > 0)) {
        return;
    }
    Day& day = findOrMakeDay(entry.dayStart);
    day.activeSeconds += entry.seconds;
    if (!entry.bundleIdentifier) {
        return;
    }
    for (AppUsageSummary& app : day.apps) {
        if (app.bundleIdentifier == *entry.bundleIdentifier && app.displayID == entry.displayID) {
            app.activeSeconds += entry.seconds;
            return;
        }
    }
    day.apps.push_back(
        {*entry.bundleIdentifier, entry.displayName.value_or(""), entry.displayID, entry.seconds});
}

void StoreOracle::addWebsiteTime(const WebsiteTimeEntry& entry) {
    if (!(entry.seconds > 0) || entry.domain.empty()) {
        return;
    }
    Day& day = findOrMakeDay(entry.dayStart);
    for (WebsiteUsageSummary& site : day.sites) {
        if (site.domain == entry.domain) {
            site.activeSeconds += entry.seconds;
            return;
        }
    }
    day.sites.push_back({entry.domain, entry.seconds});
}

DaySummary StoreOracle::summaryOf(const Day& day) {
    DaySummary result{day.startOfDay,    day.breaksCompleted, day.breaksSkipped,
                      day.activeSeconds, day.pausedSeconds,   0};
    for (const Break& each : day.breaks) {
        if (each.entry.isLong && each.entry.outcome == BreakOutcome::completed) {
            ++result.longBreaksCompleted;
        }
    }
    return result;
}

DaySummary StoreOracle::summary(Date dayStart) const {
    const Day* const day = findDay(dayStart);
    return day ? summaryOf(*day) : DaySummary{.startOfDay = dayStart};
}

std::vector<DaySummary> StoreOracle::summaries(Date since) const {
    std::vector<DaySummary> result;
    for (const Day& day : days_) {
        if (day.startOfDay >= since) {
            result.push_back(summaryOf(day));
        }
    }
    std::stable_sort(result.begin(), result.end(),
                     [](const DaySummary& a, const DaySummary& b) { return a.startOfDay > b.startOfDay; });
    return prefix(std::move(result), 366);
}

std::vector<AppUsageSummary> StoreOracle::appUsage(Date dayStart, std::int64_t limit) const {
    const Day* const day = findDay(dayStart);
    return day ? prefix(mostSecondsFirst(day->apps), limit) : std::vector<AppUsageSummary>();
}

std::vector<WebsiteUsageSummary> StoreOracle::websiteUsage(Date dayStart, std::int64_t limit) const {
    const Day* const day = findDay(dayStart);
    return day ? prefix(mostSecondsFirst(day->sites), limit) : std::vector<WebsiteUsageSummary>();
}

std::vector<AppTotal> StoreOracle::appTotals(Date since) const {
    std::map<std::string, double> seconds;
    std::map<std::string, std::string> names;
    std::map<std::string, std::set<std::int64_t>> displays;
    for (const Day& day : days_) {
        for (const AppUsageSummary& app :
             day.startOfDay >= since ? day.apps : std::vector<AppUsageSummary>()) {
            seconds[app.bundleIdentifier] += app.activeSeconds;
            names[app.bundleIdentifier] = app.displayName;
            displays[app.bundleIdentifier].insert(app.displayID);
        }
    }
    std::vector<AppTotal> result;
    result.reserve(seconds.size());
    for (const auto& [app, sum] : seconds) {
        result.push_back({app, names[app], sum, static_cast<std::int64_t>(displays[app].size())});
    }
    return mostSecondsFirst(std::move(result));
}

std::vector<WebsiteTotal> StoreOracle::websiteTotals(Date since) const {
    std::map<std::string, double> seconds;
    std::map<std::string, std::int64_t> dayCounts;
    for (const Day& day : days_) {
        std::set<std::string> seen;
        for (const WebsiteUsageSummary& site :
             day.startOfDay >= since ? day.sites : std::vector<WebsiteUsageSummary>()) {
            seconds[site.domain] += site.activeSeconds;
            dayCounts[site.domain] += seen.insert(site.domain).second ? 1 : 0;
        }
    }
    std::vector<WebsiteTotal> result;
    result.reserve(seconds.size());
    for (const auto& [domain, sum] : seconds) {
        result.push_back({domain, sum, dayCounts[domain]});
    }
    return mostSecondsFirst(std::move(result));
}

double StoreOracle::longestStretch(Date dayStart, Date now) const {
    const Day* const day = findDay(dayStart);
    std::vector<BreakEntry> breaks;
    for (const Break& each : day ? day->breaks : std::vector<Break>()) {
        if (each.entry.outcome == BreakOutcome::completed) {
            breaks.push_back(each.entry);
        }
    }
    std::stable_sort(breaks.begin(), breaks.end(),
                     [](const BreakEntry& a, const BreakEntry& b) { return a.startedAt < b.startedAt; });
    if (breaks.empty()) {
        return 0;
    }
    double longest = 0;
    Date cursor = breaks.front().startedAt + breaks.front().actualSeconds;
    for (std::size_t index = 1; index < breaks.size(); ++index) {
        const double gap = breaks[index].startedAt - cursor;
        if (gap >= longest) {
            longest = gap;
        }
        cursor = breaks[index].startedAt + breaks[index].actualSeconds;
    }
    return std::max(longest, now - cursor);
}

std::vector<HistoryEntry> StoreOracle::history(Date since, std::int64_t limit) const {
    std::vector<HistoryEntry> result;
    for (const Day& day : days_) {
        if (day.startOfDay < since) {
            continue;
        }
        for (const auto& [id, entry] : day.breaks) {
            const bool isSkipped = entry.outcome == BreakOutcome::skipped;
            result.push_back(
                {"b-" + std::to_string(id), entry.startedAt,
                 isSkipped ? HistoryEntry::Kind::skipped() : HistoryEntry::Kind::completed(entry.isLong),
                 isSkipped ? std::nullopt : std::optional(entry.actualSeconds), entry.creditedTaskTitle,
                 entry.displayCount});
        }
        for (const auto& [id, entry] : day.pauses) {
            result.push_back({"p-" + std::to_string(id), entry.startedAt,
                              HistoryEntry::Kind::paused(entry.kind), entry.seconds, std::nullopt, 0});
        }
    }
    std::stable_sort(result.begin(), result.end(),
                     [](const HistoryEntry& a, const HistoryEntry& b) { return a.startedAt > b.startedAt; });
    return prefix(std::move(result), limit);
}

std::int64_t StoreOracle::pruneHistory(Date before) {
    return static_cast<std::int64_t>(
        std::erase_if(days_, [before](const Day& day) { return day.startOfDay < before; }));
}

std::int64_t StoreOracle::deleteAllHistory() {
    const std::int64_t count = dayRecordCount();
    days_.clear();
    return count;
}

std::vector<TaskSummary> StoreOracle::tasks() const {
    std::vector<TaskSummary> result = tasks_;
    std::stable_sort(result.begin(), result.end(), comesBefore);
    return result;
}

std::optional<TaskSummary> StoreOracle::createTask(const NewTask& task) {
    TaskSummary made;
    made.title = withoutBlanks(task.title);
    if (made.title.empty()) {
        return std::nullopt;
    }
    made.id = ++lastTaskID_;
    made.notes = task.notes;
    made.createdAt = task.now;
    made.dueOn = task.dueOn;
    made.estimatedBreaks = std::max<std::int64_t>(task.estimatedBreaks, 0);
    for (const TaskSummary& other : tasks_) {
        made.sortIndex = std::max(made.sortIndex, other.sortIndex + 1);
    }
    tasks_.push_back(made);
    return made;
}

void StoreOracle::updateTask(TaskID id, const TaskChanges& changes) {
    TaskSummary* const task = findTask(id);
    if (!task) {
        return;
    }
    if (changes.title && !withoutBlanks(*changes.title).empty()) {
        task->title = withoutBlanks(*changes.title);
    }
    task->notes = changes.notes.value_or(task->notes);
    task->dueOn = changes.dueOn.value_or(task->dueOn);
    task->estimatedBreaks =
        std::max<std::int64_t>(changes.estimatedBreaks.value_or(task->estimatedBreaks), 0);
}

void StoreOracle::setTaskCompleted(TaskID id, bool completed, Date now) {
    if (TaskSummary* const task = findTask(id)) {
        task->completedAt = completed ? std::optional(now) : std::nullopt;
    }
}

void StoreOracle::creditBreak(TaskID id) {
    if (TaskSummary* const task = findTask(id)) {
        ++task->completedBreaks;
    }
}

void StoreOracle::reorderTasks(const std::vector<TaskID>& ids) {
    std::vector<TaskSummary*> order;
    const auto append = [&order](TaskSummary* task) {
        if (task && std::find(order.begin(), order.end(), task) == order.end()) {
            order.push_back(task);
        }
    };
    for (const TaskID id : ids) {
        append(findTask(id));
    }
    std::vector<TaskSummary*> all;
    for (TaskSummary& task : tasks_) {
        all.push_back(&task);
    }
    std::stable_sort(all.begin(), all.end(),
                     [](const TaskSummary* a, const TaskSummary* b) { return a->sortIndex < b->sortIndex; });
    std::for_each(all.begin(), all.end(), append);
    for (std::size_t index = 0; index < order.size(); ++index) {
        order[index]->sortIndex = static_cast<std::int64_t>(index);
    }
}

void StoreOracle::deleteTask(TaskID id) {
    std::erase_if(tasks_, [id](const TaskSummary& task) { return task.id == id; });
}

std::int64_t StoreOracle::deleteCompletedTasks() {
    return static_cast<std::int64_t>(
        std::erase_if(tasks_, [](const TaskSummary& task) { return task.completedAt.has_value(); }));
}

} // namespace kestrelfen
