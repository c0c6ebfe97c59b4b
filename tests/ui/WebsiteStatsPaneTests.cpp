#include "PaneText.hpp"
#include "platform/fake/FakePlatform.hpp"
#include "sensing/BrowserScripting.hpp"
#include "ui/SettingsWindowView/WebsiteStats.hpp"
#include "ui/SettingsWindowView/WebsiteStatsPane.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

using Permission = FakeBrowserPermission;

class WebsiteStatsPaneTest : public testing::Test {
  protected:
    WebsiteStatsPaneTest() {
        platform.browserAccess.onRelease = [this] { ++releases; };
        platform.applications.onLaunch = [this](const std::string& bundleID) {
            launched.push_back(bundleID);
        };
    }

    void permit(Browser browser, Permission permission) {
        platform.browserAccess.setPermission(std::string(bundleID(browser)), permission);
    }
    PaneContent content() { return WebsiteStatsPane::content(*stats); }
    std::string row(std::size_t index) { return rowText(content().rows().at(index)); }
    bool isStored(Browser browser) { return isEnabled(browser, platform.preferences); }

    FakePlatform platform;
    BrowserScripting scripting{platform.ports()};
    std::unique_ptr<WebsiteStats> stats = std::make_unique<WebsiteStats>(platform.ports(), scripting);
    int releases = 0;
    std::vector<std::string> launched;
};

TEST_F(WebsiteStatsPaneTest, WithoutABrowserItSaysSo) {
    stats->reload();
    EXPECT_EQ(
        paneText(content()),
        "Website Stats\n"
        "Breaks screen time down by website, for the browsers you turn on here.\n"
        "disclosure / What This Reads / Only the domain of the tab you're looking at — example.com, not "
        "the full address, the page title, or anything on the page. It is stored on this Mac and never "
        "sent anywhere. macOS asks you to approve each browser separately.\n"
        "text / None of the supported browsers are installed.\n"
        "footnote / Unsupported browsers, including Firefox, do not expose the current tab to other "
        "apps, so they cannot be included.\n");
}

TEST_F(WebsiteStatsPaneTest, EachInstalledBrowserTellsItsPermissionInCaseOrder) {
    permit(Browser::comet, Permission::granted);
    permit(Browser::safari, Permission::granted);
    permit(Browser::chrome, Permission::denied);
    permit(Browser::edge, Permission::notDetermined);
    permit(Browser::arc, Permission::notRunning);
    platform.preferences.set("websiteStats.safari", true);
    stats->reload();
    ASSERT_EQ(content().rows().size(), 5U);
    EXPECT_EQ(row(0), "Safari / Allowed — reading the current domain / on");
    EXPECT_EQ(row(1), "Chrome / amber: Denied in System Settings › Privacy & Security › Automation / off");
    EXPECT_EQ(row(2), "Edge / macOS will ask when you allow it / off");
    EXPECT_EQ(row(3), "Arc / Closed — it will be opened so macOS can ask / off");
    EXPECT_EQ(row(4), "Comet / Allowed — reading the current domain / off");
    EXPECT_EQ(content().notes().size(), 2U);
}

TEST_F(WebsiteStatsPaneTest, PermissionIsThatOfTheLastReload) {
    permit(Browser::safari, Permission::denied);
    stats->reload();
    permit(Browser::safari, Permission::granted);
    EXPECT_EQ(stats->permission(Browser::safari), AutomationPermission::denied);
    stats->reload();
    EXPECT_EQ(stats->permission(Browser::safari), AutomationPermission::granted);
}

TEST_F(WebsiteStatsPaneTest, BrowserThatCameSinceTheLastReloadIsNotYetAsked) {
    stats->reload();
    permit(Browser::safari, Permission::granted);
    EXPECT_EQ(stats->permission(Browser::safari), AutomationPermission::notDetermined);
    EXPECT_EQ(row(0), "Safari / macOS will ask when you allow it / off");
}

TEST_F(WebsiteStatsPaneTest, BrowserThatIsGoneWhileShownSaysSo) {
    permit(Browser::safari, Permission::denied);
    stats->reload();
    permit(Browser::safari, Permission::notInstalled);
    stats->turn(Browser::safari, true);
    EXPECT_EQ(stats->permission(Browser::safari), AutomationPermission::notInstalled);
    EXPECT_FALSE(stats->isRequesting());
    platform.applications.setInstalled(std::string(bundleID(Browser::safari)), true);
    EXPECT_EQ(row(0), "Safari / Not installed / on");
}

TEST_F(WebsiteStatsPaneTest, TurningOnAnAllowedBrowserAsksNobody) {
    permit(Browser::safari, Permission::granted);
    stats->reload();
    stats->turn(Browser::safari, true);
    EXPECT_TRUE(isStored(Browser::safari));
    EXPECT_FALSE(stats->isRequesting());
    EXPECT_FALSE(platform.mainQueue.drain());
}

