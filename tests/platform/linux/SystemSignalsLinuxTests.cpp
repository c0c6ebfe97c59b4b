#include "platform/SystemSignalsContract.hpp"
#include "platform/linux/Login1Mock.hpp"
#include "platform/linux/SystemSignalsTest.hpp"

namespace kestrelfen {
namespace {

class LinuxSubject {
  public:
    LinuxSubject() {
        EXPECT_TRUE(waitUntil([this] {
            const auto known = systemSignals_.capabilities();
            return known.sleep && known.session && known.displaySleep;
        }));
        pass(quiet);
    }

    ~LinuxSubject() { outputOf("xset", {"s", "reset"}); }

    SystemSignals& systemSignals() { return systemSignals_; }

    void happen(SystemSignal signal) {
        bool isTold = false;
        const auto observation = systemSignals_.observe(signal, [&isTold] { isTold = true; });
        cause(signal);
        EXPECT_TRUE(waitUntil([&isTold] { return isTold; }));
        pass(std::chrono::milliseconds(50));
    }

  private:
    void cause(SystemSignal signal) const {
        switch (signal) {
        case SystemSignal::willSleep:
        case SystemSignal::didWake:
            return login1_.prepareForSleep(signal == SystemSignal::willSleep);
        case SystemSignal::screensDidSleep:
        case SystemSignal::screensDidWake:
            outputOf("xset", {"s", signal == SystemSignal::screensDidSleep ? "activate" : "reset"});
            return;
        case SystemSignal::sessionDidResignActive:
        case SystemSignal::sessionDidBecomeActive:
            return login1_.setActive(signal == SystemSignal::sessionDidBecomeActive);
        case SystemSignal::screenIsLocked:
        case SystemSignal::screenIsUnlocked:
            return login1_.setLockedHint(signal == SystemSignal::screenIsLocked);
        }
    }

    BusDaemon systemDaemon_{"DBUS_SYSTEM_BUS_ADDRESS"};
    BusDaemon sessionDaemon_{"DBUS_SESSION_BUS_ADDRESS"};
    Login1Mock login1_{systemDaemon_};
    BusLink systemBus_{BusLink::Bus::system};
    BusLink sessionBus_{BusLink::Bus::session};
    LinuxSystemSignals systemSignals_{systemBus_, sessionBus_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, SystemSignalsContract, LinuxSubject);

} // namespace
} // namespace kestrelfen
