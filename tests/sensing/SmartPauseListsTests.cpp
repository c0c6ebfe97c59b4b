#include "platform/fake/FakePreferences.hpp"
#include "sensing/SmartPauseLists.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

constexpr auto meetings = SmartPauseKind::meetings;
constexpr auto video = SmartPauseKind::video;
constexpr auto screenSharing = SmartPauseKind::screenSharing;
constexpr auto focusApps = SmartPauseKind::focusApps;

class SmartPauseListsTest : public testing::Test {
  protected:
    PreferenceStrings listOf(SmartPauseKind kind) { return SmartPauseLists::bundleIDs(kind, preferences); }
    bool isEnabled(SmartPauseKind kind) { return SmartPauseLists::isEnabled(kind, preferences); }

    FakePreferences preferences;
};

TEST_F(SmartPauseListsTest, NamesTheKeysOfEachKind) {
    EXPECT_EQ(SmartPauseLists::enableKey(meetings), "smartPauseMeetings");
    EXPECT_EQ(SmartPauseLists::enableKey(video), "smartPauseVideo");
    EXPECT_EQ(SmartPauseLists::enableKey(screenSharing), "smartPauseScreenSharing");
    EXPECT_EQ(SmartPauseLists::enableKey(focusApps), "smartPauseFocusApps");
    EXPECT_EQ(SmartPauseLists::listKey(meetings), "meetingAppBundleIDs");
    EXPECT_EQ(SmartPauseLists::listKey(video), "videoAppBundleIDs");
    EXPECT_EQ(SmartPauseLists::listKey(screenSharing), "captureAppBundleIDs");
    EXPECT_EQ(SmartPauseLists::listKey(focusApps), "focusAppBundleIDs");
}

TEST_F(SmartPauseListsTest, AllButFocusAppsAreEnabledAtFirst) {
    EXPECT_TRUE(isEnabled(meetings));
    EXPECT_TRUE(isEnabled(video));
    EXPECT_TRUE(isEnabled(screenSharing));
    EXPECT_FALSE(isEnabled(focusApps));
}

TEST_F(SmartPauseListsTest, AStoredChoiceBeatsTheDefaultOfItsKindAlone) {
    for (const SmartPauseKind kind : allCases<SmartPauseKind>()) {
        const bool before = isEnabled(kind);
        preferences.set(SmartPauseLists::enableKey(kind), !before);
        EXPECT_EQ(isEnabled(kind), !before);
        preferences.remove(SmartPauseLists::enableKey(kind));
        EXPECT_EQ(isEnabled(kind), before);
    }
}

TEST_F(SmartPauseListsTest, BuiltInLists) {
    EXPECT_EQ(SmartPauseLists::defaultBundleIDs(meetings),
              (PreferenceStrings{"us.zoom.xos", "com.microsoft.teams", "com.microsoft.teams2",
                                 "com.cisco.webexmeetingsapp", "com.apple.FaceTime",
                                 "com.tinyspeck.slackmacgap", "com.hnc.Discord", "com.skype.skype"}));
    EXPECT_EQ(
        SmartPauseLists::defaultBundleIDs(video),
        (PreferenceStrings{"com.apple.Safari", "com.google.Chrome", "org.mozilla.firefox",
                           "com.brave.Browser", "company.thebrowser.Browser", "com.apple.QuickTimePlayerX",
                           "com.apple.TV", "org.videolan.vlc", "com.colliderli.iina", "tv.plex.desktop"}));
    EXPECT_EQ(SmartPauseLists::defaultBundleIDs(screenSharing),
              (PreferenceStrings{"com.apple.screencaptureui"}));
    EXPECT_EQ(SmartPauseLists::defaultBundleIDs(focusApps), PreferenceStrings{});
}

TEST_F(SmartPauseListsTest, AnAbsentKeyGivesTheBuiltInList) {
    for (const SmartPauseKind kind : allCases<SmartPauseKind>()) {
        EXPECT_EQ(listOf(kind), SmartPauseLists::defaultBundleIDs(kind));
    }
}

TEST_F(SmartPauseListsTest, AStoredListStandsAsItIsForItsKindAlone) {
    preferences.set("videoAppBundleIDs", PreferenceStrings{"b", "a", "b"});
    EXPECT_EQ(listOf(video), (PreferenceStrings{"b", "a", "b"}));
    EXPECT_EQ(listOf(meetings), SmartPauseLists::defaultBundleIDs(meetings));
}

TEST_F(SmartPauseListsTest, AStoredEmptyListStaysEmpty) {
    for (const SmartPauseKind kind : allCases<SmartPauseKind>()) {
        SmartPauseLists::setBundleIDs(kind, preferences, {});
        EXPECT_EQ(listOf(kind), PreferenceStrings{});
    }
}

TEST_F(SmartPauseListsTest, AValueOfAnotherTypeReadsAsAbsent) {
    preferences.set("meetingAppBundleIDs", std::string("us.zoom.xos"));
    preferences.set("videoAppBundleIDs", std::int64_t{3});
    EXPECT_EQ(listOf(meetings), SmartPauseLists::defaultBundleIDs(meetings));
    EXPECT_EQ(listOf(video), SmartPauseLists::defaultBundleIDs(video));
}

TEST_F(SmartPauseListsTest, StoresEachIdentifierOnceInAscendingOrder) {
    SmartPauseLists::setBundleIDs(focusApps, preferences, {"org.b", "com.z", "org.b", "Com.z", "com.z"});
    EXPECT_EQ(preferences.all(), (std::map<std::string, PreferenceValue>{
                                     {"focusAppBundleIDs", PreferenceStrings{"Com.z", "com.z", "org.b"}}}));
}

TEST_F(SmartPauseListsTest, EachKindPausesForItsOwnReason) {
    EXPECT_EQ(pauseReason(meetings), PauseReason::meeting);
    EXPECT_EQ(pauseReason(video), PauseReason::videoPlayback);
    EXPECT_EQ(pauseReason(screenSharing), PauseReason::screenSharing);
    EXPECT_EQ(pauseReason(focusApps), PauseReason::focusApp);
    for (const SmartPauseKind kind : allCases<SmartPauseKind>()) {
        preferences.set(SmartPauseLists::enableKey(kind), !isEnabled(kind));
        EXPECT_EQ(isEnabledInSettings(pauseReason(kind), preferences), isEnabled(kind))
            << "the engine reads the same choice";
    }
}

} // namespace
} // namespace kestrelfen
