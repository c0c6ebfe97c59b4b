#include "platform/DisplayWishesContract.hpp"
#include "platform/linux/BusDaemon.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/LongestGap.hpp"
#include "platform/linux/MockService.hpp"
#include "platform/linux/PortalDisplayWishes.hpp"

#include <gtest/gtest.h>

#include <memory>

namespace kestrelfen {
namespace {

using Values = DisplayWishes::Values;

constexpr char portal[] = "org.freedesktop.portal.Desktop";
constexpr char portalPath[] = "/org/freedesktop/portal/desktop";
constexpr char settings[] = "org.freedesktop.portal.Settings";

constexpr char everyDesktop[] = "'org.freedesktop.appearance'";

/// The settings portal with what it holds, as Python writes it. It takes its name only when it can answer, as
/// the real one does.
class PortalMock {
  public:
    PortalMock(const BusDaemon& bus, const QString& groups)
        : service_(bus, QString(portal) + ".Mock", portalPath, settings) {
        answer("a{sa{sv}}", "ret = {}\nfor group, values in " + groups +
                                ".items():\n    if group in args[0]: ret[group] = values");
        service_.addMethod("Appear", "", "",
                           QString("self.bus_name.get_bus().request_name('") + portal + "')");
    }

    /// What ReadAll does, in Python.
    void answer(const QString& signature, const QString& code) const {
        service_.addMethod("ReadAll", "as", signature, code);
    }

    void appear() const { service_.ask(portalPath, settings, "Appear"); }

    void change(const QString& group, const QString& key, const QVariant& value) const {
        service_.emitSignal(portalPath, settings, "SettingChanged", "ssv", {group, key, value});
    }

    const MockService& service() const { return service_; }

  private:
    MockService service_;
};

QString groupOf(const QString& group, const QString& values) {
    return "{" + group + ": {" + values + "}}";
}

/// The desktop's appearance as its portal tells it; nothing but the colours is wished by the contract.
class PortalSubject {
  public:
    PortalSubject() {
        mock_.appear();
        EXPECT_TRUE(waitUntil([this] { return link_.isConnected(); }));
        settle();
    }

    DisplayWishes& wishes() { return wishes_; }

    void wish(const DisplayWishes::Values& values) const {
        mock_.change("org.freedesktop.appearance", "color-scheme", values.dark.value_or(false) ? 1U : 2U);
    }

    void settle() { pass(std::chrono::milliseconds(250)); }

  private:
    BusDaemon bus_{"DBUS_SESSION_BUS_ADDRESS"};
    PortalMock mock_{bus_, groupOf(everyDesktop, "'color-scheme': dbus.UInt32(0)")};
    BusLink link_{BusLink::Bus::session};
    PortalDisplayWishes wishes_{link_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Portal, DisplayWishesContract, PortalSubject);

class PortalDisplayWishesTest : public testing::Test {
  protected:
    void start(const QString& groups) {
        mock_ = std::make_unique<PortalMock>(bus_, groups);
        mock_->appear();
        listen();
    }

    void listen() {
        link_ = std::make_unique<BusLink>(BusLink::Bus::session);
        wishes_ = std::make_unique<PortalDisplayWishes>(*link_);
        subscription_ = wishes_->observe([this] { ++changes_; });
    }

    bool comesTo(const Values& expected) {
        return waitUntil([&] { return wishes_->values() == expected; });
    }

