#include "AppDelegateTest.hpp"

namespace kestrelfen {
namespace {

class StartUpTest : public AppDelegateTest {
  protected:
    StartUpTest() {
        platform.interfaceAppearance.onSet = [this](InterfaceStyle style) {
            trace.add("appearance " + std::string(rawValue(style)));
        };
        platform.notificationAuthorization.onRequest = [this] { trace.add("authorization asked"); };
        platform.activationPolicy.onSet = [this](ActivationPolicyKind policy) {
            trace.add("policy " + std::string(rawValue(policy)));
        };
    }

    void TearDown() override {
        forget();
        destroyDelegate();
        forget();
    }
};

TEST_F(StartUpTest, ComesUpInOrder) {
    platform.preferences.remove("didRequestNotificationAuthorization");
    platform.preferences.set("appearance", std::string("dark"));
    platform.activationPolicy.setWindows({{.isVisible = true, .isTitled = true, .isPanel = false}});
    delegate().applicationDidFinishLaunching();
    EXPECT_EQ(happened(),
              lines({"08:00:00 appearance dark", "08:00:00 policy regular",
                     "08:00:00 log StatusItem: right click enabled on the status item",
                     "08:00:00 log BreakEngine: work 20 min → break at 08:20 (next break long: false)"}));
    settle();
    EXPECT_EQ(happened(),
              lines({"08:00:00 authorization asked",
                     "08:00:00 log BreakEngine: hydrated day 2026-03-09: 0 completed, 0 skipped"}));
}

TEST_F(StartUpTest, AuthorizationIsAskedOnceInTheLifeOfThePreferences) {
    platform.preferences.remove("didRequestNotificationAuthorization");
    delegate().applicationDidFinishLaunching();
    EXPECT_EQ(platform.preferences.boolean("didRequestNotificationAuthorization"), true);
    settle();
    forget();
    destroyDelegate();
    delegate().applicationDidFinishLaunching();
    settle();
    EXPECT_EQ(happened().find("authorization"), std::string::npos);
}

TEST_F(StartUpTest, ChangedAppearanceIsAppliedAtOnce) {
    launch();
    platform.preferences.set("appearance", std::string("light"));
    EXPECT_EQ(platform.interfaceAppearance.style(), InterfaceStyle::light);
    platform.preferences.set("appearance", std::string("neither"));
    EXPECT_EQ(platform.interfaceAppearance.style(), InterfaceStyle::system);
}

TEST_F(StartUpTest, WindowThatClosesTakesTheProgramOffTheTaskListOneTurnLater) {
    platform.activationPolicy.setWindows({{.isVisible = true, .isTitled = true, .isPanel = false}});
    launch();
    platform.activationPolicy.send(ProgramWindowEvent::willClose);
    platform.activationPolicy.setWindows({});
    EXPECT_EQ(happened(), "");
    settle();
    EXPECT_EQ(happened(), lines({"08:00:00 policy accessory"}));
}

TEST_F(StartUpTest, WindowThatBecomesKeyPutsTheProgramOnTheTaskListOneTurnLater) {
    launch();
    platform.activationPolicy.setWindows({{.isVisible = true, .isTitled = true, .isPanel = false}});
    platform.activationPolicy.send(ProgramWindowEvent::didBecomeKey);
    EXPECT_EQ(happened(), "");
    settle();
    EXPECT_EQ(happened(), lines({"08:00:00 policy regular"}));
}

TEST_F(StartUpTest, AfterTheEndNoWindowIsWatched) {
    launch();
    delegate().applicationWillTerminate();
    settle();
    forget();
    platform.activationPolicy.setWindows({{.isVisible = true, .isTitled = true, .isPanel = false}});
    platform.activationPolicy.send(ProgramWindowEvent::didBecomeKey);
    settle();
    EXPECT_EQ(happened(), "");
}

TEST_F(StartUpTest, RouterStandsAtTheFirstTabAndTheFirstPane) {
    EXPECT_EQ(delegate().router().mainTab(), MainTab::screenTime);
    EXPECT_EQ(delegate().router().settingsPane(), SettingsPane::timing);
    EXPECT_EQ(delegate().router().pendingUsageDetail(), std::nullopt);
}

TEST(AppRouterTest, TellsOfRealChangesOnly) {
    AppRouter router;
    int told = 0;
    const Subscription subscription = router.observe([&told] { ++told; });
    router.setMainTab(MainTab::screenTime);
    router.setSettingsPane(SettingsPane::timing);
    router.setPendingUsageDetail(std::nullopt);
    EXPECT_EQ(told, 0);
    router.setMainTab(MainTab::tasks);
    router.setSettingsPane(SettingsPane::about);
    router.setPendingUsageDetail(UsageSource::apps);
    EXPECT_EQ(told, 3);
}

TEST(AppRouterTest, PlacesAreNamedInOrder) {
    EXPECT_EQ(rawValue(MainTab::screenTime), "screenTime");
    EXPECT_EQ(rawValue(MainTab::breaks), "breaks");
    EXPECT_EQ(rawValue(MainTab::tasks), "tasks");
    std::string panes;
    for (const SettingsPane pane : allCases<SettingsPane>()) {
        panes += std::string(rawValue(pane)) + " ";
    }
    EXPECT_EQ(panes, "timing enforcement smartPause pausing websiteStats notifications appearance about ");
}

} // namespace
} // namespace kestrelfen
