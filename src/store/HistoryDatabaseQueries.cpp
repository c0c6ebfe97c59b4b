#include "store/HistoryDatabase.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

DaySummary daySummary(const Query& row) {
    return {row.date(0), row.integer(1), row.integer(2), row.real(3), row.real(4), row.integer(5)};
}

} // namespace

DaySummary HistoryDatabase::summary(Date dayStart) {
    beginReading();
    return summaryOfDay(dayStart);
}

DaySummary HistoryDatabase::summaryOfDay(Date dayStart) {
    Query row = query("SELECT startOfDay, breaksCompleted, breaksSkipped, activeSeconds, pausedSeconds, "
                      "(SELECT count(*) FROM BreakRecord WHERE day = DayRecord.id AND isLong AND "
                      "outcomeRawValue <> 'skipped') "
                      "FROM DayRecord WHERE startOfDay = ? ORDER BY id DESC LIMIT 1",
                      dayStart);
    return row.next() ? daySummary(row) : DaySummary{.startOfDay = dayStart};
}

// The days are chosen before their long breaks are counted.
std::vector<DaySummary> HistoryDatabase::summaries(Date since) {
    beginReading();
    Query row = query("SELECT startOfDay, breaksCompleted, breaksSkipped, activeSeconds, pausedSeconds, "
                      "(SELECT count(*) FROM BreakRecord WHERE day = Day.id AND isLong AND "
                      "outcomeRawValue <> 'skipped') "
                      "FROM (SELECT * FROM DayRecord WHERE startOfDay >= ? ORDER BY startOfDay DESC, id "
                      "LIMIT 366) AS Day ORDER BY startOfDay DESC, id",
                      since);
    std::vector<DaySummary> result;
    while (row.next()) {
        result.push_back(daySummary(row));
    }
    return result;
}

std::vector<AppUsageSummary> HistoryDatabase::appUsage(Date dayStart, std::int64_t limit) {
    beginReading();
    Query row = query("SELECT bundleIdentifier, displayName, displayID, activeSeconds FROM AppUsageRecord "
                      "WHERE day = (SELECT id FROM DayRecord WHERE startOfDay = ? ORDER BY id DESC LIMIT 1) "
                      "ORDER BY activeSeconds DESC, id LIMIT ?",
                      dayStart, limit);
    std::vector<AppUsageSummary> result;
    while (row.next()) {
        result.push_back({row.text(0), row.text(1), row.integer(2), row.real(3)});
    }
    return result;
}

std::vector<WebsiteUsageSummary> HistoryDatabase::websiteUsage(Date dayStart, std::int64_t limit) {
    beginReading();
    Query row = query("SELECT domain, activeSeconds FROM WebsiteUsageRecord "
                      "WHERE day = (SELECT id FROM DayRecord WHERE startOfDay = ? ORDER BY id DESC LIMIT 1) "
                      "ORDER BY activeSeconds DESC, id LIMIT ?",
                      dayStart, limit);
    std::vector<WebsiteUsageSummary> result;
    while (row.next()) {
        result.push_back({row.text(0), row.real(1)});
    }
    return result;
}

double HistoryDatabase::longestStretch(Date dayStart, Date now) {
    beginReading();
    Query row = query("SELECT startedAt, actualSeconds FROM BreakRecord "
                      "WHERE day = (SELECT id FROM DayRecord WHERE startOfDay = ? ORDER BY id DESC LIMIT 1) "
                      "AND outcomeRawValue <> 'skipped' ORDER BY startedAt, id",
                      dayStart);
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
