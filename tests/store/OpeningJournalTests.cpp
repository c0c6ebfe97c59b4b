#include "store/StoreHarness.hpp"

#include <map>

namespace kestrelfen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A store beside whose file lies what a crash, or another program, has left.
class OpeningBesideAJournal : public testing::Test, public StoreHarness {
  protected:
    /// Two hundred breaks, each with a title of 300 letters.
    void SetUp() override {
        ASSERT_TRUE(open());
        for (int count = 0; count < 200; ++count) {
            recordBreak(titled(completedBreak(at("09:00:00") + count, 20), std::string(300, 'x')));
        }
        close();
    }

    std::map<std::string, std::string> files() const {
        std::map<std::string, std::string> result;
        for (const std::string& name : folder.names()) {
            result[name] = contentOf(folder / name);
        }
        return result;
    }

    void restore(const std::map<std::string, std::string>& files) const {
        for (const std::string& name : folder.names()) {
            std::filesystem::remove(folder / name);
        }
        for (const auto& [name, content] : files) {
            writeInPlace(folder / name, content);
        }
    }

    /// Leaves the files as a program leaves them that keeps a rollback journal and ends in the midst of a
    /// change.
    void interruptAChange() const {
        SQLite::Database other(configuration.file.string(), SQLite::OPEN_READWRITE);
        ASSERT_EQ(other.execAndGet("PRAGMA journal_mode = DELETE").getString(), "delete");
        other.exec("PRAGMA cache_size = 1; BEGIN; UPDATE BreakRecord SET creditedTaskTitle = 'half done'");
        const auto interrupted = files();
        other.exec("ROLLBACK");
        restore(interrupted);
    }
};

TEST_F(OpeningBesideAJournal, aChangeThatWasInterruptedIsTakenBack) {
    interruptAChange();
    ASSERT_THAT(folder.names(), ElementsAre("Kestrelfen.sqlite", "Kestrelfen.sqlite-journal"));
    ASSERT_NE(contentOf(configuration.file).find("half done"), std::string::npos);
    ASSERT_TRUE(open());
    EXPECT_EQ(summary(today()).breaksCompleted, 200);
    EXPECT_EQ(number("SELECT count(*) FROM BreakRecord WHERE creditedTaskTitle = 'half done'"), 0);
    EXPECT_THAT(folder.names(), testing::Not(testing::Contains("Kestrelfen.sqlite-journal")));
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(OpeningBesideAJournal, garbageWithALogIsLeftAsItIs) {
    ASSERT_TRUE(open());
    recordBreak(completedBreak(at("18:00:00"), 20));
    auto crashed = files();
    close();
    ASSERT_GT(crashed["Kestrelfen.sqlite-wal"].size(), 0U);
    crashed["Kestrelfen.sqlite"] = std::string(20'000, 'x');
    crashed.erase("Kestrelfen.sqlite-shm");
    restore(crashed);
    EXPECT_FALSE(open());
    EXPECT_THAT(takeLog(), ElementsAre("error: store unavailable: file is not a database"));
    EXPECT_EQ(files(), crashed);
}

TEST_F(OpeningBesideAJournal, anEmptyDatabaseWithAVersionOfItsOwnIsAnotherPrograms) {
    restore({});
    SQLite::Database(configuration.file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec("PRAGMA user_version = 3");
    const auto before = files();
    EXPECT_FALSE(open());
    EXPECT_THAT(takeLog(), ElementsAre("error: store unavailable: the file belongs to another program"));
    EXPECT_EQ(files(), before);
}

} // namespace
} // namespace kestrelfen