TEST_F(WebsiteStatsPaneTest, TurningOnAnyOtherBrowserAsksAndShowsTheAnswer) {
    permit(Browser::chrome, Permission::notDetermined);
    stats->reload();
    stats->turn(Browser::chrome, true);
    EXPECT_TRUE(isStored(Browser::chrome));
    EXPECT_TRUE(stats->isRequesting());
    EXPECT_EQ(row(0), "Chrome / macOS will ask when you allow it / on (no clicks)");
    platform.browserAccess.setStatus(std::string(bundleID(Browser::chrome)), 0);
    platform.mainQueue.drain();
    EXPECT_FALSE(stats->isRequesting());
    EXPECT_EQ(row(0), "Chrome / Allowed — reading the current domain / on");
}

TEST_F(WebsiteStatsPaneTest, DeniedBrowserStaysOnAndOffersTheSettings) {
    permit(Browser::chrome, Permission::denied);
    stats->reload();
    stats->turn(Browser::chrome, true);
    platform.mainQueue.drain();
    EXPECT_EQ(row(0), "Chrome / amber: Denied in System Settings › Privacy & Security › Automation / "
                      "<Open Settings> / on");
}

TEST_F(WebsiteStatsPaneTest, DeniedBrowserStaysOnUntilItIsAllowedAndReloaded) {
    const std::string denied =
        "Chrome / amber: Denied in System Settings › Privacy & Security › Automation / "
        "<Open Settings> / on";
    permit(Browser::chrome, Permission::denied);
    platform.preferences.set("websiteStats.chrome", true);
    stats->reload();
    EXPECT_EQ(row(0), denied);
    permit(Browser::chrome, Permission::granted);
    EXPECT_EQ(row(0), denied);
    stats->reload();
    EXPECT_EQ(row(0), "Chrome / Allowed — reading the current domain / on");
    EXPECT_TRUE(isStored(Browser::chrome));
}

TEST_F(WebsiteStatsPaneTest, ClosedBrowserIsOpenedToAsk) {
    permit(Browser::arc, Permission::notRunning);
    stats->reload();
    stats->turn(Browser::arc, true);
    platform.mainQueue.drain();
    EXPECT_EQ(launched, std::vector<std::string>{"company.thebrowser.Browser"});
    EXPECT_FALSE(stats->isRequesting());
}

TEST_F(WebsiteStatsPaneTest, OnePromptAtATime) {
    permit(Browser::chrome, Permission::notDetermined);
    permit(Browser::edge, Permission::notDetermined);
    platform.preferences.set("websiteStats.arc", true);
    stats->reload();
    stats->turn(Browser::chrome, true);
    stats->turn(Browser::edge, true);
    stats->turn(Browser::chrome, false);
    EXPECT_FALSE(isStored(Browser::edge));
    EXPECT_EQ(platform.preferences.object("websiteStats.edge"), nullptr);
    EXPECT_TRUE(isStored(Browser::chrome));
    EXPECT_EQ(row(1), "Edge / macOS will ask when you allow it / off (no clicks)");
    platform.mainQueue.drain();
    stats->turn(Browser::edge, true);
    EXPECT_TRUE(isStored(Browser::edge));
}

TEST_F(WebsiteStatsPaneTest, TurningOffAsksNobodyAndLetsGoAfterTheLastOne) {
    permit(Browser::chrome, Permission::denied);
    permit(Browser::edge, Permission::granted);
    stats->reload();
    platform.preferences.set("websiteStats.chrome", true);
    platform.preferences.set("websiteStats.edge", true);
    stats->turn(Browser::chrome, false);
    EXPECT_FALSE(stats->isRequesting());
    EXPECT_EQ(*platform.preferences.object("websiteStats.chrome"), PreferenceValue(false));
    EXPECT_EQ(releases, 0);
    stats->turn(Browser::edge, false);
    EXPECT_EQ(releases, 1);
}

TEST_F(WebsiteStatsPaneTest, AnswerThatComesTooLateIsDropped) {
    permit(Browser::chrome, Permission::notDetermined);
    stats->reload();
    stats->turn(Browser::chrome, true);
    stats.reset();
    platform.mainQueue.drain();
    EXPECT_TRUE(isStored(Browser::chrome));
}

TEST_F(WebsiteStatsPaneTest, TellsOfChanges) {
    permit(Browser::chrome, Permission::notDetermined);
    int changes = 0;
    const Subscription subscription = stats->observe([&changes] { ++changes; });
    stats->reload();
    EXPECT_EQ(changes, 1);
    stats->turn(Browser::chrome, true);
    EXPECT_EQ(changes, 2);
    platform.browserAccess.setStatus(std::string(bundleID(Browser::chrome)), 0);
    platform.mainQueue.drain();
    EXPECT_EQ(changes, 4);
}

} // namespace
} // namespace kestrelfen
