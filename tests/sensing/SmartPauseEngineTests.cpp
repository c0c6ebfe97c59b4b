#include "sensing/ApplicationsAtHand.hpp"
#include "sensing/SensingEngineTest.hpp"
#include "sensing/SmartPauseMonitor.hpp"

namespace kestrelfen {
namespace {

/// The engine with the real smart pause monitor.
class SmartPauseEngineTest : public SensingEngineTest {
  protected:
    FakeAudioProcesses& audio = platform.audioProcesses;
    ApplicationsAtHand applications{platform.applications};
    SmartPauseMonitor* monitor = nullptr;

    std::unique_ptr<SmartPause> makeSmartPause() override {
        auto made = std::make_unique<SmartPauseMonitor>(platform.preferences, platform.applications, audio,
                                                        platform.log);
        monitor = made.get();
        return made;
    }

    /// The engine is paused at 08:00:01 by a call, whose end the audio sample of 08:00:11 finds.
    void pauseForAMeetingThatEnds() {
        audio.setRecording({"us.zoom.xos"});
        start();
        run(1);
        run(9);
        audio.setRecording({});
        run(1);
        EXPECT_EQ(happened(), lines({"08:00:01 log info SmartPause: smart pause meetings",
                                     "08:00:01 log paused (meeting, 19:59 left)",
                                     "08:00:11 log info SmartPause: smart pause clear"}));
    }
};

TEST_F(SmartPauseEngineTest, AMeetingPausesAndTheTimerResumesAfterTwentyClearSeconds) {
    pauseForAMeetingThatEnds();
    run(19);
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(state(), "paused (meeting)");
    run(1);
    EXPECT_EQ(happened(), lines({"08:00:31 log resumed work (19:59 to break)",
                                 "08:00:31 record meeting pause from 08:00:01, 30 s, day 2026-03-09"}));
    EXPECT_EQ(state(), "working until 08:20:30");
}

TEST_F(SmartPauseEngineTest, EachKindPausesForItsOwnReason) {
    start();
    audio.setPlaying({"org.videolan.vlc"});
    run(1);
    EXPECT_EQ(state(), "paused (videoPlayback)");
    audio.setPlaying({});
    run(26);
    EXPECT_EQ(state(), "working until 08:20:25");
    applications.start("com.apple.screencaptureui", "Screenshot");
    run(1);
    EXPECT_EQ(state(), "paused (screenSharing)");
    EXPECT_EQ(monitor->activeAppName(), "Screenshot");
    applications.stop("com.apple.screencaptureui");
    run(21);
    EXPECT_EQ(state(), "working until 08:20:46");
    prefer("smartPauseFocusApps", true);
    prefer("focusAppBundleIDs", PreferenceStrings{"org.editor"});
    applications.putInFront("org.editor", "Editor");
    run(1);
    EXPECT_EQ(state(), "paused (focusApp)");
    forget();
}

TEST_F(SmartPauseEngineTest, WithoutTheWishToResumeThePauseStays) {
    prefer("resumeAutomatically", false);
    pauseForAMeetingThatEnds();
    run(60);
    EXPECT_EQ(happened(), "");
    EXPECT_TRUE(monitor->hasSettled(now()));
    EXPECT_EQ(state(), "paused (meeting)");
}

TEST_F(SmartPauseEngineTest, ThePauseKeepsItsReasonWhenAnotherKindIsFound) {
    pauseForAMeetingThatEnds();
    run(9);
    audio.setPlaying({"org.videolan.vlc"});
    run(5);
    EXPECT_EQ(happened(), lines({"08:00:21 log info SmartPause: smart pause video"}));
    EXPECT_EQ(state(), "paused (meeting)");
    audio.setPlaying({});
    run(20);
    EXPECT_EQ(happened(), lines({"08:00:26 log info SmartPause: smart pause clear"}));
    EXPECT_EQ(state(), "paused (meeting)") << "the 20 seconds began anew";
    run(1);
    EXPECT_EQ(happened(), lines({"08:00:46 log resumed work (19:59 to break)",
                                 "08:00:46 record meeting pause from 08:00:01, 45 s, day 2026-03-09"}));
}

TEST_F(SmartPauseEngineTest, AHitRightAfterAResumePausesAgainAtOnce) {
    pauseForAMeetingThatEnds();
    run(20);
    forget();
    audio.setRecording({"us.zoom.xos"});
    run(5);
    EXPECT_EQ(happened(), lines({"08:00:36 log info SmartPause: smart pause meetings",
                                 "08:00:36 log paused (meeting, 19:54 left)"}));
}

TEST_F(SmartPauseEngineTest, ByHandTheTimerResumesWhileTheMeetingLastsAndPausesAtTheNextTick) {
    audio.setRecording({"us.zoom.xos"});
    start();
    run(2);
    forget();
    engine().resume(now());
    settle();
    EXPECT_EQ(state(), "working until 08:20:01");
    run(1);
    EXPECT_EQ(happened(), lines({"08:00:02 log resumed work (19:59 to break)",
                                 "08:00:02 record meeting pause from 08:00:01, 1 s, day 2026-03-09",
                                 "08:00:03 log paused (meeting, 19:58 left)"}));
}

TEST_F(SmartPauseEngineTest, APreBreakWarningIsPausedToo) {
    start();
    tickAt("08:19:50");
    forget();
    ASSERT_EQ(state(), "preBreakWarning");
    audio.setRecording({"us.zoom.xos"});
    tickAt("08:19:55");
    EXPECT_EQ(happened(), lines({"08:19:55 log info SmartPause: smart pause meetings",
                                 "08:19:55 log paused (meeting, 0:05 left)"}));
}

TEST_F(SmartPauseEngineTest, ABreakIsNotSampledAndTheFirstTickAfterItSamplesAtOnce) {
    start();
    tickAt("08:20:00");
    forget();
    ASSERT_EQ(state(), "onBreak until 08:20:20");
    int samples = 0;
    audio.onSample = [&samples] { ++samples; };
    audio.setRecording({"us.zoom.xos"});
    run(19);
    EXPECT_EQ(samples, 0);
    EXPECT_EQ(monitor->activeKind(), std::nullopt);
    run(2);
    EXPECT_EQ(samples, 1);
    EXPECT_EQ(monitor->activeKind(), SmartPauseKind::meetings);
    forget();
}

TEST_F(SmartPauseEngineTest, AnotherPauseIsNotSampledAndTheKindKeepsItsLastValue) {
    audio.setRecording({"us.zoom.xos"});
    start();
    run(1);
    engine().resume(now());
    engine().pause(PauseReason::manual);
    settle();
    audio.setRecording({});
    run(60);
    EXPECT_EQ(monitor->activeKind(), SmartPauseKind::meetings);
    EXPECT_EQ(state(), "paused (manual)");
    forget();
}

TEST_F(SmartPauseEngineTest, AnIdleEngineIsNotSampled) {
    audio.setRecording({"us.zoom.xos"});
    engine().tick(now());
    EXPECT_EQ(state(), "idle");
    EXPECT_EQ(monitor->activeKind(), std::nullopt);
}

TEST_F(SmartPauseEngineTest, WithMeetingsOffTheMicrophoneDoesNotPause) {
    prefer("smartPauseMeetings", false);
    audio.setRecording({"us.zoom.xos"});
    start();
    run(10);
    EXPECT_EQ(state(), "working until 08:20:00");
}

TEST_F(SmartPauseEngineTest, OnASystemWithoutPerProcessAudioTheAppInFrontPauses) {
    audio.setSupported(false);
    applications.putInFront("org.mozilla.firefox", "Firefox");
    start();
    run(1);
    EXPECT_EQ(happened(),
              lines({"08:00:01 log debug AudioActivity: per-process audio objects are unavailable on this "
                     "system",
                     "08:00:01 log info SmartPause: smart pause video",
                     "08:00:01 log paused (videoPlayback, 19:59 left)"}));
    applications.putNoneInFront();
    run(1);
    EXPECT_EQ(happened(), lines({"08:00:02 log info SmartPause: smart pause clear"}));
    audio.setSupported(true);
    run(20);
    EXPECT_EQ(happened(), lines({"08:00:22 log resumed work (19:59 to break)",
                                 "08:00:22 record videoPlayback pause from 08:00:01, 21 s, day 2026-03-09"}));
}

} // namespace
} // namespace kestrelfen
