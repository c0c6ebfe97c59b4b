#pragma once

#include "platform/fake/FakeAudioProcesses.hpp"
#include "platform/fake/FakeLog.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "sensing/ApplicationsAtHand.hpp"
#include "sensing/SmartPauseMonitor.hpp"
#include "support/Moments.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {

/// The smart pause monitor alone, sampled once a second from 08:00:00 on.
class SmartPauseMonitorTest : public testing::Test {
  protected:
    static constexpr auto meetings = SmartPauseKind::meetings;
    static constexpr auto video = SmartPauseKind::video;
    static constexpr auto screenSharing = SmartPauseKind::screenSharing;
    static constexpr auto focusApps = SmartPauseKind::focusApps;
    using Kind = std::optional<SmartPauseKind>;
    using Name = std::optional<std::string>;

    SmartPauseMonitorTest() {
        audio.onSample = [this] { ++audioSamples; };
    }

    /// Samples after `seconds`, on the minute of 08:00 at first.
    Kind sampleAfter(double seconds) {
        now = now + seconds;
        return monitor.sample(now);
    }

    /// Samples with fresh audio.
    Kind sample() { return sampleAfter(5.0); }

    std::string takeLog() {
        std::string text;
        for (const auto& line : log.lines()) {
            text += std::string(rawValue(line.level)) + " " + line.category + ": " + line.text + "\n";
        }
        log.clear();
        return text;
    }

    FakePreferences preferences;
    FakeApplications fakeApplications;
    ApplicationsAtHand applications{fakeApplications};
    FakeAudioProcesses audio;
    FakeLog log;
    int audioSamples = 0;
    Date now = at("08:00:00");
    SmartPauseMonitor monitor{preferences, fakeApplications, audio, log};
};

} // namespace kestrelfen
