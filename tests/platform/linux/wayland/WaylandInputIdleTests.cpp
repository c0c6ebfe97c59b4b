#include "FakeCompositor.hpp"
#include "SwaySession.hpp"
#include "platform/fake/FakeLog.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/WaylandInputIdle.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

using namespace std::chrono_literals;

/// A real compositor, which has the older of the two protocols.
class WaylandInputIdleTest : public testing::Test {
  protected:
    void SetUp() override {
        if (const auto program = SwaySession::lacking()) {
            GTEST_SKIP() << program->toStdString() << " is not installed: no compositor to try it on";
        }
        session = std::make_unique<SwaySession>();
        connection = std::make_unique<WaylandConnection>();
        ASSERT_TRUE(WaylandInputIdle::isOfferedBy(*connection));
        idle = std::make_unique<WaylandInputIdle>(*connection, log);
    }

    double seconds() const { return idle->secondsSinceLastInput().value_or(-1); }

    FakeLog log;
    std::unique_ptr<SwaySession> session;
    std::unique_ptr<WaylandConnection> connection;
    std::unique_ptr<WaylandInputIdle> idle;
};

TEST_F(WaylandInputIdleTest, GrowsWithRealTimeWhileNothingIsTouched) {
    EXPECT_EQ(seconds(), 0);
    ASSERT_TRUE(waitUntil([this] { return seconds() > 0; }));
    const double first = seconds();
    EXPECT_GE(first, 2);
    EXPECT_LT(first, 3);
    pass(500ms);
    EXPECT_GE(seconds() - first, 0.45);
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(WaylandInputIdleTest, InputBeginsAnew) {
    ASSERT_TRUE(waitUntil([this] { return seconds() > 0; }));
    session->type("a");
    EXPECT_TRUE(waitUntil([this] { return seconds() == 0; }));
    EXPECT_TRUE(waitUntil([this] { return seconds() > 0; }));
}

TEST_F(WaylandInputIdleTest, IsAbsentOnceTheCompositorHasGone) {
    EXPECT_TRUE(idle->secondsSinceLastInput().has_value());
    session->kill();
    EXPECT_TRUE(waitUntil([this] { return !idle->secondsSinceLastInput(); }));
    pass(50ms);
    ASSERT_EQ(log.lines().size(), 1U);
    EXPECT_EQ(log.lines().front().category, "InputIdle");
}

/// The standard protocol, with seats that come and go.
class WaylandStandardIdleTest : public testing::Test {
  protected:
    WaylandStandardIdleTest() {
        compositor.addSeat(1);
        const FakeCompositor::Answering answering(compositor);
        connection = std::make_unique<WaylandConnection>();
        idle = std::make_unique<WaylandInputIdle>(*connection, log);
    }

    double seconds() const { return idle->secondsSinceLastInput().value_or(-1); }
    bool isAskedFor(int seat) {
        return waitUntil([&] { return compositor.isAskedFor(seat); });
    }

    FakeLog log;
    FakeCompositor compositor{FakeCompositor::Idle::told};
    std::unique_ptr<WaylandConnection> connection;
    std::unique_ptr<WaylandInputIdle> idle;
};

TEST_F(WaylandStandardIdleTest, GrowsFromTheLastInputAndBeginsAnew) {
    ASSERT_TRUE(isAskedFor(1));
    EXPECT_EQ(compositor.askedTimeout(), 2000U);
    EXPECT_EQ(seconds(), 0);

    compositor.tellIdled(1);
    EXPECT_TRUE(waitUntil([this] { return seconds() > 0; }));
    EXPECT_GE(seconds(), 2);
    EXPECT_LT(seconds(), 3);

    compositor.tellResumed(1);
    EXPECT_TRUE(waitUntil([this] { return seconds() == 0; }));
}

TEST_F(WaylandStandardIdleTest, TheSeatThatWasUsedLastCounts) {
    compositor.addSeat(2);
    ASSERT_TRUE(isAskedFor(1) && isAskedFor(2));
    compositor.tellIdled(1);
    pass(300ms);
    EXPECT_EQ(seconds(), 0);
    compositor.tellIdled(2);
    EXPECT_TRUE(waitUntil([this] { return seconds() > 0; }));
    EXPECT_LT(seconds(), 2.25);
}

TEST_F(WaylandStandardIdleTest, ASeatThatIsGoneCountsNoLonger) {
    compositor.addSeat(2);
    ASSERT_TRUE(isAskedFor(1) && isAskedFor(2));
    compositor.tellIdled(1);
    pass(50ms);
    EXPECT_EQ(seconds(), 0);
    compositor.removeSeat(2);
    EXPECT_TRUE(waitUntil([this] { return seconds() > 0; }));
    EXPECT_TRUE(waitUntil([this] { return !compositor.isAskedFor(2); }));

    compositor.removeSeat(1);
    EXPECT_TRUE(waitUntil([this] { return !idle->secondsSinceLastInput(); }));
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(WaylandStandardIdleTest, IsAbsentOnceTheCompositorHasGone) {
    ASSERT_TRUE(isAskedFor(1));
    compositor.stop();
    EXPECT_TRUE(waitUntil([this] { return !idle->secondsSinceLastInput(); }));
    EXPECT_TRUE(connection->isBroken());
    EXPECT_EQ(log.lines().size(), 1U);
}

} // namespace
} // namespace kestrelfen
