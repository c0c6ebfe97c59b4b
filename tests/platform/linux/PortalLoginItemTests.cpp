#include "platform/LoginItemContract.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "platform/linux/PortalLoginItem.hpp"
#include "platform/linux/PortalMock.hpp"

namespace kestrelfen {
namespace {

using namespace std::chrono_literals;

class PortalSubject {
  public:
    explicit PortalSubject(int response = 0)
        : mock_({"org.freedesktop.portal.Background", "RequestBackground", "sa{sv}"}, response) {}

    PortalLoginItem& loginItem() { return item_; }
    void settle() { pass(400ms); }
    PortalMock& mock() { return mock_; }

    /// The error of the next wish, "none", or "no answer".
    std::string set(bool enabled) {
        std::string result = "no answer";
        item_.setEnabled(enabled, [&result](const auto& error) { result = error.value_or("none"); });
        waitUntil([&result] { return result != "no answer"; });
        return result;
    }

  private:
    PortalMock mock_;
    FakePreferences preferences_;
    PortalLoginItem item_{mock_.requests(), preferences_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Portal, LoginItemContract, PortalSubject);

TEST(PortalLoginItem, APersonWhoRefusesLeavesItAsItIs) {
    PortalSubject subject(1);
    EXPECT_EQ(subject.set(true), "the desktop did not allow it");
    EXPECT_FALSE(subject.loginItem().isEnabled());
}

TEST(PortalLoginItem, ABusThatIsLostEndsTheWaiting) {
    PortalSubject subject;
    subject.mock().portal().suspend();
    std::string result;
    subject.loginItem().setEnabled(true, [&result](const auto& error) { result = error.value_or("none"); });
    pass(100ms);
    EXPECT_EQ(result, "");
    subject.mock().daemon().stop();
    EXPECT_TRUE(waitUntil([&result] { return !result.empty(); }));
    EXPECT_EQ(result, "the connection to the session bus is lost");
    subject.mock().portal().resume();
}

/// What a wish is answered on a bus that nothing answers.
std::string answerWithoutPortal(BusLink& bus) {
    PortalRequests requests(bus);
    FakePreferences preferences;
    PortalLoginItem item(requests, preferences);
    std::string result;
    item.setEnabled(true, [&result](const auto& error) { result = error.value_or("none"); });
    waitUntil([&result] { return !result.empty(); });
    EXPECT_FALSE(item.isEnabled());
    return result;
}

TEST(PortalLoginItem, WithoutAPortalItFails) {
    const BusDaemon daemon("DBUS_SESSION_BUS_ADDRESS");
    BusLink bus(BusLink::Bus::session);
    ASSERT_TRUE(waitUntil([&bus] { return bus.isConnected(); }));
    EXPECT_NE(answerWithoutPortal(bus).find("org.freedesktop.portal.Desktop"), std::string::npos);
}

TEST(PortalLoginItem, WithoutABusItFailsAtOnce) {
    BusLink bus(QStringLiteral("unix:path=/nowhere"));
    EXPECT_EQ(answerWithoutPortal(bus), "there is no session bus");
}

} // namespace
} // namespace kestrelfen
