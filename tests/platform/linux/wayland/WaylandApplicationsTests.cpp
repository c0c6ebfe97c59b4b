#include "WaylandSessionTest.hpp"

#include <QFileInfo>
#include <QTemporaryDir>

namespace kestrelfen {
namespace {

using WaylandApplicationsTest = WaylandSessionTest;

TEST_F(WaylandApplicationsTest, TellsNoneWhereNoneRuns) {
    pass(std::chrono::milliseconds(200));
    EXPECT_TRUE(applications->isAvailable());
    EXPECT_EQ(running(), "");
    EXPECT_EQ(frontmost(), "none");
}

TEST_F(WaylandApplicationsTest, TheFrontmostFollowsTheFocus) {
    start("first", "alpha");
    start("second", "beta");
    EXPECT_EQ(running(), "alpha beta ");

    SwaySession::command("[app_id=alpha] focus");
    EXPECT_TRUE(comesToFront("alpha"));
    SwaySession::command("[app_id=beta] focus");
    EXPECT_TRUE(comesToFront("beta"));
    EXPECT_EQ(running(), "alpha beta ");
}

TEST_F(WaylandApplicationsTest, NoneIsInFrontOnAnEmptyWorkspace) {
    start("first", "alpha");
    SwaySession::command("workspace elsewhere");
    EXPECT_TRUE(comesToFront("none"));
    EXPECT_EQ(running(), "alpha ");
}

TEST_F(WaylandApplicationsTest, AnApplicationIsGoneWithItsLastWindow) {
    start("first", "alpha");
    start("second", "alpha");
    start("third", "beta");
    EXPECT_EQ(running(), "alpha beta ");
    const auto before = applications->running();

    session->stop("first");
    EXPECT_TRUE(waitUntil([this] { return windowCount() == 2; }));
    EXPECT_EQ(applications->running(), before);

    session->stop("second");
    EXPECT_TRUE(waitUntil([this] { return running() == "beta "; })) << running();
}

TEST_F(WaylandApplicationsTest, ApplicationsAreToldApartByNumbersBelowZero) {
    start("first", "alpha");
    start("second", "beta");
    const auto all = applications->running();
    ASSERT_EQ(all.size(), 2U);
    EXPECT_LT(all[0].processIdentifier, 0);
    EXPECT_LT(all[1].processIdentifier, 0);
    EXPECT_NE(all[0].processIdentifier, all[1].processIdentifier);
    EXPECT_EQ(applications->frontmost(), all[1]);
    EXPECT_EQ(all[1].localizedName, "The beta");
}

TEST_F(WaylandApplicationsTest, WindowsThatWereThereBeforeAreTold) {
    start("first", "alpha");
    const WaylandToplevels later(*connection, catalogue);
    const WaylandApplications others(later);
    EXPECT_TRUE(waitUntil([&] { return others.frontmost().has_value(); }));
    EXPECT_EQ(others.running().size(), 1U);
}

TEST_F(WaylandApplicationsTest, AreUnavailableOnceTheCompositorHasGone) {
    start("first", "alpha");
    session->kill();
    EXPECT_TRUE(waitUntil([this] { return !applications->isAvailable(); }));
    EXPECT_TRUE(connection->isBroken());
    EXPECT_EQ(running(), "");
    EXPECT_EQ(frontmost(), "none");
    EXPECT_EQ(windows->onScreen(), std::nullopt);
}

TEST_F(WaylandApplicationsTest, LaunchesWhatIsInstalled) {
    const QTemporaryDir folder;
    const QString trace = folder.filePath("trace");
    catalogue.command = {"touch", trace.toStdString()};
    bool isTold = false;
    applications->launchInBackground("here", [&] { isTold = true; });
    EXPECT_FALSE(isTold);
    EXPECT_TRUE(waitUntil([&] { return isTold && QFileInfo::exists(trace); }));
    EXPECT_TRUE(applications->isInstalled("here"));
    EXPECT_FALSE(applications->isInstalled("elsewhere"));
}

} // namespace
} // namespace kestrelfen
