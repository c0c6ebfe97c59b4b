#include "sensing/BrowserTest.hpp"

namespace kestrelfen {
namespace {

constexpr const char* chrome = "com.google.Chrome";

class BrowserPermissionTest : public BrowserTest {
  protected:
    AutomationPermission permissionFor(std::optional<int> status, bool askUser = false) {
        access.setStatus(chrome, status);
        return scripting->determinePermission(Browser::chrome, askUser);
    }

    void request() {
        scripting->openAndRequestPermission(Browser::chrome, [this](AutomationPermission permission) {
            trace.add("answer " + std::string(rawValue(permission)));
        });
    }

    void advance(double seconds) {
        platform.clock.advance(seconds);
        platform.mainQueue.drain();
    }

    /// Passes time in steps of a quarter of a second.
    void pass(int quarters) {
        for (; quarters > 0; --quarters) {
            advance(0.25);
        }
    }
};

TEST_F(BrowserPermissionTest, MapsTheCodesOfTheSystem) {
    applications.setInstalled(chrome, true);
    for (const bool askUser : {false, true}) {
        EXPECT_EQ(permissionFor(0, askUser), AutomationPermission::granted);
        EXPECT_EQ(permissionFor(-1743, askUser), AutomationPermission::denied);
        EXPECT_EQ(permissionFor(-1744, askUser), AutomationPermission::notDetermined);
        EXPECT_EQ(permissionFor(-600, askUser), AutomationPermission::notRunning);
        for (const int other : {1, -1, -1742, -1745, -601, -599, -50, 600}) {
            EXPECT_EQ(permissionFor(other, askUser), AutomationPermission::notDetermined) << other;
        }
        EXPECT_EQ(trace.take().empty(), !askUser);
    }
}

TEST_F(BrowserPermissionTest, ThePersonIsAskedOnlyWhereThatIsWanted) {
    setPermission(Browser::chrome, FakeBrowserPermission::notDetermined);
    scripting->determinePermission(Browser::chrome, false);
    EXPECT_EQ(happened(), "");
    scripting->determinePermission(Browser::chrome, true);
    EXPECT_EQ(happened(), lines({"08:00:00 ask com.google.Chrome"}));
}

TEST_F(BrowserPermissionTest, ATargetThatCannotBeNamedIsUndetermined) {
    applications.setInstalled(chrome, true);
    EXPECT_EQ(permissionFor(std::nullopt), AutomationPermission::notDetermined);
}

TEST_F(BrowserPermissionTest, ABrowserThatIsNotThereIsNotInstalledWhateverTheCode) {
    for (const int status : {0, -1743, -1744, -600}) {
        EXPECT_EQ(permissionFor(status), AutomationPermission::notInstalled) << status;
    }
}

TEST_F(BrowserPermissionTest, AMissingBrowserIsNotLaunched) {
    request();
    platform.mainQueue.drain();
    EXPECT_EQ(happened(), lines({"08:00:00 answer notInstalled"}));
}

TEST_F(BrowserPermissionTest, ARunningBrowserIsAskedWithoutALaunch) {
    setPermission(Browser::chrome, FakeBrowserPermission::granted);
    request();
    EXPECT_EQ(happened(), "") << "the question leaves the main thread";
    platform.mainQueue.drain();
    EXPECT_EQ(happened(), lines({"08:00:00 ask com.google.Chrome", "08:00:00 answer granted"}));
}

TEST_F(BrowserPermissionTest, ABrowserInTheListOfTasksRuns) {
    setPermission(Browser::chrome, FakeBrowserPermission::notRunning);
    applications.start({chrome, "Chrome", 7});
    access.setStatus(chrome, -1743);
    request();
    platform.mainQueue.drain();
    EXPECT_EQ(happened(), lines({"08:00:00 ask com.google.Chrome", "08:00:00 answer denied"}));
}

TEST_F(BrowserPermissionTest, AClosedBrowserIsLaunchedFirst) {
    setPermission(Browser::chrome, FakeBrowserPermission::notRunning);
    EXPECT_EQ(scripting->determinePermission(Browser::chrome, false), AutomationPermission::notRunning);
    access.setStatus(chrome, 0);
    request();
    platform.mainQueue.drain();
    EXPECT_EQ(happened(), lines({"08:00:00 prepare", "08:00:00 launch com.google.Chrome",
                                 "08:00:00 ask com.google.Chrome", "08:00:00 answer granted"}));
}

TEST_F(BrowserPermissionTest, ASlowBrowserIsAskedAtTheFirstLookThatFindsIt) {
    setPermission(Browser::chrome, FakeBrowserPermission::notRunning);
    applications.launchesFail = true;
    request();
    advance(0);
    EXPECT_EQ(happened(), lines({"08:00:00 prepare", "08:00:00 launch com.google.Chrome"}));
    pass(6);
    platform.clock.advance(0.1);
    applications.setRunningUnseen(chrome, true);
    access.setStatus(chrome, 0);
    platform.mainQueue.drain();
    EXPECT_EQ(happened(), "");
    advance(0.15);
    EXPECT_EQ(happened(), lines({"08:00:01.75 ask com.google.Chrome", "08:00:01.75 answer granted"}));
}

TEST_F(BrowserPermissionTest, AFailingLaunchCostsFiveSecondsAndThenTellsWhatTheSystemSays) {
    setPermission(Browser::chrome, FakeBrowserPermission::notRunning);
    applications.launchesFail = true;
    request();
    advance(0);
    pass(19);
    EXPECT_EQ(happened(), lines({"08:00:00 prepare", "08:00:00 launch com.google.Chrome"}));
    pass(1);
    EXPECT_EQ(happened(), lines({"08:00:05 ask com.google.Chrome", "08:00:05 answer notRunning"}));
    pass(40);
}

TEST_F(BrowserPermissionTest, ABrowserThatGoesWhileItIsAwaitedIsNotInstalled) {
    setPermission(Browser::chrome, FakeBrowserPermission::notRunning);
    applications.launchesFail = true;
    request();
    advance(0);
    applications.setInstalled(chrome, false);
    pass(20);
    EXPECT_EQ(happened(), lines({"08:00:00 prepare", "08:00:00 launch com.google.Chrome",
                                 "08:00:05 answer notInstalled"}));
}

TEST_F(BrowserPermissionTest, NobodyIsToldOnceTheAskerHasGone) {
    setPermission(Browser::chrome, FakeBrowserPermission::notRunning);
    applications.launchesFail = true;
    request();
    advance(0);
    pass(2);
    scripting.reset();
    pass(40);
    EXPECT_EQ(happened(), lines({"08:00:00 prepare", "08:00:00 launch com.google.Chrome"}));
}

TEST_F(BrowserPermissionTest, NothingIsLaunchedOnceTheAskerHasGone) {
    setPermission(Browser::chrome, FakeBrowserPermission::notRunning);
    request();
    scripting.reset();
    advance(0);
    EXPECT_EQ(happened(), lines({"08:00:00 prepare"}));
}

TEST_F(BrowserPermissionTest, AnAnswerThatComesAfterTheAskersEndReachesNobody) {
    setPermission(Browser::chrome, FakeBrowserPermission::granted);
    request();
    scripting.reset();
    platform.mainQueue.drain();
    EXPECT_EQ(happened(), lines({"08:00:00 ask com.google.Chrome"}));
}

} // namespace
} // namespace kestrelfen
