#pragma once

#include "platform/fake/FakeLog.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/PulseAudioProcesses.hpp"
#include "platform/linux/sound/ApplicationIdentity.hpp"
#include "platform/linux/sound/SoundProgram.hpp"
#include "platform/linux/sound/SoundServer.hpp"
#include "sensing/AudioActivity.hpp"

#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <limits>

namespace kestrelfen {

inline const std::string player = "org.example.Player";
/// Long enough for what happened before to be told.
constexpr std::chrono::milliseconds quiet{200};

/// A real server, and what a sample finds there.
class PulseAudioProcessesTest : public testing::Test {
  protected:
    PulseAudioProcessesTest() { server.start(); }

    AudioActivity sample() { return AudioActivity::current(processes, log); }

    static AudioActivity silence() { return {{}, {}, true}; }
    static AudioActivity records() { return {{player}, {}, true}; }
    static AudioActivity plays() { return {{}, {player}, true}; }

    void expect(const AudioActivity& expected) {
        waitUntil([&] { return sample() == expected; });
        EXPECT_EQ(sample().isSupported, expected.isSupported);
        EXPECT_EQ(sample().usingInput, expected.usingInput);
        EXPECT_EQ(sample().usingOutput, expected.usingOutput);
    }

    /// As expect, but also that it does not change any more.
    void expectLasting(const AudioActivity& expected) {
        pass(quiet);
        expect(expected);
    }

    /// In milliseconds, of several times: on a busy machine one of them may be interrupted.
    template <typename Call>
    static qint64 shortestTimeOf(Call call) {
        qint64 shortest = std::numeric_limits<qint64>::max();
        for (int times = 0; times < 5; ++times) {
            QElapsedTimer time;
            time.start();
            call();
            shortest = std::min(shortest, time.elapsed());
        }
        return shortest;
    }

    std::size_t objectsOf(const std::string& product) {
        const auto objects = processes.processObjects().value();
        return static_cast<std::size_t>(std::count_if(objects.begin(), objects.end(), [&](auto object) {
            return processes.bundleIdentifier(object) == product;
        }));
    }

    SoundServer server;
    ApplicationIdentity identity;
    FakeLog log;
    PulseAudioProcesses processes{identity};
};

} // namespace kestrelfen
