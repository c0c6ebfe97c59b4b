#include "X11WindowsTest.hpp"

namespace kestrelfen {
namespace {

class X11WindowListTest : public X11WindowsTest {};

TEST_F(X11WindowListTest, WindowsStandFrontToBack) {
    start("Writer");
    start("Reader");
    start("Player");
    EXPECT_TRUE(waitUntil([this] { return classesOnScreen() == "Player Reader Writer "; }))
        << classesOnScreen();
    xdotool({"windowactivate", windowOf("Writer")});
    EXPECT_TRUE(waitUntil([this] { return classesOnScreen() == "Writer Player Reader "; }))
        << classesOnScreen();
}

TEST_F(X11WindowListTest, BoundsFollowTheWindow) {
    start("Writer");
    xdotool({"windowmove", "--sync", windowOf("Writer"), "300", "200"});
    xdotool({"windowsize", "--sync", windowOf("Writer"), "250", "150"});
    EXPECT_TRUE(waitUntil([this] {
        const auto window = windowOnScreen("Writer");
        return window && window->bounds && std::abs(window->bounds->x - 300) < 30 &&
               std::abs(window->bounds->y - 200) < 30 && std::abs(window->bounds->width - 250) < 30;
    }));
    EXPECT_EQ(windowOnScreen("Writer")->layer, 0);
}

TEST_F(X11WindowListTest, WindowThatIsPutAwayIsNotOnTheScreen) {
    start("Writer");
    start("Reader");
    xdotool({"windowminimize", windowOf("Reader")});
    EXPECT_TRUE(waitUntil([this] { return classesOnScreen() == "Writer "; })) << classesOnScreen();
    EXPECT_EQ(runningClasses(), "Writer Reader ");
}

TEST_F(X11WindowListTest, WindowOnAnotherWorkspaceIsNotOnTheScreen) {
    start("Writer");
    start("Reader");
    xdotool({"set_desktop_for_window", windowOf("Reader"), "1"});
    EXPECT_TRUE(waitUntil([this] { return classesOnScreen() == "Writer "; })) << classesOnScreen();
}

TEST_F(X11WindowListTest, PanelLiesInALayerOfItsOwn) {
    start("Panel");
    outputOf("xprop", {"-id", windowOf("Panel"), "-f", "_NET_WM_WINDOW_TYPE", "32a", "-set",
                       "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DOCK"});
    EXPECT_TRUE(waitUntil([this] {
        const auto window = windowOnScreen("Panel");
        return window && window->layer == 1;
    }));
}

TEST_F(X11WindowListTest, DesktopItselfIsLeftOut) {
    start("Files");
    outputOf("xprop", {"-id", windowOf("Files"), "-f", "_NET_WM_WINDOW_TYPE", "32a", "-set",
                       "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DESKTOP"});
    EXPECT_TRUE(waitUntil([this] { return classesOnScreen().empty(); })) << classesOnScreen();
    EXPECT_TRUE(nothingIsInFront());
}

TEST_F(X11WindowListTest, WindowWithoutAProcessHasANumberOfItsOwn) {
    X11WindowRecord record;
    record.window = 0x2000'0007;
    EXPECT_EQ(record.owner(), -7);
    record.clues.processIdentifier = 12;
    EXPECT_EQ(record.owner(), 12);
}

} // namespace
} // namespace kestrelfen
