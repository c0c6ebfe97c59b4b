#include "platform/linux/BusDaemon.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/MockService.hpp"
#include "platform/linux/StartableService.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

constexpr char name[] = "org.example.Service";

class StartableServiceTest : public testing::Test {
  protected:
    bool becomesReachable() {
        return waitUntil([this] { return service_.isReachable(); });
    }
    bool becomesUnreachable() {
        return waitUntil([this] { return !service_.isReachable(); });
    }

    BusDaemon daemon_{"DBUS_SESSION_BUS_ADDRESS", BusDaemon::Start::later};
    BusLink link_{BusLink::Bus::session};
    StartableService service_{link_, name};
};

TEST_F(StartableServiceTest, WithoutABusItIsNot) {
    pass(std::chrono::milliseconds(50));
    EXPECT_FALSE(service_.isReachable());
}

TEST_F(StartableServiceTest, FollowsItsOwner) {
    daemon_.start();
    ASSERT_TRUE(waitUntil([this] { return link_.isConnected(); }));
    pass(std::chrono::milliseconds(200));
    EXPECT_FALSE(service_.isReachable());
    {
        const MockService mock(daemon_, name, "/", name);
        EXPECT_TRUE(becomesReachable());
    }
    EXPECT_TRUE(becomesUnreachable());
}

TEST_F(StartableServiceTest, OneThatTheBusWouldStartIsReachableAndNotStarted) {
    daemon_.offerToStart(name);
    daemon_.offerToStart("org.example.Another");
    daemon_.start();
    EXPECT_TRUE(becomesReachable());
    EXPECT_FALSE(daemon_.hasOwner(name));
}

TEST_F(StartableServiceTest, AnotherThatTheBusWouldStartDoesNotCount) {
    daemon_.offerToStart("org.example.Another");
    daemon_.start();
    ASSERT_TRUE(waitUntil([this] { return link_.isConnected(); }));
    pass(std::chrono::milliseconds(200));
    EXPECT_FALSE(service_.isReachable());
}

TEST_F(StartableServiceTest, WithItsBusItGoesAndComes) {
    daemon_.offerToStart(name);
    daemon_.start();
    ASSERT_TRUE(becomesReachable());
    daemon_.stop();
    EXPECT_TRUE(becomesUnreachable());
    daemon_.start();
    EXPECT_TRUE(becomesReachable());
}

} // namespace
} // namespace kestrelfen
