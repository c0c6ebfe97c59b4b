#include "sensing/BrowserTest.hpp"

namespace kestrelfen {
namespace {

class BrowserScriptingTest : public BrowserTest {
  protected:
    /// "none", "pending" or the domain.
    std::string askChrome() {
        const auto answer = scripting->frontmostDomain(Browser::chrome);
        EXPECT_FALSE(answer.isPending && answer.domain);
        return answer.isPending ? "pending" : answer.domain.value_or("none");
    }

    std::string askChromeThatAnswers(std::optional<BrowserAccess::ScriptResult> answer) {
        setAnswer(Browser::chrome, std::move(answer));
        return askChrome();
    }
};

using Text = std::optional<std::string>;

TEST_F(BrowserScriptingTest, AGrantedBrowserIsAskedForItsDomain) {
    setPermission(Browser::chrome, FakeBrowserPermission::granted);
    EXPECT_EQ(askChromeThatAnswers(Text("https://www.example.com/path?q=1")), "example.com");
    EXPECT_EQ(access.lastScript(), script(Browser::chrome));
    EXPECT_EQ(happened(), lines({"08:00:00 script com.google.Chrome"}));
}

TEST_F(BrowserScriptingTest, AnUndeterminedPermissionLetsTheScriptRun) {
    setPermission(Browser::chrome, FakeBrowserPermission::notDetermined);
    EXPECT_EQ(askChromeThatAnswers(Text("https://example.com/")), "example.com");
    EXPECT_EQ(happened(), lines({"08:00:00 script com.google.Chrome"}));
}

TEST_F(BrowserScriptingTest, ADeniedClosedOrMissingBrowserNeverRunsTheScript) {
    setAnswer(Browser::chrome, Text("https://example.com/"));
    for (const auto permission : {FakeBrowserPermission::denied, FakeBrowserPermission::notRunning,
                                  FakeBrowserPermission::notInstalled}) {
        setPermission(Browser::chrome, permission);
        EXPECT_EQ(askChrome(), "none") << rawValue(permission);
        EXPECT_EQ(happened(), "");
    }
}

TEST_F(BrowserScriptingTest, ABrowserWithoutWindowsHasNoDomainAndNoLine) {
    setPermission(Browser::chrome, FakeBrowserPermission::granted);
    EXPECT_EQ(askChromeThatAnswers(Text("")), "none");
    EXPECT_EQ(happened(), lines({"08:00:00 script com.google.Chrome"}));
}

TEST_F(BrowserScriptingTest, AnAnswerThatIsNoTextHasNoDomainAndNoLine) {
    setPermission(Browser::chrome, FakeBrowserPermission::granted);
    EXPECT_EQ(askChromeThatAnswers(Text()), "none");
    EXPECT_EQ(happened(), lines({"08:00:00 script com.google.Chrome"}));
}

TEST_F(BrowserScriptingTest, AFailingScriptIsADebugLine) {
    setPermission(Browser::chrome, FakeBrowserPermission::granted);
    EXPECT_EQ(askChromeThatAnswers(BrowserAccess::ScriptFailure{"it hangs"}), "none");
    EXPECT_EQ(happened(), lines({"08:00:00 script com.google.Chrome",
                                 "08:00:00 debug BrowserScripting: Chrome script failed: it hangs"}));
}

TEST_F(BrowserScriptingTest, AScriptThatCannotBeMadeHasNoDomainAndNoLine) {
    setPermission(Browser::chrome, FakeBrowserPermission::granted);
    EXPECT_EQ(askChromeThatAnswers(std::nullopt), "none");
}

TEST_F(BrowserScriptingTest, AnAnswerOnItsWayIsToldApartFromNone) {
    setPermission(Browser::chrome, FakeBrowserPermission::granted);
    EXPECT_EQ(askChromeThatAnswers(BrowserAccess::ScriptPending{}), "pending");
    EXPECT_EQ(happened(), lines({"08:00:00 script com.google.Chrome"}));
}

TEST_F(BrowserScriptingTest, APageThatIsNoSiteHasNoDomain) {
    setPermission(Browser::chrome, FakeBrowserPermission::granted);
    EXPECT_EQ(askChromeThatAnswers(Text("chrome://newtab/")), "none");
    EXPECT_EQ(happened(), lines({"08:00:00 script com.google.Chrome"}));
}

TEST_F(BrowserScriptingTest, EachBrowserIsAskedByItsOwnScript) {
    for (const Browser browser : allCases<Browser>()) {
        setPermission(browser, FakeBrowserPermission::granted);
        setAnswer(browser, Text("https://" + std::string(rawValue(browser)) + ".example/"));
        EXPECT_EQ(scripting->frontmostDomain(browser).domain, std::string(rawValue(browser)) + ".example");
        EXPECT_EQ(access.lastScript(), script(browser));
        EXPECT_EQ(happened(), lines({"08:00:00 script " + std::string(bundleID(browser))}));
    }
}

TEST_F(BrowserScriptingTest, AnAddressNeverReachesTheLog) {
    setPermission(Browser::chrome, FakeBrowserPermission::granted);
    for (const char* address : {"https://example.com/secret?q=secret", "file:///secret", "secret secret"}) {
        askChromeThatAnswers(Text(address));
        EXPECT_EQ(happened(), lines({"08:00:00 script com.google.Chrome"}));
    }
}

TEST_F(BrowserScriptingTest, WhatWasTurnedOnIsLetGoWithTheLastBrowser) {
    platform.preferences.set("websiteStats.safari", true);
    platform.preferences.set("websiteStats.comet", true);
    scripting->releaseUnlessEnabled(platform.preferences);
    platform.preferences.set("websiteStats.safari", false);
    scripting->releaseUnlessEnabled(platform.preferences);
    EXPECT_EQ(happened(), "");
    platform.preferences.remove("websiteStats.comet");
    scripting->releaseUnlessEnabled(platform.preferences);
    EXPECT_EQ(happened(), lines({"08:00:00 release"}));
}

} // namespace
} // namespace kestrelfen
