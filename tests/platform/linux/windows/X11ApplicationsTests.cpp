#include "X11WindowsTest.hpp"

#include <QFile>
#include <QTemporaryDir>

namespace kestrelfen {
namespace {

class X11ApplicationsTest : public X11WindowsTest {};

TEST_F(X11ApplicationsTest, FrontmostIsTheProgramWithTheActiveWindow) {
    EXPECT_EQ(applications->frontmost(), std::nullopt);
    const qint64 first = start("Writer");
    start("Reader");
    xdotool({"windowactivate", windowOf("Writer")});
    ASSERT_TRUE(comesToFront("Writer"));
    const auto application = applications->frontmost();
    EXPECT_EQ(application->processIdentifier, first);
    EXPECT_EQ(application->localizedName, "Writer of one");
}

TEST_F(X11ApplicationsTest, BesideAWaylandDesktopItMissesItsPrograms) {
    EXPECT_FALSE(applications->missesSome());
    EXPECT_TRUE(X11Applications(*watch, X11Applications::Desktop::wayland).missesSome());
}

TEST_F(X11ApplicationsTest, RunningProgramsStandInTheOrderOfTheirComing) {
    start("Writer");
    start("Reader");
    start("Player");
    EXPECT_EQ(runningClasses(), "Writer Reader Player ");
    stop("Reader");
    EXPECT_TRUE(waitUntil([this] { return runningClasses() == "Writer Player "; })) << runningClasses();
}

TEST_F(X11ApplicationsTest, ProgramThatEndsIsNoLongerInFront) {
    start("Writer");
    stop("Writer");
    EXPECT_TRUE(nothingIsInFront());
    EXPECT_TRUE(applications->running().empty());
}

TEST_F(X11ApplicationsTest, EachWindowIsIdentifiedOnce) {
    start("Writer");
    start("Reader");
    const int asked = catalogue.asked;
    for (int turn = 0; turn < 5; ++turn) {
        xdotool({"windowactivate", "--sync", windowOf("Writer")});
        ASSERT_TRUE(comesToFront("Writer"));
        xdotool({"windowactivate", "--sync", windowOf("Reader")});
        ASSERT_TRUE(comesToFront("Reader"));
    }
    EXPECT_EQ(catalogue.asked, asked);
}

TEST_F(X11ApplicationsTest, PanelInFrontCountsButDoesNotStandAmongTheRunning) {
    start("Writer");
    start("Panel");
    outputOf("xprop", {"-id", windowOf("Panel"), "-f", "_NET_WM_WINDOW_TYPE", "32a", "-set",
                       "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DOCK"});
    EXPECT_TRUE(waitUntil([this] { return runningClasses() == "Writer "; })) << runningClasses();
}

TEST_F(X11ApplicationsTest, NoWindowManagerTellsNothing) {
    start("Writer");
    stopWindowManager();
    EXPECT_TRUE(waitUntil([this] { return !applications->isAvailable(); }));
    EXPECT_TRUE(applications->running().empty());
    EXPECT_EQ(windows->onScreen(), std::nullopt);
}

TEST_F(X11ApplicationsTest, WindowManagerThatComesBackTellsAgain) {
    start("Writer");
    stopWindowManager();
    ASSERT_TRUE(waitUntil([this] { return !applications->isAvailable(); }));
    startWindowManager();
    EXPECT_TRUE(waitUntil([this] { return applications->isAvailable() && runningClasses() == "Writer "; }));
    start("Reader");
    EXPECT_EQ(runningClasses(), "Writer Reader ");
}

TEST_F(X11ApplicationsTest, InstalledIsWhatTheCatalogueKnows) {
    EXPECT_TRUE(applications->isInstalled("here"));
    EXPECT_FALSE(applications->isInstalled("elsewhere"));
}

TEST_F(X11ApplicationsTest, LaunchRunsTheCommandAndTellsATurnLater) {
    const QTemporaryDir folder;
    const QString mark = folder.filePath("launched here");
    catalogue.command = {"touch", mark.toStdString()};
    bool told = false;
    applications->launchInBackground("here", [&told] { told = true; });
    EXPECT_FALSE(told);
    EXPECT_TRUE(waitUntil([&] { return told && QFile::exists(mark); }));
}

TEST_F(X11ApplicationsTest, LaunchOfWhatIsNotInstalledTellsToo) {
    bool told = false;
    applications->launchInBackground("elsewhere", [&told] { told = true; });
    EXPECT_TRUE(waitUntil([&told] { return told; }));
}

} // namespace
} // namespace kestrelfen
