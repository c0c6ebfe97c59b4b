#include "PaneText.hpp"
#include "platform/fake/FakePlatform.hpp"
#include "sensing/SmartPauseLists.hpp"
#include "sensing/SmartPauseMonitor.hpp"
#include "ui/SettingsWindowView/SettingsControls.hpp"
#include "ui/SettingsWindowView/SmartPausePane.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

class SmartPausePaneTest : public testing::Test {
  protected:
    PaneContent content() { return SmartPausePane::content(platform.preferences, monitor); }
    std::string row(std::size_t index) { return rowText(content().rows().at(index)); }
    std::string status() { return content().blocks.front().tint + ": " + content().blocks.front().text; }
    void sample() { monitor.sample(platform.clock.now()); }

    FakePlatform platform;
    SmartPauseMonitor monitor{platform.preferences, platform.applications, platform.audioProcesses,
                              platform.log};
};

TEST_F(SmartPausePaneTest, TellsEachRow) {
    EXPECT_EQ(paneText(content()),
              "Smart Pause\n"
              "Holds the timer while you're on a call, watching something, capturing the screen, or "
              "heads-down in an app you chose.\n"
              "status / faint / Nothing detected right now\n"
              "rows\n"
              "  Meetings or Calls / Pauses while an app in the list is using the microphone · 8 apps / "
              "Configure / on\n"
              "  Video Playback / Pauses while an app in the list is playing audio · 10 apps / "
              "Configure / on\n"
              "  Screen Recording or Sharing / Pauses while a capture process is running · 1 app / "
              "Configure / on\n"
              "  Deep Focus Apps / Add the apps that mean you're heads-down / Configure / off\n"
              "footnote / Detected from microphone and audio activity, running apps, and the frontmost app. "
              "No new permissions, and nothing leaves your Mac.\n");
    EXPECT_EQ(platform.preferences.all().size(), 0U);
}

TEST_F(SmartPausePaneTest, ButtonsAreNamedAfterTheirRow) {
    EXPECT_EQ(content().rows().at(1).spokenButton, "Configure Video Playback");
}

TEST_F(SmartPausePaneTest, CaptionCountsTheApps) {
    platform.preferences.set("focusAppBundleIDs", PreferenceStrings{"a"});
    platform.preferences.set("meetingAppBundleIDs", PreferenceStrings{});
    platform.preferences.set("captureAppBundleIDs", PreferenceStrings{"a", "b"});
    EXPECT_EQ(content().rows().at(0).caption,
              "Pauses while an app in the list is using the microphone · 0 apps");
    EXPECT_EQ(content().rows().at(2).caption, "Pauses while a capture process is running · 2 apps");
    EXPECT_EQ(content().rows().at(3).caption, "Pauses while one of your chosen apps is frontmost · 1 app");
}

TEST_F(SmartPausePaneTest, StatusTellsWhatIsDetectedAndWhere) {
    platform.applications.start({"us.zoom.xos", "Zoom", 7}, 1);
    platform.audioProcesses.setRecording({"us.zoom.xos"});
    sample();
    EXPECT_EQ(status(), "accent: Meetings or Calls detected — Zoom");
}

TEST_F(SmartPausePaneTest, StatusWithoutAnAppNamesTheKindAlone) {
    EXPECT_EQ(SmartPausePane::status(SmartPauseKind::video, std::nullopt), "Video Playback detected");
    EXPECT_EQ(SmartPausePane::status(SmartPauseKind::video, "Player"), "Video Playback detected — Player");
    EXPECT_EQ(SmartPausePane::status(std::nullopt, "Player"), "Nothing detected right now");
}

TEST_F(SmartPausePaneTest, WithoutAudioOfEachProcessItSaysSo) {
    platform.audioProcesses.setSupported(false);
    sample();
    const PaneBlock callout = content().blocks.at(1);
    EXPECT_EQ(callout.kind, PaneBlock::Kind::callout);
    EXPECT_EQ(callout.tint, "amber");
    EXPECT_EQ(content().notes().at(1),
              "Reduced: This Mac won't report per-app audio, so calls and video fall "
              "back to whichever app is frontmost.");
    EXPECT_EQ(content().notes().size(), 3U);
}

TEST_F(SmartPausePaneTest, SwitchesAreTheDetectorsOwn) {
    std::size_t index = 0;
    for (const SmartPauseKind kind : allCases<SmartPauseKind>()) {
        const std::string_view key = SmartPauseLists::enableKey(kind);
        const SettingChoice& choice = *SettingChoice::find(key);
        for (const std::string word : {"false", "true"}) {
            SettingsControls(platform.preferences).choose(choice, *choice.option(word));
            EXPECT_EQ(SmartPauseLists::isEnabled(kind, platform.preferences), word == "true") << key;
            EXPECT_EQ(row(index).substr(row(index).rfind('/')), word == "true" ? "/ on" : "/ off") << key;
        }
        ++index;
    }
}

} // namespace
} // namespace kestrelfen
