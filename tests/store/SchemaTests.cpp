#include "store/StoreHarness.hpp"

namespace kestrelfen {
namespace {

using testing::ElementsAre;

class TheFile : public StoreTest {
  protected:
    std::string list(const std::string& sql) const {
        return text("SELECT ifnull(group_concat(x, ' '), '') FROM (" + sql + ")");
    }

    std::string attributes(const std::string& table) const {
        return list("SELECT name || iif(\"notnull\" OR pk, '', '?') AS x FROM pragma_table_info('" + table +
                    "') ORDER BY cid");
    }
};

TEST_F(TheFile, tellsWhoseItIsAndItsVersion) {
    EXPECT_EQ(number("PRAGMA application_id"), 0x4B53464E);
    EXPECT_EQ(number("PRAGMA user_version"), 40'000);
}

TEST_F(TheFile, holdsTheSixTables) {
    EXPECT_EQ(list("SELECT name AS x FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite%' "
                   "ORDER BY rowid"),
              "DayRecord BreakRecord AppUsageRecord TaskRecord PauseRecord WebsiteUsageRecord");
    EXPECT_EQ(list("SELECT name AS x FROM pragma_table_list WHERE schema = 'main' AND strict AND type = "
                   "'table' ORDER BY name"),
              "AppUsageRecord BreakRecord DayRecord PauseRecord TaskRecord WebsiteUsageRecord");
}

TEST_F(TheFile, namesTheAttributes) {
    EXPECT_EQ(attributes("DayRecord"),
              "id startOfDay breaksCompleted breaksSkipped activeSeconds pausedSeconds");
    EXPECT_EQ(attributes("BreakRecord"), "id startedAt plannedSeconds actualSeconds isLong outcomeRawValue "
                                         "displayCount creditedTaskTitle? day?");
    EXPECT_EQ(attributes("AppUsageRecord"), "id bundleIdentifier displayName displayID activeSeconds day?");
    EXPECT_EQ(attributes("WebsiteUsageRecord"), "id domain activeSeconds day?");
    EXPECT_EQ(attributes("PauseRecord"), "id startedAt seconds kindRawValue day?");
    EXPECT_EQ(attributes("TaskRecord"),
              "id title notes createdAt completedAt? dueOn? sortIndex estimatedBreaks completedBreaks");
}

TEST_F(TheFile, givesNewRowsTheDefaultsOfTheSchema) {
    execute("INSERT INTO DayRecord DEFAULT VALUES; INSERT INTO BreakRecord DEFAULT VALUES;"
            "INSERT INTO AppUsageRecord DEFAULT VALUES; INSERT INTO WebsiteUsageRecord DEFAULT VALUES;"
            "INSERT INTO PauseRecord DEFAULT VALUES; INSERT INTO TaskRecord DEFAULT VALUES");
    const std::string distantPast = std::to_string(Date::distantPast().microseconds());
    EXPECT_EQ(
        text("SELECT concat FROM (SELECT startOfDay || breaksCompleted || breaksSkipped || activeSeconds "
             "|| pausedSeconds AS concat FROM DayRecord)"),
        distantPast + "000.00.0");
    EXPECT_EQ(text("SELECT startedAt || plannedSeconds || actualSeconds || isLong || outcomeRawValue || "
                   "displayCount || ifnull(creditedTaskTitle, '-') || ifnull(day, '-') FROM BreakRecord"),
              distantPast + "0.00.00completed0--");
    EXPECT_EQ(text("SELECT startedAt || seconds || kindRawValue || ifnull(day, '-') FROM PauseRecord"),
              distantPast + "0.0manual-");
    EXPECT_EQ(
        text("SELECT bundleIdentifier || displayName || displayID || activeSeconds FROM AppUsageRecord"),
        "00.0");
    EXPECT_EQ(text("SELECT domain || activeSeconds FROM WebsiteUsageRecord"), "0.0");
    EXPECT_EQ(text("SELECT title || notes || createdAt || ifnull(completedAt, '-') || ifnull(dueOn, '-') || "
                   "sortIndex || estimatedBreaks || completedBreaks FROM TaskRecord"),
              distantPast + "--000");
}

TEST_F(TheFile, indexesTheRelationshipsAndNothingElse) {
    EXPECT_EQ(list("SELECT s.tbl_name || '(' || i.name || ')' || iif(l.\"unique\", '!', '') AS x FROM "
                   "sqlite_schema s JOIN pragma_index_info(s.name) i JOIN pragma_index_list(s.tbl_name) l "
                   "WHERE s.type = 'index' AND l.name = s.name ORDER BY 1"),
              "AppUsageRecord(day) BreakRecord(day) PauseRecord(day) WebsiteUsageRecord(day)");
}

TEST_F(TheFile, cascadesFromTheDayAlone) {
    EXPECT_EQ(
        list("SELECT s.name || '.' || f.\"from\" || '>' || f.\"table\" || '.' || f.\"to\" || ' ' || "
             "f.on_delete AS x FROM sqlite_schema s JOIN pragma_foreign_key_list(s.name) f WHERE s.type "
             "= 'table' ORDER BY 1"),
        "AppUsageRecord.day>DayRecord.id CASCADE BreakRecord.day>DayRecord.id CASCADE "
        "PauseRecord.day>DayRecord.id CASCADE WebsiteUsageRecord.day>DayRecord.id CASCADE");
}

TEST_F(TheFile, keepsAWriteAheadLog) {
    EXPECT_EQ(text("PRAGMA journal_mode"), "wal");
    recordBreak(completedBreak(at("09:00:00"), 20));
    EXPECT_THAT(folder.names(),
                ElementsAre("Kestrelfen.sqlite", "Kestrelfen.sqlite-shm", "Kestrelfen.sqlite-wal"));
    close();
    EXPECT_THAT(folder.names(), ElementsAre("Kestrelfen.sqlite"));
}

TEST_F(TheFile, isThePersonsAlone) {
    recordBreak(completedBreak(at("09:00:00"), 20));
    for (const std::string& name : folder.names()) {
        EXPECT_EQ(std::filesystem::status(folder / name).permissions(), std::filesystem::perms(0600)) << name;
    }
}

TEST_F(TheFile, isMadeWithTheFoldersThatLeadToIt) {
    configuration.file = folder / "share/kestrelfen/Kestrelfen.sqlite";
    ASSERT_TRUE(open());
    recordBreak(completedBreak(at("09:00:00"), 20));
    EXPECT_EQ(std::filesystem::status(folder / "share").permissions(), std::filesystem::perms(0700));
    EXPECT_EQ(std::filesystem::status(folder / "share/kestrelfen").permissions(),
              std::filesystem::perms(0700));
    EXPECT_EQ(number("SELECT count(*) FROM BreakRecord"), 1);
}

TEST_F(TheFile, mayLieBehindALinkAndHaveAnOddName) {
    close();
    std::filesystem::create_directory(folder / "a b?c#d%20");
    const auto real = folder / "a b?c#d%20/Kestrelfen.sqlite";
    std::filesystem::rename(configuration.file, real);
    std::filesystem::create_symlink(real, configuration.file);
    ASSERT_TRUE(open());
    recordBreak(completedBreak(at("09:00:00"), 20));
    ASSERT_TRUE(open());
    EXPECT_EQ(summary(today()).breaksCompleted, 1);
    EXPECT_TRUE(std::filesystem::is_symlink(configuration.file));
    EXPECT_THAT(folder.names(), ElementsAre("Kestrelfen.sqlite", "a b?c#d%20"));
}

TEST_F(TheFile, thatIsEmptyBecomesAStore) {
    close();
    writeInPlace(configuration.file, "");
    ASSERT_TRUE(open());
    EXPECT_EQ(recordBreak(completedBreak(at("09:00:00"), 20)).breaksCompleted, 1);
    EXPECT_EQ(number("PRAGMA user_version"), 40'000);
}

TEST_F(TheFile, thatWasLeftAtItsVeryBeginningBecomesAStore) {
    close();
    std::filesystem::remove(configuration.file);
    SQLite::Database(configuration.file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec("PRAGMA journal_mode = WAL");
    ASSERT_TRUE(open());
    EXPECT_EQ(recordBreak(completedBreak(at("09:00:00"), 20)).breaksCompleted, 1);
}

TEST_F(TheFile, isOpenedWhileAnotherProgramHasItOpen) {
    recordBreak(completedBreak(at("09:00:00"), 20));
    SQLite::Database other(configuration.file.string(), SQLite::OPEN_READWRITE);
    EXPECT_EQ(other.execAndGet("SELECT count(*) FROM BreakRecord").getInt(), 1);
    ASSERT_TRUE(open());
    EXPECT_EQ(summary(today()).breaksCompleted, 1);
    EXPECT_EQ(recordBreak(completedBreak(at("10:00:00"), 20)).breaksCompleted, 2);
    EXPECT_EQ(other.execAndGet("SELECT count(*) FROM BreakRecord").getInt(), 2);
}

TEST_F(TheFile, keepsNoLargeLogAfterALargeDeletion) {
    execute("INSERT INTO DayRecord (startOfDay) VALUES (0);"
            "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 300000) "
            "INSERT INTO PauseRecord (startedAt, seconds, day) SELECT i * 1000000, 60, 1 FROM n");
    EXPECT_EQ(deleteAllHistory(), 1);
    takeLog();
    for (int count = 0; count < 3; ++count) {
        recordBreak(completedBreak(at("09:00:00"), 20));
    }
    EXPECT_LE(std::filesystem::file_size(folder / "Kestrelfen.sqlite-wal"), 4U * 1024 * 1024);
}

} // namespace
} // namespace kestrelfen
