#include "base/Scenes.hpp"
#include "shell/AppRouter.hpp"
#include "ui/MenuBarView/MenuBarFooter.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

/// Windows as they would stand, and where the router stood at each call.
class FakeSceneWindows final : public SceneWindows {
  public:
    explicit FakeSceneWindows(const AppRouter& router) : router_(router) {}

    std::vector<std::string> identifiers() const override { return open_; }
    void bringToFront(std::size_t index) override { note("front " + open_.at(index)); }
    void open(Scene scene) override {
        open_.emplace_back(rawValue(scene));
        note("open " + open_.back());
    }
    void add(const std::string& identifier) { open_.push_back(identifier); }

    std::vector<std::string> calls;

  private:
    void note(const std::string& call) {
        calls.push_back(call + " at " + std::string(rawValue(router_.mainTab())) + ", " +
                        std::string(rawValue(router_.settingsPane())));
    }

    const AppRouter& router_;
    std::vector<std::string> open_;
};

using Calls = std::vector<std::string>;

class MenuBarFooterTest : public testing::Test {
  protected:
    Calls callsOf(FooterItem item) {
        windows_.calls.clear();
        footer_.perform(item);
        return windows_.calls;
    }

    AppRouter router_;
    FakeSceneWindows windows_{router_};
    int quits_ = 0;
    MenuBarFooter footer_{router_, windows_, [this] { ++quits_; }};
};

TEST(FooterItems, EachHasItsRawValueTitleAndSymbol) {
    struct Row {
        std::string_view raw;
        std::string_view title;
        std::string_view symbol;
    };
    constexpr std::array rows{
        Row{"screenTime", "Screen Time", "chart.bar.fill"},
        Row{"usageDetail", "App Usage Detail", "list.bullet.rectangle"},
        Row{"tasks", "Tasks", "checklist"},
        Row{"breaks", "Break History", "clock.arrow.circlepath"},
        Row{"settings", "Settings", "gearshape.fill"},
        Row{"quit", "Quit Kestrelfen", "power"},
    };
    const auto items = allCases<FooterItem>();
    ASSERT_EQ(items.size(), rows.size());
    for (std::size_t index = 0; index < rows.size(); ++index) {
        EXPECT_EQ(rawValue(items[index]), rows[index].raw);
        EXPECT_EQ(label(items[index]), rows[index].title);
        EXPECT_EQ(symbol(items[index]), rows[index].symbol);
    }
}

TEST(FooterItems, DestinationsAreAllButQuitInOrder) {
    const auto items = allCases<FooterItem>();
    EXPECT_TRUE(
        std::equal(footerDestinations.begin(), footerDestinations.end(), items.begin(), items.end() - 1));
}

TEST_F(MenuBarFooterTest, ScreenTimeOpensItsTab) {
    router_.setMainTab(MainTab::tasks);
    EXPECT_EQ(callsOf(FooterItem::screenTime), (Calls{"open kestrelfen.main at screenTime, timing"}));
    EXPECT_EQ(router_.pendingUsageDetail(), std::nullopt);
}

TEST_F(MenuBarFooterTest, UsageDetailWaitsForTheDashboardToTakeIt) {
    router_.setMainTab(MainTab::tasks);
    EXPECT_EQ(callsOf(FooterItem::usageDetail), (Calls{"open kestrelfen.main at screenTime, timing"}));
    EXPECT_EQ(router_.pendingUsageDetail(), UsageSource::apps);
}

TEST_F(MenuBarFooterTest, TasksOpenTheirTab) {
    EXPECT_EQ(callsOf(FooterItem::tasks), (Calls{"open kestrelfen.main at tasks, timing"}));
}

TEST_F(MenuBarFooterTest, BreaksOpenTheirTab) {
    EXPECT_EQ(callsOf(FooterItem::breaks), (Calls{"open kestrelfen.main at breaks, timing"}));
}

TEST_F(MenuBarFooterTest, OpenWindowShowsTheNewTabAndNoOtherOpens) {
    callsOf(FooterItem::tasks);
    EXPECT_EQ(callsOf(FooterItem::breaks), (Calls{"front kestrelfen.main at breaks, timing"}));
    EXPECT_EQ(windows_.identifiers().size(), 1U);
}

TEST_F(MenuBarFooterTest, WindowNamedWithASuffixIsFound) {
    windows_.add("other");
    windows_.add("kestrelfen.main-AppWindow-1");
    EXPECT_EQ(callsOf(FooterItem::screenTime),
              (Calls{"front kestrelfen.main-AppWindow-1 at screenTime, timing"}));
}

TEST_F(MenuBarFooterTest, SettingsAlwaysOpenAtTheFirstPane) {
    router_.setMainTab(MainTab::tasks);
    router_.setSettingsPane(SettingsPane::about);
    EXPECT_EQ(callsOf(FooterItem::settings), (Calls{"open kestrelfen.settings at tasks, timing"}));
    router_.setSettingsPane(SettingsPane::pausing);
    EXPECT_EQ(callsOf(FooterItem::settings), (Calls{"front kestrelfen.settings at tasks, timing"}));
}

TEST_F(MenuBarFooterTest, QuitAsksForTheEndAndShowsNothing) {
    EXPECT_EQ(callsOf(FooterItem::quit), Calls{});
    EXPECT_EQ(quits_, 1);
}

} // namespace
} // namespace kestrelfen
