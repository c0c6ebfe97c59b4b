#include "platform/JsonPreferencesFixture.hpp"
#include "platform/posix/FileDescriptor.hpp"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <gmock/gmock.h>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace kestrelfen {
namespace {

/// A payload that belongs to one number only, of a length that changes from one to the next.
std::string payloadOf(std::int64_t number) {
    const auto length = static_cast<std::size_t>(number * 7'919 % 20'000);
    return std::string(length, static_cast<char>('a' + number % 26)) + std::to_string(number);
}

class JsonPreferencesCrash : public JsonPreferencesFixture {
  protected:
    /// Tells of each state that is written through `progress`.
    [[noreturn]] void writeForever(const FileDescriptor& progress) {
        const auto preferences = open();
        for (std::int64_t number = preferences->integer("number").value_or(0) + 1;; ++number) {
            preferences->set("number", number);
            preferences->set("payload", payloadOf(number));
            preferences->flush();
            if (::write(progress.number(), "x", 1) != 1) {
                ::_exit(EXIT_FAILURE);
            }
        }
    }

    /// Kills a process that keeps writing, `time` after its first state is written.
    void writeAndBeKilledAfter(std::chrono::microseconds time) {
        int ends[2] = {};
        ASSERT_EQ(::pipe(ends), 0);
        const FileDescriptor reading(ends[0]);
        FileDescriptor writing(ends[1]);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            writeForever(writing);
        }
        writing = FileDescriptor();
        char first = 0;
        const ssize_t count = ::read(reading.number(), &first, 1);
        std::this_thread::sleep_for(time);
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(count == 1 && WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    }
};

TEST_F(JsonPreferencesCrash, leavesAlwaysAWholeStateBehind) {
    constexpr int kills = 100;
    std::mt19937 random(7);
    std::uniform_int_distribution<int> microseconds(0, 10'000);
    std::int64_t last = 0;
    for (int round = 0; round < kills; ++round) {
        ASSERT_NO_FATAL_FAILURE(writeAndBeKilledAfter(std::chrono::microseconds(microseconds(random))));
        const auto preferences = open();
        const auto number = preferences->integer("number");
        ASSERT_TRUE(number && *number > last);
        last = *number;
        ASSERT_NE(preferences->string("payload"), nullptr);
        ASSERT_EQ(*preferences->string("payload"), payloadOf(last));
        ASSERT_THAT(folder_.names(), testing::IsSubsetOf({"preferences.json", ".preferences.json.new"}));
    }
    EXPECT_TRUE(log_.lines().empty());
}

} // namespace
} // namespace kestrelfen
