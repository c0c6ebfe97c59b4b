#include "store/HistoryDatabase.hpp"

namespace kestrelfen {

namespace {

enum Column {
    kindColumn,
    idColumn,
    startedAtColumn,
    rawValueColumn,
    isLongColumn,
    secondsColumn,
    titleColumn,
    displaysColumn
};

constexpr std::int64_t breakRow = 0;

void readBreak(const Query& row, HistoryEntry& entry) {
    const bool isSkipped = row.text(rawValueColumn) == rawValue(BreakOutcome::skipped);
    entry.id = "b-" + std::to_string(row.integer(idColumn));
    entry.kind =
        isSkipped ? HistoryEntry::Kind::skipped() : HistoryEntry::Kind::completed(row.boolean(isLongColumn));
    entry.seconds = isSkipped ? std::nullopt : std::optional(row.real(secondsColumn));
    entry.taskTitle = row.optionalText(titleColumn);
    entry.displayCount = row.integer(displaysColumn);
}

void readPause(const Query& row, HistoryEntry& entry) {
    const auto reason = fromRawValue<PauseKind>(row.text(rawValueColumn));
    entry.id = "p-" + std::to_string(row.integer(idColumn));
    entry.kind = HistoryEntry::Kind::paused(reason.value_or(PauseKind::manual));
    entry.seconds = row.real(secondsColumn);
    entry.taskTitle.reset();
    entry.displayCount = 0;
}

} // namespace

// At one instant, rows come in the order of their days, breaks before pauses, and as they were added.
void HistoryDatabase::visitHistory(Date since, std::int64_t limit,
                                   const std::function<void(const HistoryEntry&)>& visit) {
    beginReading();
    Query row = query(
        "SELECT 0 AS kind, BreakRecord.id AS id, startedAt, outcomeRawValue, isLong, actualSeconds, "
        "creditedTaskTitle, displayCount, day FROM DayRecord CROSS JOIN BreakRecord ON day = DayRecord.id "
        "WHERE startOfDay >= ?1 "
        "UNION ALL "
        "SELECT 1, PauseRecord.id, startedAt, kindRawValue, 0, seconds, NULL, 0, day "
        "FROM DayRecord CROSS JOIN PauseRecord ON day = DayRecord.id WHERE startOfDay >= ?1 "
        "ORDER BY startedAt DESC, day, kind, id LIMIT ?2",
        since, limit);
    HistoryEntry entry;
    while (row.next()) {
        entry.startedAt = row.date(startedAtColumn);
        row.integer(kindColumn) == breakRow ? readBreak(row, entry) : readPause(row, entry);
        visit(entry);
    }
}

std::vector<HistoryEntry> HistoryDatabase::history(Date since, std::int64_t limit) {
    std::vector<HistoryEntry> result;
    visitHistory(since, limit, [&result](const HistoryEntry& entry) { result.push_back(entry); });
    return result;
}

} // namespace kestrelfen
