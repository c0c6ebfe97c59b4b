#include "ContentTest.hpp"
#include "base/Scenes.hpp"
#include "shell/AppRouter.hpp"
#include "ui/MainWindowView/MainWindowActions.hpp"
#include "ui/MainWindowView/MainWindowContent.hpp"

namespace kestrelfen {
namespace {

class MainWindowContentTest : public ContentTest {
  protected:
    MainWindowContent content() { return MainWindowContent::of(engine(), platform.preferences); }
};

TEST_F(MainWindowContentTest, WelcomeStandsUntilItIsDone) {
    EXPECT_TRUE(content().showsOnboarding);
    prefer("hasCompletedOnboarding", true);
    EXPECT_FALSE(content().showsOnboarding);
}

TEST_F(MainWindowContentTest, MetaFollowsTheState) {
    EXPECT_EQ(content().meta, "idle");
    start();
    wait(0.5);
    EXPECT_EQ(content().meta, "next break 20:00");
    enterWarning(10);
    EXPECT_EQ(content().meta, "next break 0:10");
    beginBreak();
    EXPECT_EQ(content().meta, "on break 0:20");
}

TEST_F(MainWindowContentTest, MetaOfAPauseIsItsRawName) {
    for (const PauseReason reason : allCases<PauseReason>()) {
        create().start();
        engine().pause(reason);
        EXPECT_EQ(content().meta, rawValue(reason));
    }
}

TEST_F(MainWindowContentTest, TabsAreNamed) {
    EXPECT_EQ(mainTabLabel(MainTab::screenTime), "Screen Time");
    EXPECT_EQ(mainTabLabel(MainTab::breaks), "Breaks");
    EXPECT_EQ(mainTabLabel(MainTab::tasks), "Tasks");
}

class OpenedScenes final : public SceneWindows {
  public:
    std::vector<std::string> open_;

    std::vector<std::string> identifiers() const override { return open_; }
    void bringToFront(std::size_t index) override { open_.push_back("front " + open_.at(index)); }
    void open(Scene scene) override { open_.emplace_back(rawValue(scene)); }
};

TEST(MainWindowActions, SettingsOpenAtTheirFirstPane) {
    AppRouter router;
    OpenedScenes windows;
    router.setSettingsPane(SettingsPane::about);
    MainWindowActions(router, windows).openSettings();
    EXPECT_EQ(router.settingsPane(), SettingsPane::timing);
    EXPECT_EQ(windows.open_, (std::vector<std::string>{"kestrelfen.settings"}));
    MainWindowActions(router, windows).openSettings();
    EXPECT_EQ(windows.open_.back(), "front kestrelfen.settings");
}

} // namespace
} // namespace kestrelfen
