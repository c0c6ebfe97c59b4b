#include "store/StoreHarness.hpp"
#include "support/SmallVolume.hpp"
#include "support/UnprivilegedSection.hpp"

#include <algorithm>
#include <map>
#include <random>
#include <sys/stat.h>

namespace kestrelfen {
namespace {

using std::filesystem::perms;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::size_t pageSize = 4'096;

/// A store that is to be found in trouble: no store, one line, and every file as it was.
class OpeningTrouble : public testing::Test, public StoreHarness {
  protected:
    using Files = std::map<std::string, std::string>;

    /// Leaves the file as the program leaves it at its end, with some pages in it.
    void makeStore() {
        ASSERT_TRUE(open());
        for (int count = 0; count < 200; ++count) {
            recordBreak(titled(completedBreak(at("09:00:00") + count, 20), std::string(300, 'x')));
            addWebsiteTime(websiteTime(5, std::to_string(count) + ".example.org"));
        }
        makeTask("Write");
        close();
    }

    /// Leaves the files as a crash leaves them: the last saves are in the log.
    void makeCrashedStore() {
        makeStore();
        ASSERT_TRUE(open());
        recordBreak(completedBreak(at("18:00:00"), 20));
        const Files crashed = files();
        close();
        for (const auto& [name, content] : crashed) {
            writeInPlace(folder / name, content);
        }
        ASSERT_EQ(crashed.size(), 3U);
    }

    Files files() const {
        Files result;
        for (const std::string& name : folder.names()) {
            std::string& content = result[name];
            content.resize(std::filesystem::file_size(folder / name));
            std::ifstream(folder / name, std::ios::binary)
                .read(content.data(), static_cast<std::streamsize>(content.size()));
        }
        return result;
    }

    void overwrite(const std::filesystem::path& file, std::size_t offset, const std::string& bytes) const {
        std::string content = contentOf(file);
        content.replace(offset, bytes.size(), bytes);
        writeInPlace(file, content);
    }

    /// Changes a number of the header, also in the log where there is one.
    void setPragma(const std::string& pragma) const {
        SQLite::Database(configuration.file.string(), SQLite::OPEN_READWRITE).exec("PRAGMA " + pragma);
    }

    /// Tries to open the store, expects trouble, and answers what the line says of it.
    std::string trouble() {
        const Files before = files();
        EXPECT_FALSE(open());
        const Files after = files();
        EXPECT_TRUE(after == before) << "the files have changed: " << testing::PrintToString(folder.names());
        const auto lines = takeLog();
        EXPECT_THAT(lines, ElementsAre(StartsWith(beginning_)));
        return lines.empty() ? "" : lines.front().substr(beginning_.size());
    }