    BusDaemon bus_{"DBUS_SESSION_BUS_ADDRESS"};
    std::unique_ptr<PortalMock> mock_;
    std::unique_ptr<BusLink> link_;
    std::unique_ptr<PortalDisplayWishes> wishes_;
    Subscription subscription_;
    int changes_ = 0;
};

TEST_F(PortalDisplayWishesTest, withoutAPortalNothingIsTold) {
    listen();
    ASSERT_TRUE(waitUntil([this] { return link_->isConnected(); }));
    pass(std::chrono::milliseconds(200));
    EXPECT_EQ(wishes_->values(), Values());
    EXPECT_EQ(changes_, 0);
}

TEST_F(PortalDisplayWishesTest, whatEveryDesktopSays) {
    start(groupOf(everyDesktop, "'color-scheme': dbus.UInt32(1), 'contrast': dbus.UInt32(1), "
                                "'reduced-motion': dbus.UInt32(1)"));
    EXPECT_TRUE(comesTo({.dark = true, .highContrast = true, .reducedMotion = true}));
    EXPECT_EQ(changes_, 1);
}

TEST_F(PortalDisplayWishesTest, noPreferenceIsNoDarkAndNoLight) {
    start(groupOf(everyDesktop, "'color-scheme': dbus.UInt32(0), 'contrast': dbus.UInt32(0)"));
    EXPECT_TRUE(comesTo({.highContrast = false}));
}

TEST_F(PortalDisplayWishesTest, changesAreFollowed) {
    start(groupOf(everyDesktop, "'color-scheme': dbus.UInt32(2)"));
    ASSERT_TRUE(comesTo({.dark = false}));
    mock_->change("org.freedesktop.appearance", "color-scheme", 1U);
    EXPECT_TRUE(comesTo({.dark = true}));
    mock_->change("org.freedesktop.appearance", "contrast", 1U);
    EXPECT_TRUE(comesTo({.dark = true, .highContrast = true}));
    mock_->change("org.freedesktop.appearance", "accent-color", 5U);
    mock_->change("org.gnome.desktop.interface", "enable-animations", false);
    EXPECT_TRUE(comesTo({.dark = true, .highContrast = true, .reducedMotion = true}));
    EXPECT_EQ(changes_, 4) << "what is not looked at is no change";
}

TEST_F(PortalDisplayWishesTest, gnomesOwnSettingsCount) {
    start("{'org.gnome.desktop.interface': {'enable-animations': False, 'gtk-theme': 'Adwaita'}, "
          "'org.gnome.desktop.a11y.interface': {'high-contrast': True}}");
    EXPECT_TRUE(comesTo({.highContrast = true, .reducedMotion = true}));
}

TEST_F(PortalDisplayWishesTest, aThemeOfHighContrastCounts) {
    start("{'org.gnome.desktop.interface': {'gtk-theme': 'HighContrastInverse', 'enable-animations': True}}");
    EXPECT_TRUE(comesTo({.highContrast = true, .reducedMotion = false}));
}

TEST_F(PortalDisplayWishesTest, kdesDurationOfNothingIsReducedMotion) {
    start("{'org.kde.kdeglobals.KDE': {'AnimationDurationFactor': '0'}}");
    EXPECT_TRUE(comesTo({.reducedMotion = true}));
    mock_->change("org.kde.kdeglobals.KDE", "AnimationDurationFactor", "0.5");
    EXPECT_TRUE(comesTo({.reducedMotion = false}));
    mock_->change("org.kde.kdeglobals.KDE", "AnimationDurationFactor", "0");
    EXPECT_TRUE(comesTo({.reducedMotion = true}));
}

TEST_F(PortalDisplayWishesTest, anAnswerOfAnotherShapeTellsNothing) {
    mock_ = std::make_unique<PortalMock>(bus_, "{}");
    mock_->answer("s", "ret = 'dark'");
    mock_->appear();
    listen();
    mock_->service().emitSignal(portalPath, settings, "SettingChanged", "ss",
                                {"org.freedesktop.appearance", "contrast"});
    pass(std::chrono::milliseconds(300));
    EXPECT_EQ(wishes_->values(), Values());
}

TEST_F(PortalDisplayWishesTest, aPortalThatGoesLeavesTheDesktopWithoutWishes) {
    start(groupOf(everyDesktop, "'color-scheme': dbus.UInt32(1)"));
    ASSERT_TRUE(comesTo({.dark = true}));
    mock_.reset();
    EXPECT_TRUE(comesTo({}));
    mock_ = std::make_unique<PortalMock>(bus_, groupOf(everyDesktop, "'color-scheme': dbus.UInt32(2)"));
    mock_->appear();
    EXPECT_TRUE(comesTo({.dark = false}));
}

TEST_F(PortalDisplayWishesTest, aPortalThatHangsHoldsNothingUp) {
    mock_ = std::make_unique<PortalMock>(bus_, groupOf(everyDesktop, "'color-scheme': dbus.UInt32(1)"));
    mock_->appear();
    mock_->service().suspend();
    EXPECT_LT(LongestGap::during([this] { listen(); }), LongestGap::longestStep);
    EXPECT_EQ(wishes_->values(), Values());
    mock_->service().resume();
    EXPECT_TRUE(comesTo({.dark = true}));
}

} // namespace
} // namespace kestrelfen
