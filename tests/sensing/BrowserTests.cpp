#include "platform/fake/FakeApplications.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "sensing/AutomationPermission.hpp"
#include "sensing/Browser.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

TEST(BrowserTableTest, HoldsTheTable) {
    std::string table;
    for (const Browser browser : allCases<Browser>()) {
        for (const std::string_view text :
             {rawValue(browser), bundleID(browser), displayName(browser), settingsKey(browser)}) {
            table += std::string(text) + "|";
        }
        table += "\n";
    }
    EXPECT_EQ(table, "safari|com.apple.Safari|Safari|websiteStats.safari|\n"
                     "chrome|com.google.Chrome|Chrome|websiteStats.chrome|\n"
                     "brave|com.brave.Browser|Brave|websiteStats.brave|\n"
                     "edge|com.microsoft.edgemac|Edge|websiteStats.edge|\n"
                     "arc|company.thebrowser.Browser|Arc|websiteStats.arc|\n"
                     "vivaldi|com.vivaldi.Vivaldi|Vivaldi|websiteStats.vivaldi|\n"
                     "opera|com.operasoftware.Opera|Opera|websiteStats.opera|\n"
                     "comet|ai.perplexity.comet|Comet|websiteStats.comet|\n");
}

TEST(BrowserTableTest, TheScriptAsksSafariForItsCurrentTab) {
    EXPECT_EQ(script(Browser::safari), "tell application id \"com.apple.Safari\"\n"
                                       "    if (count of windows) is 0 then return \"\"\n"
                                       "    return URL of current tab of front window\n"
                                       "end tell");
}

TEST(BrowserTableTest, TheScriptAsksEveryOtherForItsActiveTab) {
    for (const Browser browser : allCases<Browser>()) {
        if (browser != Browser::safari) {
            EXPECT_EQ(script(browser), "tell application id \"" + std::string(bundleID(browser)) +
                                           "\"\n"
                                           "    if (count of windows) is 0 then return \"\"\n"
                                           "    return URL of active tab of front window\n"
                                           "end tell");
        }
    }
}

TEST(BrowserTableTest, MatchesAnExactIdentifier) {
    for (const Browser browser : allCases<Browser>()) {
        EXPECT_EQ(matchingBrowser(bundleID(browser)), browser);
    }
    for (const char* other : {"org.mozilla.firefox", "app.zen-browser.zen", "com.google.chrome",
                              "com.google.Chrome.canary", "com.apple.Safar", "chrome", ""}) {
        EXPECT_EQ(matchingBrowser(other), std::nullopt) << other;
    }
}

TEST(BrowserTableTest, IsInstalledWhenTheSystemKnowsIt) {
    FakeApplications applications;
    applications.setInstalled("com.brave.Browser", true);
    EXPECT_TRUE(isInstalled(Browser::brave, applications));
    EXPECT_FALSE(isInstalled(Browser::chrome, applications));
    applications.setInstalled("com.brave.Browser", false);
    EXPECT_FALSE(isInstalled(Browser::brave, applications));
}

TEST(BrowserTableTest, IsOffUntilThePersonTurnsItOn) {
    FakePreferences preferences;
    for (const Browser browser : allCases<Browser>()) {
        EXPECT_FALSE(isEnabled(browser, preferences));
    }
    preferences.set("websiteStats.opera", true);
    EXPECT_TRUE(isEnabled(Browser::opera, preferences));
    EXPECT_FALSE(isEnabled(Browser::chrome, preferences));
    preferences.set("websiteStats.opera", false);
    EXPECT_FALSE(isEnabled(Browser::opera, preferences));
}

TEST(AutomationPermissionTest, HasFiveCasesInOrder) {
    std::string names;
    for (const AutomationPermission permission : allCases<AutomationPermission>()) {
        names += std::string(rawValue(permission)) + " ";
    }
    EXPECT_EQ(names, "granted denied notDetermined notRunning notInstalled ");
}

} // namespace
} // namespace kestrelfen
