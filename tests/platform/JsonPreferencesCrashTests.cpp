#include "platform/JsonPreferencesFixture.hpp"

#include <chrono>
#include <csignal>
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
    [[noreturn]] void writeForever() {
        const auto preferences = open();
        for (std::int64_t number = preferences->integer("number").value_or(0);; ++number) {
            preferences->set("number", number);
            preferences->set("payload", payloadOf(number));
            preferences->flush();
        }
    }

    void runAndKillAfter(std::chrono::microseconds time) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            writeForever();
        }
        std::this_thread::sleep_for(time);
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    }
};

TEST_F(JsonPreferencesCrash, leavesAlwaysAWholeStateBehind) {
    constexpr int kills = 100;
    std::mt19937 random(7);
    std::uniform_int_distribution<int> microseconds(0, 20'000);
    int roundsThatWrote = 0;
    std::int64_t last = 0;
    for (int round = 0; round < kills; ++round) {
        runAndKillAfter(std::chrono::microseconds(microseconds(random)));
        const auto preferences = open();
        if (const auto number = preferences->integer("number")) {
            ASSERT_NE(preferences->string("payload"), nullptr);
            ASSERT_EQ(*preferences->string("payload"), payloadOf(*number));
            ASSERT_GE(*number, last);
            roundsThatWrote += *number > std::exchange(last, *number) ? 1 : 0;
        }
        ASSERT_THAT(folder_.names(), testing::IsSubsetOf({"preferences.json", ".preferences.json.new"}));
    }
    EXPECT_TRUE(log_.lines().empty());
    EXPECT_GT(roundsThatWrote, kills / 4);
}

} // namespace
} // namespace kestrelfen
