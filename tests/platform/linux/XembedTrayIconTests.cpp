#include "platform/linux/ChildProcess.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/FocusedWindow.hpp"
#include "platform/linux/TestTray.hpp"
#include "platform/linux/TrayPictures.hpp"
#include "platform/linux/VirtualDisplay.hpp"
#include "platform/linux/XembedTrayIcon.hpp"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace kestrelfen {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

constexpr QPoint inside(15, 15);
constexpr TrayPoint insideOnScreen{TestTray::place.x() + inside.x(), TestTray::place.y() + inside.y()};

/// The visible windows of this name.
QStringList windowsNamed(const QString& name) {
    return outputOf("xdotool", {"search", "--onlyvisible", "--name", name}).split('\n', Qt::SkipEmptyParts);
}

void pointAtIcon() {
    xdotool({"mousemove", QString::number(insideOnScreen.x), QString::number(insideOnScreen.y)});
}

void pointElsewhere() {
    xdotool({"mousemove", "600", "400"});
}

class XembedTrayIconTest : public testing::Test {
  protected:
    XembedTrayIconTest() {
        pointElsewhere();
        icon_.onActivate([this](std::optional<TrayPoint> point) { clicks_.push_back(point); });
    }

    TrayContent content(std::uint32_t colour = opaqueRed) {
        return {{plainPicture(16, colour), plainPicture(64, colour)}, "Kestrelfen", [this] {
                    ++tooltipReads_;
                    return std::string("next break in 12:34");
                }};
    }

    bool becomesShown(bool isShown = true) {
        return waitUntil([this, isShown] { return icon_.isShown() == isShown; });
    }

    int tooltipReads_ = 0;
    std::vector<std::optional<TrayPoint>> clicks_;
    XembedTrayIcon icon_;
};

TEST_F(XembedTrayIconTest, DrawsOverThePanel) {
    TestTray tray(TestTray::Colours::opaque);
    icon_.show(content());
    ASSERT_TRUE(becomesShown());
    EXPECT_TRUE(waitUntil([&tray] { return tray.iconPoint(inside) == 0xff0000; }));

    // Half of the panel's colour shines through a green of half strength.
    icon_.show(content(0x8000ff00));
    EXPECT_TRUE(waitUntil([&tray] { return tray.iconPoint(inside) == 0x10a030; }))
        << std::hex << tray.iconPoint(inside);
}

TEST_F(XembedTrayIconTest, LeavesTransparencyToATrayThatComposes) {
    TestTray tray(TestTray::Colours::withAlpha);
    icon_.show(content(0x8000ff00));
    ASSERT_TRUE(becomesShown());
    EXPECT_TRUE(waitUntil([&tray] { return tray.iconPoint(inside) == 0x80008000; }))
        << std::hex << tray.iconPoint(inside);
}

TEST_F(XembedTrayIconTest, LeftAndRightClickActivateAtThePoint) {
    TestTray tray(TestTray::Colours::opaque);
    icon_.show(content());
    ASSERT_TRUE(becomesShown());
    pointAtIcon();
    xdotool({"click", "1"});
    EXPECT_TRUE(waitUntil([this] { return clicks_.size() == 1; }));
    xdotool({"click", "2"});
    xdotool({"click", "3"});
    EXPECT_TRUE(waitUntil([this] { return clicks_.size() == 2; }));
    pass(50ms);
    EXPECT_THAT(clicks_, ElementsAre(insideOnScreen, insideOnScreen));
}

TEST_F(XembedTrayIconTest, AClickThatEndsElsewhereIsNone) {
    TestTray tray(TestTray::Colours::opaque);
    icon_.show(content());
    ASSERT_TRUE(becomesShown());
    pointAtIcon();
    xdotool({"mousedown", "1"});
    pointElsewhere();
    xdotool({"mouseup", "1"});
    pass(100ms);
    EXPECT_TRUE(clicks_.empty());
}

