#include "TestWindow.hpp"
#include "X11WindowsTest.hpp"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>

#include <thread>
#include <unistd.h>

namespace kestrelfen {
namespace {

using namespace std::chrono_literals;

/// Keeps what it was asked last.
class LastClues final : public ProgramCatalogue {
  public:
    Program identify(const WindowClues& asked) override {
        clues = asked;
        return {};
    }
    bool isInstalled(std::string_view) override { return false; }
    std::optional<std::vector<std::string>> launchCommand(std::string_view) override { return std::nullopt; }

    WindowClues clues;
};

class X11WindowWatchTest : public X11WindowsTest {
  protected:
    const X11WindowRecord* record(const TestWindow& window) const {
        const auto* const found = watch->find(window.number());
        return found ? &found->record : nullptr;
    }

    bool appears(const TestWindow& window) {
        return waitUntil([&] { return record(window) && record(window)->isShown; });
    }

    bool liesAt(const TestWindow& window, int x, int y, std::chrono::milliseconds limit = longWait) {
        const auto isThere = [&] {
            const auto* const found = record(window);
            // The window manager's frame lies around it.
            return found && found->bounds && std::abs(found->bounds->x - x) < 30 &&
                   std::abs(found->bounds->y - y) < 40;
        };
        return waitUntil(isThere, limit);
    }
};

TEST_F(X11WindowWatchTest, ServerThatAnotherProgramHoldsKeepsNobodyWaiting) {
    TestWindow window("Writer");
    ASSERT_TRUE(comesToFront("Writer"));
    XConnection holder;
    xcb_grab_server(holder.raw());
    const std::uint32_t none = XCB_WINDOW_NONE;
    const xcb_atom_t active = holder.atom("_NET_ACTIVE_WINDOW");
    xcb_change_property(holder.raw(), XCB_PROP_MODE_REPLACE, holder.root(), active, XCB_ATOM_WINDOW, 32, 1,
                        &none);
    xcb_flush(holder.raw());
    std::thread release([&] {
        std::this_thread::sleep_for(1500ms);
        xcb_ungrab_server(holder.raw());
        xcb_flush(holder.raw());
    });
    QElapsedTimer elapsed;
    elapsed.start();
    pass(200ms);
    EXPECT_LT(elapsed.elapsed(), 1000);
    EXPECT_TRUE(applications->frontmost());
    release.join();
    EXPECT_TRUE(nothingIsInFront());
}

TEST_F(X11WindowWatchTest, WindowWithTheNumberOfOneThatWentIsFollowed) {
    TestWindow window("Writer");
    ASSERT_TRUE(appears(window));
    window.replace("Reader");
    EXPECT_TRUE(waitUntil([this] { return runningClasses() == "Reader "; })) << runningClasses();
    window.move(400, 300);
    EXPECT_TRUE(liesAt(window, 400, 300));
}

TEST_F(X11WindowWatchTest, ProcessIsThatOfTheConnectionAndNotTheOneThatTheWindowTells) {
    TestWindow window("Writer");
    window.setNumber("_NET_WM_PID", XCB_ATOM_CARDINAL, 7);
    ASSERT_TRUE(appears(window));
    EXPECT_EQ(record(window)->owner(), getpid());
    pass(100ms);
    EXPECT_EQ(record(window)->owner(), getpid());
}

TEST_F(X11WindowWatchTest, ProgramWithTwoWindowsStandsOnceAmongTheRunning) {
    TestWindow window("Writer");
    ASSERT_TRUE(appears(window));
    window.openAnother("Writer");
    ASSERT_TRUE(waitUntil([this] { return watch->windows().size() == 2; }));
    EXPECT_EQ(runningClasses(), "Writer ");
    EXPECT_EQ(windows->onScreen()->size(), 2U);
}

TEST_F(X11WindowWatchTest, WindowThatTellsMoreLaterIsIdentifiedAnew) {
    TestWindow window("Writer");
    ASSERT_TRUE(appears(window));
    window.setClass("Reader");
    EXPECT_TRUE(waitUntil([this] { return runningClasses() == "Reader "; })) << runningClasses();
}

TEST_F(X11WindowWatchTest, EachClueReachesTheCatalogue) {
    TestWindow window("Writer");
    window.setText("_GTK_APPLICATION_ID", "org.example.Writer");
    ASSERT_TRUE(waitUntil([&] { return window.isManaged(); }));
    LastClues last;
    const X11WindowWatch other(last);
    EXPECT_EQ(last.clues, (WindowClues{getpid(), "Writer", "one", "org.example.Writer"}));
}

TEST_F(X11WindowWatchTest, HiddenWindowIsNotShownEvenWhileTheServerDrawsIt) {
    TestWindow window("Writer");
    ASSERT_TRUE(appears(window));
    window.setAtom("_NET_WM_STATE", "_NET_WM_STATE_HIDDEN");
    EXPECT_TRUE(waitUntil([&] { return !record(window)->isShown; }));
}

TEST_F(X11WindowWatchTest, WindowThatIsMovedWithoutPauseIsFollowed) {
    TestWindow window("Writer");
    ASSERT_TRUE(appears(window));
    pass(500ms);
    bool isSeen = false;
    for (int step = 0; step < 60 && !isSeen; ++step) {
        window.move(300 + step, 200);
        isSeen = liesAt(window, 300 + step, 200, 20ms);
    }
    EXPECT_TRUE(isSeen);
}

TEST_F(X11WindowWatchTest, QuickComingAndGoingIsSurvived) {
    TestWindow window("Writer");
    ASSERT_TRUE(appears(window));
    for (int turn = 0; turn < 50; ++turn) {
        window.openBriefly("Brief");
        pass(std::chrono::milliseconds(turn % 3));
    }
    start("Reader");
    EXPECT_TRUE(waitUntil([this] { return watch->windows().size() == 2; })) << watch->windows().size();
    EXPECT_EQ(runningClasses(), "Writer Reader ");
}

TEST_F(X11WindowWatchTest, WindowManagerThatIsKilledIsNoticed) {
    killWindowManager();
    EXPECT_TRUE(waitUntil([this] { return !applications->isAvailable(); }));
}

TEST_F(X11WindowWatchTest, WithoutAServerNothingIsTold) {
    start("Writer");
    display.stop();
    EXPECT_TRUE(waitUntil([this] { return !applications->isAvailable(); }));
    EXPECT_EQ(windows->onScreen(), std::nullopt);
}

/// Run with QT_SCALE_FACTOR too.
TEST_F(X11WindowWatchTest, BoundsAreInTheCoordinatesOfTheDisplays) {
    const double ratio = QGuiApplication::primaryScreen()->devicePixelRatio();
    TestWindow window("Writer");
    ASSERT_TRUE(appears(window));
    window.move(400, 300);
    ASSERT_TRUE(liesAt(window, 400, 300));
    const ScreenRect physical = *record(window)->bounds;
    const ScreenRect bounds = *windows->onScreen()->front().bounds;
    EXPECT_EQ(bounds.x, static_cast<int>(physical.x / ratio));
    EXPECT_EQ(bounds.y, static_cast<int>(physical.y / ratio));
    EXPECT_EQ(bounds.width, static_cast<int>(200 / ratio));
    EXPECT_EQ(bounds.height, static_cast<int>(120 / ratio));
}

} // namespace
} // namespace kestrelfen
