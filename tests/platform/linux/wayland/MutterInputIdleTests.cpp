#include "platform/linux/EventLoop.hpp"
#include "platform/linux/MockService.hpp"
#include "platform/linux/MutterInputIdle.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

using namespace std::chrono_literals;

constexpr char serviceName[] = "org.gnome.Mutter.IdleMonitor";
constexpr char corePath[] = "/org/gnome/Mutter/IdleMonitor/Core";

class MutterInputIdleTest : public testing::Test {
  protected:
    void startService() {
        service = std::make_unique<MockService>(bus, serviceName, corePath, serviceName);
        answer("dbus.UInt64(7500)");
    }
    void answer(const QString& value) const { service->addMethod("GetIdletime", "", "t", "ret = " + value); }
    std::optional<double> seconds() { return idle.secondsSinceLastInput(); }
    bool becomesKnown() {
        return waitUntil([this] { return seconds().has_value(); });
    }

    BusDaemon bus{"DBUS_SESSION_BUS_ADDRESS"};
    BusLink link{BusLink::Bus::session};
    MutterInputIdle idle{link};
    std::unique_ptr<MockService> service;
};

TEST_F(MutterInputIdleTest, IsAbsentWithoutTheService) {
    EXPECT_TRUE(waitUntil([this] { return link.isConnected(); }));
    pass(200ms);
    EXPECT_EQ(seconds(), std::nullopt);
}

TEST_F(MutterInputIdleTest, GrowsFromTheLastAnswer) {
    startService();
    ASSERT_TRUE(becomesKnown());
    const double first = *seconds();
    EXPECT_GE(first, 7.5);
    EXPECT_LT(first, 9);
    pass(300ms);
    EXPECT_GE(seconds().value_or(0), first + 0.29);
}

TEST_F(MutterInputIdleTest, InputIsSeenWithTheNextAnswer) {
    startService();
    ASSERT_TRUE(becomesKnown());
    answer("dbus.UInt64(0)");
    EXPECT_TRUE(waitUntil([this] { return seconds().value_or(100) < 1; }));
}

TEST_F(MutterInputIdleTest, AsksAtMostOnceASecondAndOnlyWhenAsked) {
    startService();
    ASSERT_TRUE(becomesKnown());
    const int before = service->callsOf(corePath, "GetIdletime");
    pass(1500ms);
    EXPECT_EQ(service->callsOf(corePath, "GetIdletime"), before);

    waitUntil([this] { return !seconds().has_value(); }, 1500ms);
    const int asked = service->callsOf(corePath, "GetIdletime") - before;
    EXPECT_GE(asked, 1);
    EXPECT_LE(asked, 2);
}

TEST_F(MutterInputIdleTest, IsAbsentOnceTheServiceHasGone) {
    startService();
    ASSERT_TRUE(becomesKnown());
    service.reset();
    EXPECT_TRUE(waitUntil([this] { return !seconds().has_value(); }, 3s));
}

TEST_F(MutterInputIdleTest, IsAbsentWhileTheServiceHangs) {
    startService();
    ASSERT_TRUE(becomesKnown());
    service->suspend();
    EXPECT_TRUE(waitUntil([this] { return !seconds().has_value(); }));
    service->resume();
    EXPECT_TRUE(becomesKnown());
}

} // namespace
} // namespace kestrelfen
