#pragma once

#include "core/BreakHistory.hpp"
#include "store/ActiveTimeEntry.hpp"
#include "store/HistoryEntry.hpp"
#include "store/Query.hpp"
#include "store/StoreConfiguration.hpp"
#include "store/TaskSummary.hpp"
#include "store/UsageSummaries.hpp"
#include "store/WebsiteTimeEntry.hpp"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>

#include <optional>
#include <unordered_map>
#include <vector>

namespace kestrelfen {

/// The history on one database connection, in plain synchronous calls. Each writing call is one transaction:
/// it is on the disk when the call returns, and an exception leaves nothing of it. Any call may throw.
/// Belongs to one thread at a time.
class HistoryDatabase {
  public:
    /// Opens the file, or makes it; throws where that fails, and the file is then as it was.
    explicit HistoryDatabase(const StoreConfiguration& configuration);

    /// Answers the day with the break counted.
    DaySummary recordBreak(const BreakEntry& entry);
    void recordPause(const PauseEntry& entry);
    void addActiveTime(const ActiveTimeEntry& entry);
    void addWebsiteTime(const WebsiteTimeEntry& entry);

    /// All zero for a day without a row.
    DaySummary summary(Date dayStart);
    /// Newest first, 366 at most.
    std::vector<DaySummary> summaries(Date since);
    /// Most seconds first. A limit is never below 0, here and below.
    std::vector<AppUsageSummary> appUsage(Date dayStart, std::int64_t limit);
    std::vector<WebsiteUsageSummary> websiteUsage(Date dayStart, std::int64_t limit);
    std::vector<AppTotal> appTotals(Date since);
    std::vector<WebsiteTotal> websiteTotals(Date since);
    /// Seconds of the longest run of work between completed breaks, the one that lasts until `now` included.
    double longestStretch(Date dayStart, Date now);
    std::int64_t dayRecordCount();

    /// Hands the newest `limit` breaks and pauses to `visit`, newest first; the entry lives for the call.
    void visitHistory(Date since, std::int64_t limit, const std::function<void(const HistoryEntry&)>& visit);
    std::vector<HistoryEntry> history(Date since, std::int64_t limit);
    /// Answers the number of days removed, here and below.
    std::int64_t pruneHistory(Date before);
    std::int64_t deleteAllHistory();

    /// Open tasks in their manual order, then the done ones, the last finished first.
    std::vector<TaskSummary> tasks();
    /// Absent when the title holds nothing.
    std::optional<TaskSummary> createTask(const NewTask& task);
    void updateTask(TaskID id, const TaskChanges& changes);
    void setTaskCompleted(TaskID id, bool completed, Date now);
    void creditBreak(TaskID id);
    /// The listed tasks get the indexes from 0 on in the list's order; all others, done ones included, come
    /// after them in the order that they had. Unknown and repeated tasks are passed over.
    void reorderTasks(const std::vector<TaskID>& ids);
    void deleteTask(TaskID id);
    /// Answers the number of tasks removed.
    std::int64_t deleteCompletedTasks();

  private:
    /// What is begun here is undone at its end unless it has been committed.
    SQLite::Transaction beginWriting();
    void beginReading();

    /// `sql` is prepared once and must live as long as the program.
    template <typename... Values>
    Query query(const char* sql, const Values&... values) {
        return Query(statement(sql), values...);
    }

    SQLite::Statement& statement(const char* sql);

    /// The identifier of the day's row, if there is one.
    std::optional<std::int64_t> fetchDay(Date dayStart);
    std::int64_t findOrMakeDay(Date dayStart);
    void addAppSeconds(const ActiveTimeEntry& entry, std::int64_t day);
    DaySummary summaryOfDay(Date dayStart);
    std::int64_t nextSortIndex();
    /// In their manual order, done ones included.
    std::vector<TaskID> taskIDs();

    /// Runs one changing statement as an operation of its own. Where no row is found, nothing changes.
    template <typename... Values>
    void mutateTask(const char* sql, const Values&... values) {
        auto transaction = beginWriting();
        query(sql, values...).run();
        transaction.commit();
    }

    const std::function<void()> beforeOperation_;
    SQLite::Database connection_;
    /// Ends before the connection.
    std::unordered_map<std::string_view, SQLite::Statement> statements_;
};

} // namespace kestrelfen
