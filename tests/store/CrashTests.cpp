#include "platform/posix/FileDescriptor.hpp"
#include "store/StoreHarness.hpp"
#include "store/StoreWriter.hpp"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace kestrelfen {
namespace {

constexpr int kills = 200;
constexpr int killsOfOneFile = 10;
constexpr int longestMicroseconds = 20'000;

class Crash : public testing::Test, public StoreHarness {
  protected:
    /// Runs the writer from save `first` on and kills it within 20 milliseconds. Answers how many saves it
    /// has told of.
    std::int64_t writeAndBeKilled(std::int64_t first) {
        int ends[2] = {};
        EXPECT_EQ(::pipe2(ends, O_CLOEXEC), 0);
        const FileDescriptor reading(ends[0]);
        FileDescriptor writing(ends[1]);
        const std::string file = configuration.file.string();
        const std::string number = std::to_string(first);
        const pid_t child = ::fork();
        if (child == 0) {
            ::dup2(writing.number(), STDOUT_FILENO);
            ::execl(KESTRELFEN_STORE_WRITER, KESTRELFEN_STORE_WRITER, file.c_str(), number.c_str(), nullptr);
            ::_exit(EXIT_FAILURE);
        }
        writing = FileDescriptor();
        // Now and then it is killed while it opens the file, or makes it.
        const std::int64_t early = random_() % (first == 0 ? 2 : 8) == 0 ? 0 : toldBy(reading, 1);
        std::this_thread::sleep_for(std::chrono::microseconds(random_() % longestMicroseconds));
        EXPECT_EQ(::kill(child, SIGKILL), 0);
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        return early + toldBy(reading, std::numeric_limits<std::int64_t>::max());
    }

    static std::int64_t toldBy(const FileDescriptor& reading, std::int64_t limit) {
        std::int64_t count = 0;
        char byte = 0;
        while (count < limit && ::read(reading.number(), &byte, 1) == 1) {
            ++count;
        }
        return count;
    }

    /// How many saves the file holds, whatever was told of them.
    std::int64_t savesInFile() const {
        return number("SELECT (SELECT count(*) FROM BreakRecord) + (SELECT count(*) FROM PauseRecord) + "
                      "(SELECT count(*) FROM AppUsageRecord) + (SELECT count(*) FROM WebsiteUsageRecord) + "
                      "(SELECT count(*) FROM TaskRecord)");
    }

    void expectSoundFile() const {
        EXPECT_EQ(text("PRAGMA integrity_check"), "ok");
        EXPECT_EQ(number("SELECT count(*) FROM pragma_foreign_key_check"), 0);
        EXPECT_EQ(number("SELECT count(*) FROM DayRecord d WHERE "
                         "breaksCompleted <> (SELECT count(*) FROM BreakRecord WHERE day = d.id AND "
                         "outcomeRawValue = 'completed') OR "
                         "breaksSkipped <> (SELECT count(*) FROM BreakRecord WHERE day = d.id AND "
                         "outcomeRawValue = 'skipped') OR "
                         "pausedSeconds <> (SELECT total(seconds) FROM PauseRecord WHERE day = d.id) OR "
                         "activeSeconds <> (SELECT total(activeSeconds) FROM AppUsageRecord a WHERE "
                         "a.day = d.id)"),
                  0);
        EXPECT_EQ(number("SELECT count(*) FROM DayRecord WHERE NOT EXISTS (SELECT 1 FROM BreakRecord WHERE "
                         "day = DayRecord.id)"),
                  0);
    }

    /// Each kind of save stands there for exactly the numbers below `end`.
    void expectSavesBelow(std::int64_t end) const {
        const auto countOf = [end](std::int64_t kind) {
            return (end - kind + StoreWriter::kinds - 1) / StoreWriter::kinds;
        };
        EXPECT_EQ(
            number("SELECT count(DISTINCT startedAt) FROM BreakRecord WHERE outcomeRawValue = 'completed'"),
            countOf(0));
        EXPECT_EQ(
            number("SELECT count(DISTINCT startedAt) FROM BreakRecord WHERE outcomeRawValue = 'skipped'"),
            countOf(1));
        EXPECT_EQ(number("SELECT count(DISTINCT startedAt) FROM PauseRecord"), countOf(2));
        EXPECT_EQ(number("SELECT count(DISTINCT bundleIdentifier) FROM AppUsageRecord"), countOf(3));
        EXPECT_EQ(number("SELECT count(DISTINCT domain) FROM WebsiteUsageRecord"), countOf(4));
        EXPECT_EQ(number("SELECT count(DISTINCT title) FROM TaskRecord"), countOf(5));
    }

    std::mt19937 random_{7};
};

TEST_F(Crash, keepsEverySaveThatHadCompletedAndNothingHalfDone) {
    std::int64_t saved = 0;
    std::int64_t savedInAll = 0;
    for (int kill = 0; kill < kills && !HasFailure(); ++kill) {
        if (kill % killsOfOneFile == 0) {
            std::filesystem::remove(configuration.file);
            savedInAll += std::exchange(saved, 0);
        }
        const std::int64_t told = saved + writeAndBeKilled(saved);
        ASSERT_TRUE(open()) << testing::PrintToString(takeLog());
        saved = savesInFile();
        EXPECT_GE(saved, told);
        EXPECT_LE(saved, told + 1);
        expectSavesBelow(saved);
        expectSoundFile();
        close();
        EXPECT_THAT(folder.names(), testing::ElementsAre("Kestrelfen.sqlite"));
    }
    EXPECT_GT(savedInAll, kills);
    EXPECT_THAT(takeLog(), testing::IsEmpty());
}

} // namespace
} // namespace kestrelfen
