#include "screentime/TrackerTest.hpp"

namespace kestrelfen {
namespace {

constexpr const char* scripted = "script com.google.Chrome";

class WebsiteTest : public TrackerTest {
  protected:
    WebsiteTest() {
        useChrome();
        create();
        tick();
    }

    int scriptsRun() {
        const std::string text = happened();
        int count = 0;
        for (auto place = text.find(scripted); place != std::string::npos;
             place = text.find(scripted, place + 1)) {
            ++count;
        }
        return count;
    }
};

TEST_F(WebsiteTest, TheDomainInFrontIsCreditedBesideTheBrowser) {
    run(2);
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 2", "example.com: 2"}));
    EXPECT_EQ(scriptsRun(), 1);
}

TEST_F(WebsiteTest, ATickThatCreditsNothingAsksNoBrowser) {
    tick(9);
    tick(0);
    EXPECT_EQ(happened(), "");
}

TEST_F(WebsiteTest, ABrowserThatIsNotTurnedOnIsNeverAsked) {
    platform.preferences.set("websiteStats.chrome", false);
    run(10);
    platform.preferences.remove("websiteStats.chrome");
    run(10);
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 20"}));
    EXPECT_EQ(happened(), "");
}

TEST_F(WebsiteTest, TurningABrowserOffIsHeededAtOnce) {
    tick();
    platform.preferences.set("websiteStats.chrome", false);
    tick();
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 2", "example.com: 1"}));
    EXPECT_EQ(scriptsRun(), 1);
}

TEST_F(WebsiteTest, AnotherBrowserBeingOnDoesNotCount) {
    platform.preferences.remove("websiteStats.chrome");
    platform.preferences.set("websiteStats.safari", true);
    tick();
    EXPECT_EQ(happened(), "");
}

TEST_F(WebsiteTest, OnlyABrowserIsAsked) {
    platform.applications.setFrontmost(1);
    run(2);
    platform.applications.start({std::nullopt, "Chrome", 9});
    platform.applications.setFrontmost(9);
    tick();
    platform.applications.setFrontmost(std::nullopt);
    tick();
    EXPECT_EQ(happened(), "");
}

TEST_F(WebsiteTest, AnAnswerStaysInUseForJustUnderFiveSeconds) {
    tick();
    browse("https://other.example/");
    tick(4.999999);
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 5.999999", "example.com: 5.999999"}));
    EXPECT_EQ(scriptsRun(), 1);
    tick(0.000001);
    EXPECT_EQ(pending(),
              lines({"com.google.Chrome 'Chrome' 1: 6", "example.com: 5.999999", "other.example: 0.000001"}));
    EXPECT_EQ(scriptsRun(), 1);
}

TEST_F(WebsiteTest, ABrowserWithoutWindowsIsNotAskedAgainForFiveSeconds) {
    browse("");
    tick();
    browse("https://example.com/");
    run(4);
    EXPECT_EQ(scriptsRun(), 1);
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 5"}));
    tick();
    EXPECT_EQ(scriptsRun(), 1);
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 6", "example.com: 1"}));
}

TEST_F(WebsiteTest, AnotherBrowserIsAskedAtOnce) {
    platform.preferences.set("websiteStats.safari", true);
    platform.browserAccess.setPermission("com.apple.Safari", FakeBrowserPermission::granted);
    platform.browserAccess.setAnswer("com.apple.Safari", std::optional<std::string>("http://safari.example"));
    platform.applications.start({"com.apple.Safari", "Safari", 3}, 1);
    tick();
    platform.applications.setFrontmost(3);
    tick();
    platform.applications.setFrontmost(2);
    tick();
    EXPECT_EQ(happened(), lines({"08:00:02 script com.google.Chrome", "08:00:03 script com.apple.Safari",
                                 "08:00:04 script com.google.Chrome"}));
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 2", "com.apple.Safari 'Safari' 1: 1",
                                "example.com: 2", "safari.example: 1"}));
}

TEST_F(WebsiteTest, AnotherAppInBetweenLeavesTheAnswerInUse) {
    tick();
    platform.applications.setFrontmost(1);
    tick();
    platform.applications.setFrontmost(2);
    tick();
    EXPECT_EQ(scriptsRun(), 1);
}

TEST_F(WebsiteTest, ARefusedOrFailingBrowserStillCreditsTheApp) {
    platform.browserAccess.setPermission("com.google.Chrome", FakeBrowserPermission::denied);
    tick();
    EXPECT_EQ(happened(), "");
    platform.browserAccess.setPermission("com.google.Chrome", FakeBrowserPermission::granted);
    browse(BrowserAccess::ScriptFailure{"no"});
    run(5);
    EXPECT_EQ(happened(), lines({"08:00:07 script com.google.Chrome",
                                 "08:00:07 log debug BrowserScripting: Chrome script failed: no"}));
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 6"}));
}

TEST_F(WebsiteTest, APageThatIsNoSiteIsNoDomain) {
    browse("chrome://newtab/");
    tick();
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 1"}));
    forget();
}

TEST_F(WebsiteTest, AnAnswerOnItsWayIsAskedForAgainAtTheNextTick) {
    browse(BrowserAccess::ScriptPending{});
    run(2);
    EXPECT_EQ(scriptsRun(), 2);
    browse("https://example.com/");
    run(5);
    EXPECT_EQ(scriptsRun(), 1);
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 7", "example.com: 5"}));
}

TEST_F(WebsiteTest, TheFormerAnswerStaysInUseWhileTheNextIsOnItsWay) {
    tick();
    browse(BrowserAccess::ScriptPending{});
    run(5);
    browse("https://other.example/");
    tick();
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 7", "example.com: 6", "other.example: 1"}));
    EXPECT_EQ(scriptsRun(), 3);
}

TEST_F(WebsiteTest, ABrowserThatHangsIsNoSiteAfterTenSeconds) {
    tick();
    browse(BrowserAccess::ScriptPending{});
    run(20);
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 21", "example.com: 10"}));
    forget();
}

TEST_F(WebsiteTest, ABrowserOnItsWayDoesNotInheritAnotherOnesSite) {
    tick();
    platform.preferences.set("websiteStats.safari", true);
    platform.browserAccess.setPermission("com.apple.Safari", FakeBrowserPermission::granted);
    platform.browserAccess.setAnswer("com.apple.Safari",
                                     BrowserAccess::ScriptResult(BrowserAccess::ScriptPending{}));
    platform.applications.start({"com.apple.Safari", "Safari", 3}, 1);
    platform.applications.setFrontmost(3);
    run(2);
    EXPECT_EQ(pending(),
              lines({"com.google.Chrome 'Chrome' 1: 1", "com.apple.Safari 'Safari' 1: 2", "example.com: 1"}));
    forget();
}

} // namespace
} // namespace kestrelfen
