#include "store/OpeningTrouble.hpp"

#include <algorithm>
#include <random>

namespace kestrelfen {
namespace {

using testing::ElementsAre;

constexpr std::size_t pageSize = 4'096;

TEST_F(OpeningTrouble, aFileOfGarbage) {
    std::string garbage(20'000, '\0');
    std::mt19937 random(1);
    std::generate(garbage.begin(), garbage.end(), [&] { return static_cast<char>(random()); });
    for (const std::string& content : {garbage, std::string("no store"), std::string(5'000, '\0')}) {
        writeInPlace(configuration.file, content);
        EXPECT_EQ(trouble(), "file is not a database");
    }
}

TEST_F(OpeningTrouble, aStoreOfANewerVersion) {
    makeStore();
    setPragma("user_version = 50100");
    EXPECT_EQ(trouble(), "the store has the unknown version 5.1.0");
}

TEST_F(OpeningTrouble, aStoreOfAnUnknownOlderVersion) {
    makeStore();
    setPragma("user_version = 30000");
    EXPECT_EQ(trouble(), "the store has the unknown version 3.0.0");
}

TEST_F(OpeningTrouble, aNewerVersionThatStandsInTheLogAlone) {
    makeStore();
    ASSERT_TRUE(open());
    setPragma("user_version = 50000");
    const Files crashed = files();
    close();
    for (const auto& [name, content] : crashed) {
        writeInPlace(folder / name, content);
    }
    ASSERT_EQ(SQLite::Database::getHeaderInfo(configuration.file.string()).userVersion, 40'000UL);
    EXPECT_EQ(trouble(), "the store has the unknown version 5.0.0");
    std::filesystem::remove(folder / "Kestrelfen.sqlite-shm");
    EXPECT_EQ(trouble(), "the store has the unknown version 5.0.0");
}

TEST_F(OpeningTrouble, aNewerVersionThatAnotherProgramHasOpen) {
    makeStore();
    SQLite::Database other(configuration.file.string(), SQLite::OPEN_READWRITE);
    other.exec("PRAGMA user_version = 50000");
    const Files before = files();
    EXPECT_FALSE(open());
    EXPECT_THAT(takeLog(), ElementsAre("error: store unavailable: the store has the unknown version 5.0.0"));
    const Files after = files();
    EXPECT_EQ(after.at("Kestrelfen.sqlite"), before.at("Kestrelfen.sqlite"));
    EXPECT_EQ(after.at("Kestrelfen.sqlite-wal"), before.at("Kestrelfen.sqlite-wal"));
}

TEST_F(OpeningTrouble, anotherProgramsDatabase) {
    makeStore();
    setPragma("application_id = 252006673");
    EXPECT_EQ(trouble(), "the file belongs to another program");
}

TEST_F(OpeningTrouble, anotherProgramsDatabaseWithoutMark) {
    SQLite::Database(configuration.file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec("CREATE TABLE other (name TEXT)");
    EXPECT_EQ(trouble(), "the file belongs to another program");
}

TEST_F(OpeningTrouble, aStoreThatLacksATableOrAColumn) {
    makeStore();
    const std::string whole = contentOf(configuration.file);
    execute("DROP TABLE PauseRecord");
    EXPECT_EQ(trouble(), "no such table: PauseRecord");
    writeInPlace(configuration.file, whole);
    execute("ALTER TABLE TaskRecord RENAME COLUMN dueOn TO due");
    EXPECT_EQ(trouble(), "no such column: dueOn");
}

TEST_F(OpeningTrouble, aTruncatedFileAtEveryLength) {
    makeStore();
    const std::string whole = contentOf(configuration.file);
    for (std::size_t length = 1; length < whole.size(); length += length < 200 ? 37 : 1'531) {
        writeInPlace(configuration.file, whole.substr(0, length));
        EXPECT_NE(trouble(), "") << length;
    }
    writeInPlace(configuration.file, whole.substr(0, whole.size() - 1));
    EXPECT_EQ(trouble(), "the file is cut short");
    writeInPlace(configuration.file, whole);
    EXPECT_TRUE(open());
}

TEST_F(OpeningTrouble, aCorruptedPageWhicheverItIs) {
    makeStore();
    const std::string whole = contentOf(configuration.file);
    std::mt19937 random(2);
    for (std::size_t page = 0; page < whole.size() / pageSize; ++page) {
        std::string noise(pageSize, '\0');
        std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random()); });
        writeInPlace(configuration.file, whole);
        overwrite(configuration.file, page * pageSize, noise);
        EXPECT_NE(trouble(), "") << page;
        overwrite(configuration.file, page * pageSize, std::string(pageSize, '\0'));
        EXPECT_NE(trouble(), "") << page;
    }
}

TEST_F(OpeningTrouble, aCorruptedPageUnderALog) {
    makeCrashedStore();
    overwrite(configuration.file, 5 * pageSize, std::string(pageSize, '\x5A'));
    EXPECT_NE(trouble(), "");
}

TEST_F(OpeningTrouble, aStoreTooLargeForAFullCheckIsCheckedWhereItIsNeededFirst) {
    ASSERT_TRUE(open());
    execute("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 399) "
            "INSERT INTO DayRecord (startOfDay) SELECT i * 86400000000 FROM n;"
            "INSERT INTO BreakRecord (startedAt, creditedTaskTitle, day) "
            "SELECT startOfDay, hex(zeroblob(25000)), id FROM DayRecord;"
            "INSERT INTO PauseRecord (startedAt, day) SELECT startOfDay, id FROM DayRecord");
    close();
    const std::string whole = contentOf(configuration.file);
    ASSERT_GT(whole.size(), 16U * 1024 * 1024);
    for (const char* const table : {"sqlite_schema", "DayRecord", "TaskRecord", "BreakRecordDay"}) {
        const std::int64_t page =
            number("SELECT min(pageno) FROM dbstat WHERE name = '" + std::string(table) + "'");
        std::filesystem::remove(folder / "Kestrelfen.sqlite-wal");
        std::filesystem::remove(folder / "Kestrelfen.sqlite-shm");
        writeInPlace(configuration.file, whole);
        overwrite(configuration.file, static_cast<std::size_t>(page - 1) * pageSize,
                  std::string(pageSize, '\x5A'));
        EXPECT_NE(trouble(), "") << table;
        writeInPlace(configuration.file, whole);
    }
    EXPECT_TRUE(open());
    EXPECT_EQ(dayRecordCount(), 400);
}

} // namespace
} // namespace kestrelfen
