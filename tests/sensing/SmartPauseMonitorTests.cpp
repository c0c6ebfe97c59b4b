#include "sensing/SmartPauseMonitorTest.hpp"

namespace kestrelfen {
namespace {

constexpr auto meetings = SmartPauseKind::meetings;
constexpr auto video = SmartPauseKind::video;

TEST_F(SmartPauseMonitorTest, BeforeTheFirstSampleItHasFoundNothingAndHasSettled) {
    EXPECT_EQ(monitor.activeKind(), std::nullopt);
    EXPECT_EQ(monitor.activeAppName(), std::nullopt);
    EXPECT_TRUE(monitor.audioProbeSupported());
    EXPECT_TRUE(monitor.hasSettled(now));
    EXPECT_EQ(audioSamples, 0);
}

TEST_F(SmartPauseMonitorTest, ASingleHitSuffices) {
    audio.setRecording({"us.zoom.xos"});
    EXPECT_EQ(sample(), meetings);
    EXPECT_EQ(monitor.activeKind(), meetings);
    EXPECT_FALSE(monitor.hasSettled(now));
}

TEST_F(SmartPauseMonitorTest, TheFirstSampleWithoutAHitBeginsAStretchOfItsOwn) {
    EXPECT_EQ(sample(), std::nullopt);
    EXPECT_FALSE(monitor.hasSettled(now));
    EXPECT_FALSE(monitor.hasSettled(now + 19.999999));
    EXPECT_TRUE(monitor.hasSettled(now + 20.0));
}

TEST_F(SmartPauseMonitorTest, SettlesTwentySecondsAfterTheFirstClearSample) {
    audio.setRecording({"us.zoom.xos"});
    sample();
    audio.setRecording({});
    EXPECT_EQ(sample(), std::nullopt);
    const Date clearSince = now;
    for (int second = 1; second < 20; ++second) {
        sampleAfter(1.0);
        EXPECT_FALSE(monitor.hasSettled(now)) << second;
    }
    EXPECT_FALSE(monitor.hasSettled(clearSince + 19.999999));
    EXPECT_TRUE(monitor.hasSettled(clearSince + 20.0)) << "exactly 20 seconds count";
    sampleAfter(1.0);
    EXPECT_TRUE(monitor.hasSettled(now));
}

TEST_F(SmartPauseMonitorTest, AHitOfAnotherKindBeginsTheTwentySecondsAnew) {
    audio.setRecording({"us.zoom.xos"});
    sample();
    audio.setRecording({});
    sample();
    sampleAfter(15.0);
    audio.setPlaying({"org.videolan.vlc"});
    EXPECT_EQ(sample(), video);
    EXPECT_FALSE(monitor.hasSettled(now + 3600.0)) << "never while something is found";
    audio.setPlaying({});
    EXPECT_EQ(sample(), std::nullopt);
    EXPECT_FALSE(monitor.hasSettled(now + 19.0));
    EXPECT_TRUE(monitor.hasSettled(now + 20.0));
}

TEST_F(SmartPauseMonitorTest, AfterTheClockWasSetBackItWaitsUntilTheClockHasCaughtUp) {
    sample();
    const Date clearSince = now;
    const int before = audioSamples;
    sampleAfter(-3600.0);
    EXPECT_FALSE(monitor.hasSettled(now));
    EXPECT_EQ(audioSamples, before);
    EXPECT_TRUE(monitor.hasSettled(clearSince + 20.0));
}

TEST_F(SmartPauseMonitorTest, SamplesAudioAtMostEveryFiveSeconds) {
    sampleAfter(0.0);
    EXPECT_EQ(audioSamples, 1);
    audio.setRecording({"us.zoom.xos"});
    for (int second = 1; second < 5; ++second) {
        EXPECT_EQ(sampleAfter(1.0), std::nullopt) << second;
    }
    EXPECT_EQ(sampleAfter(0.999999), std::nullopt);
    EXPECT_EQ(audioSamples, 1);
    EXPECT_EQ(sampleAfter(0.000001), meetings) << "5 seconds after the last one";
    EXPECT_EQ(audioSamples, 2);
    sampleAfter(4.0);
    EXPECT_EQ(audioSamples, 2);
    sampleAfter(1.0);
    EXPECT_EQ(audioSamples, 3);
}

TEST_F(SmartPauseMonitorTest, AGapMakesTheNextSampleRefreshAtOnce) {
    sampleAfter(0.0);
    sampleAfter(1.0);
    audio.setRecording({"us.zoom.xos"});
    EXPECT_EQ(sampleAfter(300.0), meetings);
    EXPECT_EQ(audioSamples, 2);
}

TEST_F(SmartPauseMonitorTest, TheRestOfASampleIsTakenEveryTime) {
    sampleAfter(0.0);
    applications.start("com.apple.screencaptureui", "Screenshot");
    EXPECT_EQ(sampleAfter(1.0), screenSharing);
    applications.stop("com.apple.screencaptureui");
    EXPECT_EQ(sampleAfter(1.0), std::nullopt);
    EXPECT_EQ(audioSamples, 1);
}

TEST_F(SmartPauseMonitorTest, LogsEachChangeOnce) {
    sample();
    EXPECT_EQ(takeLog(), "");
    audio.setRecording({"us.zoom.xos"});
    sample();
    sample();
    EXPECT_EQ(takeLog(), "info SmartPause: smart pause meetings\n");
    audio.setRecording({});
    audio.setPlaying({"us.zoom.xos", "com.apple.TV"});
    sample();
    EXPECT_EQ(takeLog(), "info SmartPause: smart pause video\n");
    audio.setPlaying({});
    applications.start("com.apple.screencaptureui", "Screenshot");
    sample();
    EXPECT_EQ(takeLog(), "info SmartPause: smart pause screenSharing\n");
    applications.stop("com.apple.screencaptureui");
    preferences.set("smartPauseFocusApps", true);
    preferences.set("focusAppBundleIDs", PreferenceStrings{"org.editor"});
    applications.putInFront("org.editor", "Editor");
    sample();
    EXPECT_EQ(takeLog(), "info SmartPause: smart pause focusApps\n");
    applications.putNoneInFront();
    sample();
    sample();
    EXPECT_EQ(takeLog(), "info SmartPause: smart pause clear\n");
}

TEST_F(SmartPauseMonitorTest, AnUnsupportedProbeIsLoggedAtEachAudioSampleBeforeWhatWasFound) {
    audio.setSupported(false);
    applications.putInFront("us.zoom.xos", "Zoom");
    sampleAfter(0.0);
    EXPECT_EQ(takeLog(), "debug AudioActivity: per-process audio objects are unavailable on this system\n"
                         "info SmartPause: smart pause meetings\n");
    sampleAfter(1.0);
    EXPECT_EQ(takeLog(), "");
    sampleAfter(4.0);
    EXPECT_EQ(takeLog(), "debug AudioActivity: per-process audio objects are unavailable on this system\n");
}

TEST_F(SmartPauseMonitorTest, TheProbesSupportFollowsTheAudioSamplesByItself) {
    audio.setSupported(false);
    sampleAfter(0.0);
    EXPECT_FALSE(monitor.audioProbeSupported());
    audio.setSupported(true);
    sampleAfter(4.0);
    EXPECT_FALSE(monitor.audioProbeSupported());
    sampleAfter(1.0);
    EXPECT_TRUE(monitor.audioProbeSupported());
}

TEST_F(SmartPauseMonitorTest, TellsObserversOfRealChangesOnly) {
    int changes = 0;
    const Subscription subscription = monitor.observe([&changes] { ++changes; });
    sample();
    EXPECT_EQ(changes, 0);
    audio.setRecording({"us.zoom.xos"});
    sample();
    EXPECT_EQ(changes, 2) << "the kind and the name";
    sample();
    EXPECT_EQ(changes, 2);
    audio.setRecording({"com.hnc.Discord"});
    sample();
    EXPECT_EQ(changes, 3) << "the name alone";
    audio.setSupported(false);
    sample();
    EXPECT_EQ(changes, 6) << "all three";
    sample();
    EXPECT_EQ(changes, 6);
}

TEST_F(SmartPauseMonitorTest, AnObserverOfTheKindFindsTheNameThere) {
    std::string seen;
    const Subscription subscription = monitor.observe([&] {
        if (monitor.activeKind()) {
            seen = monitor.activeAppName().value_or("none");
        }
    });
    audio.setRecording({"us.zoom.xos"});
    sample();
    EXPECT_EQ(seen, "us.zoom.xos");
}

} // namespace
} // namespace kestrelfen
