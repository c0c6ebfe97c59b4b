#include "platform/fake/FakeLog.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/LinuxTrayIcon.hpp"
#include "platform/linux/PrivateBus.hpp"
#include "platform/linux/TestTray.hpp"
#include "platform/linux/TrayHost.hpp"
#include "platform/linux/TrayIconChooser.hpp"
#include "platform/linux/TrayPictures.hpp"

#include <gmock/gmock.h>

namespace kestrelfen {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

/// A tray icon that a test takes in by hand.
class HandTray final : public TrayIcon {
  public:
    void show(TrayContent content) override { title = content.title; }
    void tooltipChanged() override { ++tooltipChanges; }
    bool isShown() const override { return isShown_; }

    void setShown(bool isShown) {
        isShown_ = isShown;
        notifyShown();
    }
    void click(TrayPoint point) { activate(point); }

    std::string title;
    int tooltipChanges = 0;

  private:
    bool isShown_ = false;
};

class TrayIconChooserTest : public testing::Test {
  protected:
    TrayIconChooserTest() {
        chooser_.onActivate([this](std::optional<TrayPoint> point) { clicks_.push_back(point); });
    }

    std::unique_ptr<TrayIcon> makePreferred() {
        auto tray = std::make_unique<HandTray>();
        preferred_ = tray.get();
        return tray;
    }

    std::unique_ptr<TrayIcon> makeFallback() {
        ++fallbacksMade_;
        auto tray = std::make_unique<HandTray>();
        fallback_ = tray.get();
        return tray;
    }

    bool fallsBack(int times) {
        return waitUntil([this, times] { return fallbacksMade_ == times; });
    }

    FakeLog log_;
    HandTray* preferred_ = nullptr;
    HandTray* fallback_ = nullptr;
    int fallbacksMade_ = 0;
    std::vector<std::optional<TrayPoint>> clicks_;
    TrayIconChooser chooser_{makePreferred(), [this] { return makeFallback(); }, log_};
};

TEST_F(TrayIconChooserTest, ThePreferredWayNeedsNoFallback) {
    chooser_.show({{}, "Kestrelfen", {}});
    preferred_->setShown(true);
    pass(700ms);
    EXPECT_TRUE(chooser_.isShown());
    EXPECT_EQ(fallbacksMade_, 0);
    chooser_.tooltipChanged();
    EXPECT_EQ(preferred_->tooltipChanges, 1);
}

TEST_F(TrayIconChooserTest, SwitchesToTheFallbackAndBackAgain) {
    int changes = 0;
    const auto subscription = chooser_.observeShown([&changes] { ++changes; });
    chooser_.show({{}, "Kestrelfen", {}});
    ASSERT_TRUE(fallsBack(1));
    EXPECT_EQ(fallback_->title, "Kestrelfen");
    EXPECT_FALSE(chooser_.isShown());
    fallback_->setShown(true);
    EXPECT_TRUE(chooser_.isShown());
    EXPECT_EQ(changes, 1);
    fallback_->click({1, 2});

    preferred_->setShown(true);
    EXPECT_TRUE(chooser_.isShown());
    EXPECT_EQ(changes, 1);
    preferred_->click({3, 4});

    preferred_->setShown(false);
    EXPECT_FALSE(chooser_.isShown());
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(fallsBack(2));
    EXPECT_THAT(clicks_, ElementsAre(TrayPoint{1, 2}, TrayPoint{3, 4}));
}

TEST_F(TrayIconChooserTest, AShortAbsenceOfThePreferredWayCausesNoSwitch) {
    chooser_.show({{}, "Kestrelfen", {}});
    preferred_->setShown(true);
    preferred_->setShown(false);
    pass(200ms);
    preferred_->setShown(true);
    pass(600ms);
    EXPECT_EQ(fallbacksMade_, 0);
}

TEST_F(TrayIconChooserTest, NoTrayIsOneLineInTheLogAfterSomePatience) {
    chooser_.show({{}, "Kestrelfen", {}});
    pass(2500ms);
    EXPECT_TRUE(log_.lines().empty());
    EXPECT_TRUE(waitUntil([this] { return !log_.lines().empty(); }, 2s));
    preferred_->setShown(true);
    preferred_->setShown(false);
    pass(600ms);
    ASSERT_EQ(log_.lines().size(), 1U);
    EXPECT_EQ(log_.lines().front().category, "Tray");
}

TEST(LinuxTrayIcon, MovesBetweenTheTwoKindsOfRealTray) {
    const BusConnection bus;
    FakeLog log;
    TestTray tray(TestTray::Colours::opaque);
    const auto icon = makeLinuxTrayIcon(bus.get(), log);
    icon->show({{plainPicture(16, opaqueRed)}, "Kestrelfen", {}});
    EXPECT_TRUE(waitUntil([&tray] { return tray.iconPoint({15, 15}) == 0xff0000; }));
    EXPECT_TRUE(icon->isShown());
    {
        TrayHost host;
        EXPECT_EQ(host.next()["event"].toString(), "registered");
        EXPECT_TRUE(waitUntil([&tray] { return tray.iconPoint({15, 15}) == 0; }));
        EXPECT_TRUE(icon->isShown());
    }
    EXPECT_TRUE(waitUntil([&tray] { return tray.iconPoint({15, 15}) == 0xff0000; }));
    EXPECT_TRUE(log.lines().empty());
}

} // namespace
} // namespace kestrelfen
