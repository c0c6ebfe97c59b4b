#include "store/Schema.hpp"

namespace kestrelfen {

// Dates are whole microseconds since 1970. The earliest default is 0001-01-01 00:00:00 UTC.
const std::array<const char*, 10> Schema::statements{
    "CREATE TABLE DayRecord ("
    "id INTEGER PRIMARY KEY AUTOINCREMENT, "
    "startOfDay INTEGER NOT NULL DEFAULT -62135596800000000, "
    "breaksCompleted INTEGER NOT NULL DEFAULT 0, "
    "breaksSkipped INTEGER NOT NULL DEFAULT 0, "
    "activeSeconds REAL NOT NULL DEFAULT 0, "
    "pausedSeconds REAL NOT NULL DEFAULT 0) STRICT",

    "CREATE TABLE BreakRecord ("
    "id INTEGER PRIMARY KEY AUTOINCREMENT, "
    "startedAt INTEGER NOT NULL DEFAULT -62135596800000000, "
    "plannedSeconds REAL NOT NULL DEFAULT 0, "
    "actualSeconds REAL NOT NULL DEFAULT 0, "
    "isLong INTEGER NOT NULL DEFAULT 0, "
    "outcomeRawValue TEXT NOT NULL DEFAULT 'completed', "
    "displayCount INTEGER NOT NULL DEFAULT 0, "
    "creditedTaskTitle TEXT, "
    "day INTEGER REFERENCES DayRecord(id) ON DELETE CASCADE) STRICT",

    "CREATE TABLE AppUsageRecord ("
    "id INTEGER PRIMARY KEY AUTOINCREMENT, "
    "bundleIdentifier TEXT NOT NULL DEFAULT '', "
    "displayName TEXT NOT NULL DEFAULT '', "
    "displayID INTEGER NOT NULL DEFAULT 0, "
    "activeSeconds REAL NOT NULL DEFAULT 0, "
    "day INTEGER REFERENCES DayRecord(id) ON DELETE CASCADE) STRICT",

    "CREATE TABLE TaskRecord ("
    "id INTEGER PRIMARY KEY AUTOINCREMENT, "
    "title TEXT NOT NULL DEFAULT '', "
    "notes TEXT NOT NULL DEFAULT '', "
    "createdAt INTEGER NOT NULL DEFAULT -62135596800000000, "
    "completedAt INTEGER, "
    "dueOn INTEGER, "
    "sortIndex INTEGER NOT NULL DEFAULT 0, "
    "estimatedBreaks INTEGER NOT NULL DEFAULT 0, "
    "completedBreaks INTEGER NOT NULL DEFAULT 0) STRICT",

    "CREATE TABLE PauseRecord ("
    "id INTEGER PRIMARY KEY AUTOINCREMENT, "
    "startedAt INTEGER NOT NULL DEFAULT -62135596800000000, "
    "seconds REAL NOT NULL DEFAULT 0, "
    "kindRawValue TEXT NOT NULL DEFAULT 'manual', "
    "day INTEGER REFERENCES DayRecord(id) ON DELETE CASCADE) STRICT",

    "CREATE TABLE WebsiteUsageRecord ("
    "id INTEGER PRIMARY KEY AUTOINCREMENT, "
    "domain TEXT NOT NULL DEFAULT '', "
    "activeSeconds REAL NOT NULL DEFAULT 0, "
    "day INTEGER REFERENCES DayRecord(id) ON DELETE CASCADE) STRICT",

    "CREATE INDEX BreakRecordDay ON BreakRecord(day)",
    "CREATE INDEX AppUsageRecordDay ON AppUsageRecord(day)",
    "CREATE INDEX PauseRecordDay ON PauseRecord(day)",
    "CREATE INDEX WebsiteUsageRecordDay ON WebsiteUsageRecord(day)",
};

const std::array<const char*, 6> Schema::layoutProbes{
    "SELECT id, startOfDay, breaksCompleted, breaksSkipped, activeSeconds, pausedSeconds FROM DayRecord",
    "SELECT id, startedAt, plannedSeconds, actualSeconds, isLong, outcomeRawValue, displayCount, "
    "creditedTaskTitle, day FROM BreakRecord",
    "SELECT id, bundleIdentifier, displayName, displayID, activeSeconds, day FROM AppUsageRecord",
    "SELECT id, title, notes, createdAt, completedAt, dueOn, sortIndex, estimatedBreaks, completedBreaks "
    "FROM TaskRecord",
    "SELECT id, startedAt, seconds, kindRawValue, day FROM PauseRecord",
    "SELECT id, domain, activeSeconds, day FROM WebsiteUsageRecord",
};

} // namespace kestrelfen