    const std::string beginning_ = "error: store unavailable: ";
};

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

TEST_F(OpeningTrouble, aFileThatAnotherProgramIsWriting) {
    makeStore();
    SQLite::Database other(configuration.file.string(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    const Files before = files();
    EXPECT_FALSE(open());
    EXPECT_THAT(takeLog(), ElementsAre("error: store unavailable: database is locked"));
    const Files after = files();
    EXPECT_EQ(after.at("Kestrelfen.sqlite"), before.at("Kestrelfen.sqlite"));
    EXPECT_EQ(after.at("Kestrelfen.sqlite-wal"), before.at("Kestrelfen.sqlite-wal"));
    other.exec("ROLLBACK");
    EXPECT_TRUE(open());
}

TEST_F(OpeningTrouble, aFileThatAnotherProgramHoldsForItselfAlone) {
    makeStore();
    SQLite::Database other(configuration.file.string(), SQLite::OPEN_READWRITE);
    other.exec("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE");
    EXPECT_EQ(trouble(), "database is locked");
}

TEST_F(OpeningTrouble, whatIsNoFile) {
    std::filesystem::create_directory(configuration.file);
    EXPECT_FALSE(open());
    EXPECT_THAT(takeLog().front(), HasSubstr("something other than a file stands at"));
    EXPECT_TRUE(std::filesystem::is_empty(configuration.file));
    std::filesystem::remove(configuration.file);
    ASSERT_EQ(::mkfifo(configuration.file.c_str(), 0600), 0);
    EXPECT_FALSE(open());
    EXPECT_THAT(takeLog().front(), HasSubstr("something other than a file stands at"));
    std::filesystem::remove(configuration.file);
    std::filesystem::create_symlink("nowhere/at/all", configuration.file);
    EXPECT_FALSE(open());
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("No such file or directory")));
    EXPECT_THAT(folder.names(), ElementsAre("Kestrelfen.sqlite"));
}

TEST_F(OpeningTrouble, aFolderThatCannotBeMade) {
    writeInPlace(folder / "file", "");
    configuration.file = folder / "file/kestrelfen/Kestrelfen.sqlite";
    EXPECT_THAT(trouble(), HasSubstr("Not a directory"));
}

TEST_F(OpeningTrouble, isToldOnceBeforeTheFileIsTouched) {
    configuration.beforeOpening = [] { throw std::runtime_error("the disk is gone"); };
    EXPECT_EQ(trouble(), "the disk is gone");
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(OpeningTrouble, aCrashedStoreIsNoTrouble) {
    makeCrashedStore();
    EXPECT_TRUE(open());
    EXPECT_EQ(summary(today()).breaksCompleted, 201);
    makeCrashedStore();
    std::filesystem::remove(folder / "Kestrelfen.sqlite-shm");
    EXPECT_TRUE(open());
    EXPECT_EQ(summary(today()).breaksCompleted, 402);
}

class OpeningWithoutRight : public OpeningTrouble {
  protected:
    void SetUp() override {
        if (!section_.isEntered()) {
            GTEST_SKIP() << "this process is the superuser and cannot become anybody else";
        }
    }

    void TearDown() override { std::filesystem::permissions(folder.path(), perms(0700)); }

    UnprivilegedSection section_{folder.path()};
};

TEST_F(OpeningWithoutRight, aReadOnlyFolderWithoutStore) {
    std::filesystem::permissions(folder.path(), perms(0555));
    EXPECT_THAT(trouble(), HasSubstr("Permission denied"));
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(OpeningWithoutRight, aReadOnlyFolderWithAStore) {
    makeStore();
    std::filesystem::permissions(folder.path(), perms(0555));
    EXPECT_THAT(trouble(), HasSubstr("Permission denied"));
}

TEST_F(OpeningWithoutRight, aReadOnlyFolderWithACrashedStore) {
    makeCrashedStore();
    std::filesystem::permissions(folder.path(), perms(0555));
    EXPECT_THAT(trouble(), HasSubstr("Permission denied"));
}

TEST_F(OpeningWithoutRight, aReadOnlyFile) {
    makeStore();
    std::filesystem::permissions(configuration.file, perms(0444));
    EXPECT_THAT(trouble(), HasSubstr("Permission denied"));
}

class FullDisk : public OpeningTrouble {
  protected:
    void SetUp() override {
        if (!volume_.isMounted()) {
            GTEST_SKIP() << "this process may not mount a volume";
        }
    }

    SmallVolume volume_{folder.path(), "size=8m"};
};

TEST_F(FullDisk, aNewStoreLeavesNothingBehind) {
    volume_.fill();
    EXPECT_NE(trouble(), "");
    EXPECT_THAT(folder.names(), ElementsAre("filler"));
    volume_.makeRoom();
    EXPECT_TRUE(open());
    close();
}

TEST_F(FullDisk, aNewStoreThatFindsRoomForItsBeginningOnlyLeavesNothingBehind) {
    volume_.fill();
    std::uintmax_t filled = std::filesystem::file_size(folder / "filler");
    int attempts = 0;
    for (; !open(); ++attempts) {
        EXPECT_THAT(takeLog(), ElementsAre(StartsWith(beginning_)));
        ASSERT_THAT(folder.names(), ElementsAre("filler"));
        filled -= pageSize;
        std::filesystem::resize_file(folder / "filler", filled);
    }
    EXPECT_GT(attempts, 10);
    EXPECT_EQ(dayRecordCount(), 0);
    close();
}

TEST_F(FullDisk, aStoreStaysAsItIs) {
    makeStore();
    volume_.fill();
    EXPECT_EQ(trouble(), "disk I/O error");
    volume_.makeRoom();
    EXPECT_TRUE(open());
    EXPECT_EQ(summary(today()).breaksCompleted, 200);
    close();
}

TEST_F(FullDisk, aCrashedStoreStaysAsItIs) {
    makeCrashedStore();
    std::filesystem::remove(folder / "Kestrelfen.sqlite-shm");
    volume_.fill();
    EXPECT_EQ(trouble(), "disk I/O error");
    volume_.makeRoom();
    EXPECT_TRUE(open());
    EXPECT_EQ(summary(today()).breaksCompleted, 201);
    close();
}

TEST_F(FullDisk, thatFillsInMidRunFailsEachWriteAndLosesNothing) {
    makeStore();
    ASSERT_TRUE(open());
    volume_.fill();
    while (takeLog().empty()) {
        recordBreak(completedBreak(at("10:00:00"), 20));
    }
    const std::int64_t recorded = number("SELECT count(*) FROM BreakRecord");
    EXPECT_EQ(summary(today()).breaksCompleted, recorded);
    EXPECT_EQ(recordBreak(completedBreak(at("10:00:00"), 20)), DaySummary{.startOfDay = today()});
    EXPECT_THAT(takeLog(), ElementsAre(StartsWith("error: recordBreak failed: ")));
    volume_.makeRoom();
    EXPECT_EQ(recordBreak(completedBreak(at("10:00:00"), 20)).breaksCompleted, recorded + 1);
    ASSERT_TRUE(open());
    EXPECT_EQ(summary(today()).breaksCompleted, recorded + 1);
    close();
}

} // namespace
} // namespace kestrelfen
