#include "sensing/SmartPauseMonitorTest.hpp"

namespace kestrelfen {
namespace {

/// What one sample finds, and whose name it gives.
class SmartPauseDetectionTest : public SmartPauseMonitorTest {
  protected:
    /// "meetings Zoom", or "nothing".
    std::string found() {
        const Kind kind = sample();
        const Name& name = monitor.activeAppName();
        EXPECT_EQ(monitor.activeKind(), kind);
        EXPECT_EQ(kind.has_value(), name.has_value());
        return kind ? std::string(rawValue(*kind)) + " " + name.value_or("") : "nothing";
    }

    void everythingHappens() {
        audio.setRecording({"us.zoom.xos"});
        audio.setPlaying({"org.videolan.vlc"});
        applications.start("com.apple.screencaptureui", "Screenshot");
        preferences.set("smartPauseFocusApps", true);
        preferences.set("focusAppBundleIDs", PreferenceStrings{"org.editor"});
        applications.putInFront("org.editor", "Editor");
    }
};

TEST_F(SmartPauseDetectionTest, TheKindsAreTriedInOrderOfPriority) {
    everythingHappens();
    EXPECT_EQ(found(), "meetings us.zoom.xos");
    audio.setRecording({});
    EXPECT_EQ(found(), "video org.videolan.vlc");
    audio.setPlaying({});
    EXPECT_EQ(found(), "screenSharing Screenshot");
    applications.stop("com.apple.screencaptureui");
    EXPECT_EQ(found(), "focusApps Editor");
    applications.putNoneInFront();
    EXPECT_EQ(found(), "nothing");
}

TEST_F(SmartPauseDetectionTest, AKindThatIsSwitchedOffIsPassedOver) {
    everythingHappens();
    preferences.set("smartPauseMeetings", false);
    EXPECT_EQ(found(), "video org.videolan.vlc");
    preferences.set("smartPauseVideo", false);
    EXPECT_EQ(found(), "screenSharing Screenshot");
    preferences.set("smartPauseScreenSharing", false);
    EXPECT_EQ(found(), "focusApps Editor");
    preferences.set("smartPauseFocusApps", false);
    EXPECT_EQ(found(), "nothing");
    preferences.set("smartPauseMeetings", true);
    EXPECT_EQ(found(), "meetings us.zoom.xos");
}

TEST_F(SmartPauseDetectionTest, WithMeetingsOffTheSameAppMayCountAsVideo) {
    preferences.set("smartPauseMeetings", false);
    preferences.set("videoAppBundleIDs", PreferenceStrings{"us.zoom.xos"});
    audio.setRecording({"us.zoom.xos"});
    EXPECT_EQ(found(), "nothing") << "it is silent";
    audio.setPlaying({"us.zoom.xos"});
    EXPECT_EQ(found(), "video us.zoom.xos");
    preferences.remove("videoAppBundleIDs");
    EXPECT_EQ(found(), "nothing") << "and not on that list";
}

TEST_F(SmartPauseDetectionTest, AMeetingIsAListedAppThatRecordsAndAVideoOneThatPlays) {
    audio.setRecording({"org.videolan.vlc", "org.recorder"});
    audio.setPlaying({"us.zoom.xos", "org.player"});
    EXPECT_EQ(found(), "nothing");
}

TEST_F(SmartPauseDetectionTest, OfSeveralListedAppsTheFirstThatRunsIsNamed) {
    audio.setRecording({"org.recorder", "com.skype.skype", "us.zoom.xos"});
    EXPECT_EQ(found(), "meetings com.skype.skype");
    audio.setRecording({});
    audio.setPlaying({"org.player", "tv.plex.desktop", "com.apple.Safari"});
    EXPECT_EQ(found(), "video tv.plex.desktop");
}

TEST_F(SmartPauseDetectionTest, IdentifiersAreComparedExactly) {
    audio.setRecording({"US.zoom.xos", "us.zoom", "us.zoom.xos.helper", "com.microsoft.teams3"});
    audio.setPlaying({"com.google.Chrome.helper", "com.google.chrome"});
    applications.start("com.apple.screencaptureui.helper", "Helper");
    EXPECT_EQ(found(), "nothing");
}

TEST_F(SmartPauseDetectionTest, AnAudioAppHasTheNameOfTheFirstRunningApplicationOfItsIdentifier) {
    applications.start("org.other", "Other");
    applications.start("us.zoom.xos", "Zoom Meeting");
    applications.start("us.zoom.xos", "Zoom");
    audio.setRecording({"us.zoom.xos"});
    EXPECT_EQ(found(), "meetings Zoom Meeting");
    audio.setRecording({});
    audio.setPlaying({"com.apple.TV"});
    applications.start("com.apple.TV", "TV");
    EXPECT_EQ(found(), "video TV");
}

TEST_F(SmartPauseDetectionTest, AnAudioAppWithoutANameIsCalledByItsIdentifier) {
    audio.setRecording({"us.zoom.xos"});
    EXPECT_EQ(found(), "meetings us.zoom.xos") << "nothing of the kind runs";
    applications.start(std::nullopt, "us.zoom.xos");
    EXPECT_EQ(found(), "meetings us.zoom.xos");
    applications.start("us.zoom.xos", std::nullopt);
    applications.start("us.zoom.xos", "Zoom");
    EXPECT_EQ(found(), "meetings us.zoom.xos") << "the first has no name";
}

TEST_F(SmartPauseDetectionTest, AMeetingAppInFrontCountsWithoutAMicrophoneOnlyWhereAudioIsNotTold) {
    applications.putInFront("us.zoom.xos", "Zoom");
    EXPECT_EQ(found(), "nothing");
    audio.setSupported(false);
    EXPECT_EQ(found(), "meetings Zoom");
    audio.setSupported(true);
    EXPECT_EQ(found(), "nothing");
}

TEST_F(SmartPauseDetectionTest, AMeetingInTheBackgroundCounts) {
    applications.putInFront("org.editor", "Editor");
    audio.setRecording({"us.zoom.xos"});
    EXPECT_EQ(found(), "meetings us.zoom.xos");
}

TEST_F(SmartPauseDetectionTest, WhereAudioIsNotToldAVideoAppInFrontCounts) {
    audio.setPlaying({"us.zoom.xos"});
    audio.setSupported(false);
    EXPECT_EQ(found(), "nothing");
    applications.putInFront("org.mozilla.firefox", "Firefox");
    EXPECT_EQ(found(), "video Firefox");
    preferences.set("smartPauseVideo", false);
    EXPECT_EQ(found(), "nothing");
}

TEST_F(SmartPauseDetectionTest, TheFrontmostAppIsCalledByItsIdentifierWhenItHasNoName) {
    audio.setSupported(false);
    applications.putInFront("us.zoom.xos", std::nullopt);
    EXPECT_EQ(found(), "meetings us.zoom.xos");
    applications.putInFront(std::nullopt, "Zoom");
    EXPECT_EQ(found(), "nothing");
    applications.putInFront("org.editor", "us.zoom.xos");
    EXPECT_EQ(found(), "nothing");
    applications.putNoneInFront();
    EXPECT_EQ(found(), "nothing");
}

TEST_F(SmartPauseDetectionTest, AListedCaptureAppCountsByRunningAlone) {
    applications.start("org.other", "Other");
    applications.start("com.apple.screencaptureui", "Screenshot");
    applications.putInFront("org.other", "Other");
    EXPECT_EQ(found(), "screenSharing Screenshot");
    audio.setSupported(false);
    EXPECT_EQ(found(), "screenSharing Screenshot");
}

TEST_F(SmartPauseDetectionTest, TheFirstCaptureAppOfTheSystemsListIsNamed) {
    preferences.set("captureAppBundleIDs", PreferenceStrings{"org.first", "org.second"});
    applications.start(std::nullopt, "org.first");
    applications.start("org.second", "Second");
    applications.start("org.first", "First");
    EXPECT_EQ(found(), "screenSharing Second");
}

TEST_F(SmartPauseDetectionTest, ACaptureAppWithoutANameEndsTheSearch) {
    preferences.set("captureAppBundleIDs", PreferenceStrings{"org.first", "org.second"});
    applications.start("org.second", std::nullopt);
    applications.start("org.first", "First");
    EXPECT_EQ(found(), "nothing");
}

TEST_F(SmartPauseDetectionTest, ANamelessCaptureAppLeavesTheFocusAppsToBeTried) {
    everythingHappens();
    audio.setRecording({});
    audio.setPlaying({});
    applications.stop("com.apple.screencaptureui");
    applications.start("com.apple.screencaptureui", std::nullopt);
    EXPECT_EQ(found(), "focusApps Editor");
}

TEST_F(SmartPauseDetectionTest, FocusAppsCountInFrontOnlyAndOnlyWhenAskedFor) {
    applications.putInFront("org.editor", "Editor");
    applications.start("org.writer", "Writer");
    preferences.set("focusAppBundleIDs", PreferenceStrings{"org.editor", "org.writer"});
    EXPECT_EQ(found(), "nothing");
    preferences.set("smartPauseFocusApps", true);
    EXPECT_EQ(found(), "focusApps Editor");
    applications.putInFront("org.other", "Other");
    EXPECT_EQ(found(), "nothing");
    applications.putInFront("org.writer", std::nullopt);
    EXPECT_EQ(found(), "focusApps org.writer");
    preferences.remove("focusAppBundleIDs");
    EXPECT_EQ(found(), "nothing") << "an absent list counts as empty";
}

TEST_F(SmartPauseDetectionTest, AnEmptiedListDetectsNothing) {
    audio.setRecording({"us.zoom.xos"});
    audio.setPlaying({"org.videolan.vlc"});
    applications.start("com.apple.screencaptureui", "Screenshot");
    preferences.set("meetingAppBundleIDs", PreferenceStrings{});
    EXPECT_EQ(found(), "video org.videolan.vlc");
    preferences.set("videoAppBundleIDs", PreferenceStrings{});
    EXPECT_EQ(found(), "screenSharing Screenshot");
    preferences.set("captureAppBundleIDs", PreferenceStrings{});
    EXPECT_EQ(found(), "nothing");
    audio.setSupported(false);
    applications.putInFront("us.zoom.xos", "Zoom");
    EXPECT_EQ(found(), "nothing") << "nor by what is in front";
}

TEST_F(SmartPauseDetectionTest, AListOfAnotherTypeReadsAsTheBuiltInOne) {
    preferences.set("meetingAppBundleIDs", std::string("org.other"));
    audio.setRecording({"org.other", "us.zoom.xos"});
    EXPECT_EQ(found(), "meetings us.zoom.xos");
}

TEST_F(SmartPauseDetectionTest, AChangedListCountsAtTheNextSample) {
    audio.setRecording({"org.caller"});
    sampleAfter(0.0);
    EXPECT_EQ(monitor.activeKind(), std::nullopt);
    preferences.set("meetingAppBundleIDs", PreferenceStrings{"org.caller"});
    EXPECT_EQ(sampleAfter(1.0), meetings);
}

} // namespace
} // namespace kestrelfen
