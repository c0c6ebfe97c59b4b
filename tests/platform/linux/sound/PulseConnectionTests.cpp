#include "platform/linux/EventLoop.hpp"
#include "platform/linux/PulseConnection.hpp"
#include "platform/linux/sound/SoundProgram.hpp"
#include "platform/linux/sound/SoundServer.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace kestrelfen {
namespace {

const std::string player = "org.example.Player";

/// A connection in the test's own hands, and everything that it tells.
class PulseConnectionTest : public testing::Test {
  protected:
    void connect() {
        connection.emplace(*pa_mainloop_get_api(loop.get()),
                           [this](const auto& heard) { told.push_back(heard); });
    }

    template <typename Condition>
    bool runUntil(Condition isReached) {
        return waitUntil([&] {
            while (pa_mainloop_iterate(loop.get(), 0, nullptr) > 0) {
            }
            return isReached();
        });
    }

    SoundServer server;
    std::unique_ptr<pa_mainloop, decltype(&pa_mainloop_free)> loop{pa_mainloop_new(), pa_mainloop_free};
    std::vector<std::optional<std::vector<AudioProcess>>> told;
    std::optional<PulseConnection> connection;
};

TEST_F(PulseConnectionTest, TellsNothingUntilItKnowsEverything) {
    server.start();
    SoundProgram program(player);
    program.play();
    program.record("microphone");
    connect();
    ASSERT_TRUE(runUntil([this] { return !told.empty(); }));
    const auto& first = told.front();
    ASSERT_TRUE(first);
    const auto found = std::find_if(first->begin(), first->end(), [](const AudioProcess& process) {
        return process.clues.applicationId == player;
    });
    ASSERT_NE(found, first->end());
    EXPECT_TRUE(found->isPlaying);
    EXPECT_TRUE(found->isRecording);
}

TEST_F(PulseConnectionTest, WhatChangesNothingForAProcessIsNotTold) {
    server.start();
    SoundProgram program(player);
    program.play();
    connect();
    ASSERT_TRUE(runUntil([this] { return !told.empty(); }));
    const auto before = told.size();
    program.play();
    program.end();
    program.record("speakers.monitor");
    runUntil([time = QDeadlineTimer(200)] { return time.hasExpired(); });
    EXPECT_EQ(told.size(), before);
    program.record("microphone");
    ASSERT_TRUE(runUntil([&] { return told.size() > before; }));
    EXPECT_EQ(told.size(), before + 1);
}

TEST_F(PulseConnectionTest, OfAServerThatIsNotThereNothingIsTold) {
    connect();
    runUntil([time = QDeadlineTimer(800)] { return time.hasExpired(); });
    EXPECT_TRUE(told.empty());
}

TEST_F(PulseConnectionTest, TheLossOfAServerIsToldOnce) {
    server.start();
    connect();
    ASSERT_TRUE(runUntil([this] { return !told.empty(); }));
    server.kill();
    ASSERT_TRUE(runUntil([this] { return !told.back(); }));
    const auto before = told.size();
    runUntil([time = QDeadlineTimer(800)] { return time.hasExpired(); });
    EXPECT_EQ(told.size(), before) << "not at each attempt";
    server.start();
    EXPECT_TRUE(runUntil([this] { return told.back().has_value(); }));
}

} // namespace
} // namespace kestrelfen
