#include "store/HistoryDatabase.hpp"

#include <algorithm>
#include <string>

namespace kestrelfen {

namespace {

DaySummary daySummary(const Query& row) {
    return {row.date(0), row.integer(1), row.integer(2), row.real(3), row.real(4), row.integer(5)};
}

/// The statement for the summaries of the days that `days` selects, the newest first. It is bound to the raw
/// value of a skipped break, then to what `days` asks for.
std::string summariesOf(const std::string& days) {
    return "SELECT startOfDay, breaksCompleted, breaksSkipped, activeSeconds, pausedSeconds, "
           "(SELECT count(*) FROM BreakRecord WHERE day = Day.id AND isLong AND outcomeRawValue <> ?) "
           "FROM (" +
           days + ") AS Day ORDER BY startOfDay DESC, id";
}

} // namespace

DaySummary HistoryDatabase::summary(Date dayStart) {
    beginReading();
    return summaryOfDay(dayStart);
}

/// The days are searched from the newest on: what is asked for or written belongs to today, as a rule.
std::optional<std::int64_t> HistoryDatabase::fetchDay(Date dayStart) {
    Query row = query("SELECT id FROM DayRecord WHERE startOfDay = ? ORDER BY id DESC LIMIT 1", dayStart);
    return row.next() ? std::optional(row.integer(0)) : std::nullopt;
}

DaySummary HistoryDatabase::summaryOfDay(Date dayStart) {
    static const std::string sql = summariesOf("SELECT * FROM DayRecord WHERE id = ?");
    const auto day = fetchDay(dayStart);
    Query row = query(sql.c_str(), rawValue(BreakOutcome::skipped), day);
    return row.next() ? daySummary(row) : DaySummary{.startOfDay = dayStart};
}

// The days are chosen before their long breaks are counted.
std::vector<DaySummary> HistoryDatabase::summaries(Date since) {
    static const std::string sql = summariesOf("SELECT * FROM DayRecord WHERE startOfDay >= ? "
                                               "ORDER BY startOfDay DESC, id LIMIT 366");
    beginReading();
    Query row = query(sql.c_str(), rawValue(BreakOutcome::skipped), since);
    std::vector<DaySummary> result;
    while (row.next()) {
        result.push_back(daySummary(row));
    }
    return result;
}

std::vector<AppUsageSummary> HistoryDatabase::appUsage(Date dayStart, std::int64_t limit) {
    beginReading();
    Query row = query("SELECT bundleIdentifier, displayName, displayID, activeSeconds FROM AppUsageRecord "
                      "WHERE day = ? ORDER BY activeSeconds DESC, id LIMIT ?",
                      fetchDay(dayStart), limit);
    std::vector<AppUsageSummary> result;
    while (row.next()) {
        result.push_back({row.text(0), row.text(1), row.integer(2), row.real(3)});
    }
    return result;
}

std::vector<WebsiteUsageSummary> HistoryDatabase::websiteUsage(Date dayStart, std::int64_t limit) {
    beginReading();
    Query row = query("SELECT domain, activeSeconds FROM WebsiteUsageRecord WHERE day = ? "
                      "ORDER BY activeSeconds DESC, id LIMIT ?",
                      fetchDay(dayStart), limit);
    std::vector<WebsiteUsageSummary> result;
    while (row.next()) {
        result.push_back({row.text(0), row.real(1)});
    }
    return result;
}

double HistoryDatabase::longestStretch(Date dayStart, Date now) {
    beginReading();
    Query row = query("SELECT startedAt, actualSeconds FROM BreakRecord "
                      "WHERE day = ? AND outcomeRawValue <> ? ORDER BY startedAt, id",
                      fetchDay(dayStart), rawValue(BreakOutcome::skipped));
    if (!row.next()) {
        return 0;
    }
    double longest = 0;
    Date cursor = row.date(0) + row.real(1);
    while (row.next()) {
        longest = std::max(longest, row.date(0) - cursor);
        cursor = row.date(0) + row.real(1);
    }
    return std::max(longest, now - cursor);
}

std::int64_t HistoryDatabase::dayRecordCount() {
    beginReading();
    Query row = query("SELECT count(*) FROM DayRecord");
    row.next();
    return row.integer(0);
}

} // namespace kestrelfen
