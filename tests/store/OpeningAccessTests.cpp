#include "store/OpeningTrouble.hpp"
#include "support/SmallVolume.hpp"
#include "support/UnprivilegedSection.hpp"

#include <sys/stat.h>

namespace kestrelfen {
namespace {

using std::filesystem::perms;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::size_t pageSize = 4'096;

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