TEST_F(XembedTrayIconTest, TheTooltipShowsWhileHoveredAndStaysExact) {
    TestTray tray(TestTray::Colours::opaque);
    icon_.show(content());
    ASSERT_TRUE(becomesShown());
    pointAtIcon();
    pass(200ms);
    EXPECT_EQ(tooltipReads_, 0);
    EXPECT_TRUE(waitUntil([this] { return tooltipReads_ > 0; }));
    EXPECT_EQ(windowsNamed("^Kestrelfen tooltip$").size(), 1);
    const int readsSoFar = tooltipReads_;
    EXPECT_TRUE(waitUntil([this, readsSoFar] { return tooltipReads_ > readsSoFar; }, 3s));

    pointElsewhere();
    EXPECT_TRUE(waitUntil([] { return windowsNamed("^Kestrelfen tooltip$").isEmpty(); }));
    const int readsAtTheEnd = tooltipReads_;
    pass(1200ms);
    EXPECT_EQ(tooltipReads_, readsAtTheEnd);
}

TEST_F(XembedTrayIconTest, APressHidesTheTooltip) {
    TestTray tray(TestTray::Colours::opaque);
    icon_.show(content());
    ASSERT_TRUE(becomesShown());
    pointAtIcon();
    ASSERT_TRUE(waitUntil([] { return windowsNamed("^Kestrelfen tooltip$").size() == 1; }));
    xdotool({"click", "1"});
    EXPECT_TRUE(waitUntil([] { return windowsNamed("^Kestrelfen tooltip$").isEmpty(); }));
}

TEST_F(XembedTrayIconTest, AnotherTrayIsFoundWhenOneHasGone) {
    icon_.show(content());
    int changes = 0;
    const auto subscription = icon_.observeShown([&changes] { ++changes; });
    {
        TestTray tray(TestTray::Colours::opaque);
        ASSERT_TRUE(becomesShown());
    }
    EXPECT_TRUE(becomesShown(false));
    TestTray successor(TestTray::Colours::withAlpha);
    EXPECT_TRUE(becomesShown());
    EXPECT_TRUE(waitUntil([&successor] { return successor.iconPoint(inside) == opaqueRed; }));
    EXPECT_EQ(changes, 3);
}

TEST_F(XembedTrayIconTest, LivesInARealPanelThatRestarts) {
    const QTemporaryDir folder;
    QFile configuration(folder.filePath("tint2rc"));
    ASSERT_TRUE(configuration.open(QIODevice::WriteOnly));
    configuration.write("panel_items = S\npanel_size = 200 40\npanel_position = top left horizontal\n"
                        "panel_margin = 0 0\nsystray_padding = 0 0 0\nsystray_icon_size = 24\n");
    configuration.close();
    const QStringList arguments{"-c", configuration.fileName()};
    // The panel waits for a window manager to have said this.
    outputOf("xprop",
             {"-root", "-f", "_NET_NUMBER_OF_DESKTOPS", "32c", "-set", "_NET_NUMBER_OF_DESKTOPS", "1"});

    icon_.show(content());
    for (int run = 1; run <= 2; ++run) {
        const ChildProcess panel("tint2", arguments);
        ASSERT_TRUE(becomesShown());
        ASSERT_TRUE(waitUntil([] { return windowsNamed("^Kestrelfen$").size() == 1; }));
        pass(300ms);
        xdotool({"mousemove", "--window", windowsNamed("^Kestrelfen$").value(0), "5", "6", "click", "1"});
        EXPECT_TRUE(waitUntil([this, run] { return clicks_.size() == static_cast<std::size_t>(run); }));
        pointElsewhere();
    }
    EXPECT_TRUE(becomesShown(false));
}

TEST(XembedTrayIcon, TheEndOfTheServerTakesTheIconAway) {
    VirtualDisplay display;
    XembedTrayIcon icon;
    auto tray = std::make_unique<TestTray>(TestTray::Colours::opaque);
    icon.show({{plainPicture(16, opaqueRed)}, "Kestrelfen", {}});
    ASSERT_TRUE(waitUntil([&icon] { return icon.isShown(); }));
    display.stop();
    EXPECT_TRUE(waitUntil([&icon] { return !icon.isShown(); }));
}

TEST(XembedTrayIcon, WithoutAServerItIsNotShown) {
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":4711");
    XembedTrayIcon icon;
    qputenv("DISPLAY", display);
    icon.show({{plainPicture(16, opaqueRed)}, "Kestrelfen", {}});
    icon.tooltipChanged();
    EXPECT_FALSE(icon.isShown());
}

} // namespace
} // namespace kestrelfen
