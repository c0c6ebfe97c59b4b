#include "FakeCompositor.hpp"
#include "WaylandSessionTest.hpp"
#include "platform/fake/FakeLog.hpp"
#include "platform/linux/LinuxSession.hpp"
#include "platform/linux/MutterInputIdle.hpp"
#include "platform/linux/WaylandCompositor.hpp"
#include "platform/linux/WaylandInputIdle.hpp"
#include "platform/linux/X11Applications.hpp"
#include "platform/linux/X11Compositor.hpp"
#include "platform/linux/X11InputIdle.hpp"

#include <QElapsedTimer>

namespace kestrelfen {
namespace {

template <typename Type, typename Port>
bool isA(const std::unique_ptr<Port>& port) {
    return dynamic_cast<const Type*>(port.get()) != nullptr;
}

class LinuxSessionTest : public testing::Test {
  protected:
    std::unique_ptr<LinuxSession> make() {
        return std::make_unique<LinuxSession>(LinuxSession::Needs{link, catalogue, log});
    }

    FakeLog log;
    ApplicationIds catalogue;
    BusLink link{BusLink::Bus::session};
};

TEST_F(LinuxSessionTest, WithoutACompositorTheXServerTells) {
    const auto session = make();
    EXPECT_TRUE(isA<X11InputIdle>(session->makeInputIdle()));
    const auto windows = session->makeWindows();
    EXPECT_TRUE(isA<X11Applications>(windows.applications));
    EXPECT_FALSE(windows.applications->missesSome());
    EXPECT_NE(windows.list, nullptr);
    EXPECT_EQ(session->overlayReach(true), OverlayReach::everywhere);
    EXPECT_EQ(session->overlayReach(false), OverlayReach::everywhere);
    EXPECT_TRUE(isA<X11Compositor>(session->makeCompositor()));
}

TEST_F(LinuxSessionTest, InAnX11SessionTheXServerTells) {
    FakeCompositor compositor(FakeCompositor::Idle::told);
    const EnvironmentValue type("XDG_SESSION_TYPE", "x11");
    EXPECT_TRUE(isA<X11InputIdle>(make()->makeInputIdle()));
}

TEST_F(LinuxSessionTest, ACompositorThatIsNotThereLeavesTheXServer) {
    const EnvironmentValue display("WAYLAND_DISPLAY", "/nowhere/wayland-1");
    EXPECT_TRUE(isA<X11InputIdle>(make()->makeInputIdle()));
}

TEST_F(LinuxSessionTest, ACompositorThatDoesNotAnswerHoldsUpTheStartNotForLong) {
    FakeCompositor compositor(FakeCompositor::Idle::told);
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(isA<X11InputIdle>(make()->makeInputIdle()));
    EXPECT_GE(timer.elapsed(), 900);
    EXPECT_LT(timer.elapsed(), 3000);
}

TEST_F(LinuxSessionTest, ACompositorTellsOfInputByItsIdleProtocol) {
    FakeCompositor compositor(FakeCompositor::Idle::told);
    const FakeCompositor::Answering answering(compositor);
    const auto session = make();
    EXPECT_TRUE(isA<WaylandInputIdle>(session->makeInputIdle()));
}

TEST_F(LinuxSessionTest, WithoutTheProtocolsGnomesServiceAndXWaylandTell) {
    FakeCompositor compositor(FakeCompositor::Idle::untold);
    const FakeCompositor::Answering answering(compositor);
    const auto session = make();
    EXPECT_TRUE(isA<MutterInputIdle>(session->makeInputIdle()));
    const auto windows = session->makeWindows();
    EXPECT_TRUE(isA<X11Applications>(windows.applications));
    EXPECT_TRUE(windows.applications->missesSome());
    EXPECT_EQ(session->overlayReach(true), OverlayReach::throughXServer);
}

TEST_F(LinuxSessionTest, NobodyTellsOfWindowsWithoutProtocolAndXServer) {
    FakeCompositor compositor(FakeCompositor::Idle::untold);
    const FakeCompositor::Answering answering(compositor);
    const EnvironmentValue display("DISPLAY", std::nullopt);
    const auto session = make();
    const auto windows = session->makeWindows();
    EXPECT_EQ(windows.applications, nullptr);
    EXPECT_EQ(windows.list, nullptr);
    EXPECT_EQ(session->overlayReach(true), OverlayReach::ordinaryWindows);
}

TEST_F(LinuxSessionTest, AnXServerThatDoesNotAnswerIsNone) {
    FakeCompositor compositor(FakeCompositor::Idle::untold);
    const FakeCompositor::Answering answering(compositor);
    const EnvironmentValue display("DISPLAY", ":4711");
    const auto session = make();
    EXPECT_EQ(session->makeWindows().applications, nullptr);
    EXPECT_EQ(session->overlayReach(true), OverlayReach::ordinaryWindows);
    EXPECT_TRUE(isA<WaylandCompositor>(session->makeCompositor()));
}

TEST_F(LinuxSessionTest, WindowsOfTheXServerAreBlendedByItsCompositorAndThoseOfWaylandAlways) {
    FakeCompositor compositor(FakeCompositor::Idle::untold);
    const FakeCompositor::Answering answering(compositor);
    EXPECT_TRUE(isA<X11Compositor>(make()->makeCompositor()));
    const EnvironmentValue display("DISPLAY", std::nullopt);
    const auto alone = make()->makeCompositor();
    EXPECT_TRUE(isA<WaylandCompositor>(alone));
    EXPECT_TRUE(alone->isBlending());
}

TEST_F(LinuxSessionTest, ACompositorThatTellsOfWindowsIsAsked) {
    if (const auto program = SwaySession::lacking()) {
        GTEST_SKIP() << program->toStdString() << " is not installed: no compositor to try it on";
    }
    const SwaySession sway;
    const auto session = make();
    EXPECT_TRUE(isA<WaylandInputIdle>(session->makeInputIdle()));
    const auto windows = session->makeWindows();
    EXPECT_TRUE(isA<WaylandApplications>(windows.applications));
    EXPECT_TRUE(windows.applications->isAvailable());
    EXPECT_FALSE(windows.applications->missesSome());
    EXPECT_EQ(session->overlayReach(true), OverlayReach::everywhere);
    EXPECT_EQ(session->overlayReach(false), OverlayReach::throughXServer);
    EXPECT_TRUE(isA<WaylandWindowList>(windows.list));
}

} // namespace
} // namespace kestrelfen
