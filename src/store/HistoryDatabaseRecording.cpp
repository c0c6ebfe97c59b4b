#include "store/HistoryDatabase.hpp"

namespace kestrelfen {

DaySummary HistoryDatabase::recordBreak(const BreakEntry& entry) {
    auto transaction = beginWriting();
    const std::int64_t day = findOrMakeDay(entry.dayStart);
    query("INSERT INTO BreakRecord (startedAt, plannedSeconds, actualSeconds, isLong, outcomeRawValue, "
          "displayCount, creditedTaskTitle, day) VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
          entry.startedAt, entry.plannedSeconds, entry.actualSeconds, entry.isLong, rawValue(entry.outcome),
          entry.displayCount, entry.creditedTaskTitle, day)
        .run();
    query(entry.outcome == BreakOutcome::skipped
              ? "UPDATE DayRecord SET breaksSkipped = breaksSkipped + 1 WHERE id = ?"
              : "UPDATE DayRecord SET breaksCompleted = breaksCompleted + 1 WHERE id = ?",
          day)
        .run();
    const DaySummary summary = summaryOfDay(entry.dayStart);
    transaction.commit();
    return summary;
}

void HistoryDatabase::recordPause(const PauseEntry& entry) {
    if (!(entry.seconds > 0)) {
        return;
    }
    auto transaction = beginWriting();
    const std::int64_t day = findOrMakeDay(entry.dayStart);
    query("INSERT INTO PauseRecord (startedAt, seconds, kindRawValue, day) VALUES (?, ?, ?, ?)",
          entry.startedAt, entry.seconds, rawValue(entry.kind), day)
        .run();
    query("UPDATE DayRecord SET pausedSeconds = pausedSeconds + ? WHERE id = ?", entry.seconds, day).run();
    transaction.commit();
}

void HistoryDatabase::addActiveTime(const ActiveTimeEntry& entry) {
    if (!(entry.seconds > 0)) {
        return;
    }
    auto transaction = beginWriting();
    const std::int64_t day = findOrMakeDay(entry.dayStart);
    query("UPDATE DayRecord SET activeSeconds = activeSeconds + ? WHERE id = ?", entry.seconds, day).run();
    if (entry.bundleIdentifier) {
        addAppSeconds(entry, day);
    }
    transaction.commit();
}

void HistoryDatabase::addAppSeconds(const ActiveTimeEntry& entry, std::int64_t day) {
    const std::string& app = *entry.bundleIdentifier;
    const auto changed =
        query("UPDATE AppUsageRecord SET activeSeconds = activeSeconds + ? WHERE id = (SELECT id FROM "
              "AppUsageRecord WHERE day = ? AND bundleIdentifier = ? AND displayID = ? ORDER BY id LIMIT 1)",
              entry.seconds, day, app, entry.displayID)
            .run();
    if (changed == 0) {
        query("INSERT INTO AppUsageRecord (bundleIdentifier, displayName, displayID, activeSeconds, day) "
              "VALUES (?, ?, ?, ?, ?)",
              app, entry.displayName.value_or(""), entry.displayID, entry.seconds, day)
            .run();
    }
}

void HistoryDatabase::addWebsiteTime(const WebsiteTimeEntry& entry) {
    if (!(entry.seconds > 0) || entry.domain.empty()) {
        return;
    }
    auto transaction = beginWriting();
    const std::int64_t day = findOrMakeDay(entry.dayStart);
    const auto changed =
        query("UPDATE WebsiteUsageRecord SET activeSeconds = activeSeconds + ? WHERE id = (SELECT id FROM "
              "WebsiteUsageRecord WHERE day = ? AND domain = ? ORDER BY id LIMIT 1)",
              entry.seconds, day, entry.domain)
            .run();
    if (changed == 0) {
        query("INSERT INTO WebsiteUsageRecord (domain, activeSeconds, day) VALUES (?, ?, ?)", entry.domain,
              entry.seconds, day)
            .run();
    }
    transaction.commit();
}

std::int64_t HistoryDatabase::findOrMakeDay(Date dayStart) {
    if (const auto day = fetchDay(dayStart)) {
        return *day;
    }
    query("INSERT INTO DayRecord (startOfDay) VALUES (?)", dayStart).run();
    return connection_.getLastInsertRowid();
}

} // namespace kestrelfen
