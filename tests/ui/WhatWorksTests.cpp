#include "PaneText.hpp"
#include "platform/fake/FakePlatform.hpp"
#include "ui/SettingsWindowView/AboutPane.hpp"
#include "ui/SettingsWindowView/WhatWorksContent.hpp"

#include <gtest/gtest.h>

#include <set>

namespace kestrelfen {
namespace {

using State = Capability::State;

/// A machine on which all works, until a test takes something away.
class WhatWorksTest : public testing::Test {
  protected:
    std::vector<Capability> capabilities() {
        return WhatWorksContent::of(DesktopAnswers::of(platform_.ports(), overlays_)).capabilities;
    }

    /// Those that do not work, with what happens instead.
    std::string wanting() {
        std::string text;
        for (const Capability& each : capabilities()) {
            if (each.state != State::works) {
                text +=
                    each.name + (each.state == State::limited ? ", limited: " : ": ") + each.fallback + "\n";
            }
        }
        return text;
    }

    FakePlatform platform_;
    OverlayReach overlays_ = OverlayReach::everywhere;
};

TEST_F(WhatWorksTest, NamesEveryCapabilityInItsOrder) {
    std::string names;
    for (const Capability& each : capabilities()) {
        names += each.name + "\n";
    }
    EXPECT_EQ(names, "Tray icon\nNotifications\nBreak overlays\nEscape during a break\nIdle time\n"
                     "Sleep and waking\nScreen lock and user switch\nDisplay sleep\nLocking the screen\n"
                     "Program in front\nCalls and video\nWebsite names\n");
}

TEST_F(WhatWorksTest, WhereAllWorksNothingIsWanting) {
    EXPECT_EQ(wanting(), "");
    for (const Capability& each : capabilities()) {
        EXPECT_EQ(each.fallback, "") << each.name;
    }
}

TEST_F(WhatWorksTest, WithoutATray) {
    platform_.statusBarButton.setTriesUntilFound(1);
    EXPECT_EQ(wanting(), "Tray icon: No tray here. Start the program again to open its window.\n");
    EXPECT_EQ(wanting(), "") << "the tray has come";
}

TEST_F(WhatWorksTest, WithoutAnybodyWhoShowsNotifications) {
    platform_.notifier.setAvailable(false);
    EXPECT_EQ(wanting(),
              "Notifications: Nothing here shows them. The warning card and the overlays still come.\n");
}

TEST_F(WhatWorksTest, WhereOverlaysAreWindowsOfTheXServer) {
    overlays_ = OverlayReach::throughXServer;
    EXPECT_EQ(wanting(),
              "Break overlays, limited: No layers on this desktop. Overlays are windows of its X server "
              "instead.\n"
              "Escape during a break, limited: Heard while a program of the X server has the keyboard. "
              "Otherwise use the overlay's buttons.\n");
}

TEST_F(WhatWorksTest, WhereOverlaysAreWindowsLikeAnyOther) {
    overlays_ = OverlayReach::ordinaryWindows;
    EXPECT_EQ(wanting(),
              "Break overlays, limited: No layers on this desktop. Other windows may cover an overlay.\n"
              "Escape during a break: Not heard here. Use the overlay's buttons.\n");
}

TEST_F(WhatWorksTest, WhereNobodyTellsOfInput) {
    platform_.inputIdle.setUnavailable();
    EXPECT_EQ(wanting(), "Idle time: Not told here. Stepping away pauses nothing; pause by hand.\n");
    platform_.inputIdle.setAge(900.0);
    EXPECT_EQ(wanting(), "");
}

TEST_F(WhatWorksTest, WhereNobodyTellsOfSleep) {
    platform_.systemSignals.setCapabilities(
        {.sleep = false, .lock = true, .session = true, .displaySleep = true});
    EXPECT_EQ(wanting(),
              "Sleep and waking: Not told here. A break that came due during sleep starts on waking.\n");
}

TEST_F(WhatWorksTest, WhereOnlyTheScreenSaverTellsOfLocks) {
    platform_.systemSignals.setCapabilities(
        {.sleep = true, .lock = true, .session = false, .displaySleep = true});
    EXPECT_EQ(wanting(),
              "Screen lock and user switch, limited: A switch to another user is not noticed. Being "
              "idle pauses instead.\n");
}

TEST_F(WhatWorksTest, WhereNobodyTellsOfLocks) {
    platform_.systemSignals.setCapabilities(
        {.sleep = true, .lock = false, .session = false, .displaySleep = true});
    EXPECT_EQ(wanting(),
              "Screen lock and user switch: Neither is noticed here. Being idle pauses instead.\n");
}

TEST_F(WhatWorksTest, WhereNobodyTellsOfDisplaySleep) {
    platform_.systemSignals.setCapabilities(
        {.sleep = true, .lock = true, .session = true, .displaySleep = false});
    EXPECT_EQ(wanting(), "Display sleep: Not noticed here. Being idle pauses instead.\n");
}

TEST_F(WhatWorksTest, BeingIdlePausesNothingWhereInputIsNotToldEither) {
    platform_.inputIdle.setUnavailable();
    platform_.systemSignals.setCapabilities({.sleep = true});
    EXPECT_EQ(wanting(), "Idle time: Not told here. Stepping away pauses nothing; pause by hand.\n"
                         "Screen lock and user switch: Neither is noticed here. Pause by hand.\n"
                         "Display sleep: Not noticed here. Pause by hand.\n");
    platform_.systemSignals.setCapabilities(
        {.sleep = true, .lock = true, .session = false, .displaySleep = true});
    EXPECT_EQ(wanting(), "Idle time: Not told here. Stepping away pauses nothing; pause by hand.\n"
                         "Screen lock and user switch, limited: A switch to another user is not noticed. "
                         "Pause by hand.\n");
}

TEST_F(WhatWorksTest, WhereNothingLocksTheScreen) {
    platform_.sessionLock.setResult({SessionLockResult::Outcome::missing});
    EXPECT_EQ(wanting(), "Locking the screen: Nothing here locks it. Breaks start unlocked.\n");
    platform_.sessionLock.setResult({SessionLockResult::Outcome::failed, "not now"});
    EXPECT_EQ(wanting(), "");
}

TEST_F(WhatWorksTest, WhereSomeApplicationsAreNotTold) {
    platform_.applications.setMissesSome(true);
    EXPECT_EQ(wanting(), "Program in front, limited: Only programs of the X server are known. Time in others "
                         "counts without names.\n");
}

TEST_F(WhatWorksTest, WhereNoApplicationIsTold) {
    platform_.applications.setMissesSome(true);
    platform_.applications.setAvailable(false);
    EXPECT_EQ(wanting(), "Program in front: Not told here. Screen time counts without names, and focus apps "
                         "pause nothing.\n");
}

TEST_F(WhatWorksTest, WithoutASoundServer) {
    platform_.audioProcesses.setSupported(false);
    EXPECT_EQ(wanting(),
              "Calls and video: No sound server. Calls and video pause while their app is in front.\n");
    platform_.applications.setAvailable(false);
    EXPECT_EQ(wanting(), "Program in front: Not told here. Screen time counts without names, and focus apps "
                         "pause nothing.\n"
                         "Calls and video: No sound server. Calls and video pause nothing.\n");
}

TEST_F(WhatWorksTest, WithoutAnAccessibilityBus) {
    platform_.browserAccess.setAvailable(false);
    EXPECT_EQ(wanting(), "Website names: No accessibility bus. Browsers count without their websites.\n");
}

TEST_F(WhatWorksTest, ListStandsBelowWhatThePaneHeld) {
    platform_.notifier.setAvailable(false);
    overlays_ = OverlayReach::throughXServer;
    PaneContent pane = AboutPane::content();
    const std::string before = paneText(pane);
    WhatWorksContent::of(DesktopAnswers::of(platform_.ports(), overlays_)).addTo(pane);
    const std::string list = "# What works here\n"
                             "rows\n"
                             "  Tray icon / Works\n"
                             "  Notifications / Nothing here shows them. The warning card and the overlays "
                             "still come. / Unavailable\n"
                             "  Break overlays / No layers on this desktop. Overlays are windows of its X "
                             "server instead. / Limited\n";
    EXPECT_EQ(paneText(pane).substr(0, before.size() + list.size()), before + list);
    EXPECT_EQ(pane.rows().size(), 12U);
    EXPECT_TRUE(pane.notes().empty());
}

TEST_F(WhatWorksTest, EachRowHasAKeyOfItsOwn) {
    std::set<std::string> keys;
    for (const Capability& each : capabilities()) {
        EXPECT_TRUE(keys.insert(each.key).second) << each.key;
    }
}

} // namespace
} // namespace kestrelfen
