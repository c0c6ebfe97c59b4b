#pragma once

#include "platform/fake/FakeLog.hpp"
#include "platform/linux/BusDaemon.hpp"
#include "platform/linux/BusLink.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/LinuxSystemSignals.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// Long enough for everything that went before to be told.
constexpr std::chrono::milliseconds quiet{250};

/// What the system signals tell, in order, from the moment it is made.
class Hearing {
  public:
    explicit Hearing(SystemSignals& systemSignals);

    /// The names of the signals since the last asking, once there are any and no more come.
    std::string next();

    /// The same, for signals that ought not to come.
    std::string nextAfterQuiet();

  private:
    std::string take();

    std::vector<std::unique_ptr<SystemSignals::Observation>> observations_;
    std::string heard_;
};

/// The system's and the session's bus, and what listens on them once it is started.
class SystemSignalsTest : public testing::Test {
  protected:
    using Capabilities = LinuxSystemSignals::Capabilities;

    /// Starts to listen, and waits until as much is known as is expected.
    void listen(const Capabilities& expected);

    /// Also waits for what was found at the start.
    void listenAndSettle(const Capabilities& expected);

    bool waitFor(const Capabilities& expected) const;

    std::string next() { return hearing_->next(); }
    std::string nextAfterQuiet() { return hearing_->nextAfterQuiet(); }

    BusDaemon systemDaemon_{"DBUS_SYSTEM_BUS_ADDRESS"};
    BusDaemon sessionDaemon_{"DBUS_SESSION_BUS_ADDRESS"};
    std::unique_ptr<BusLink> systemBus_;
    std::unique_ptr<BusLink> sessionBus_;
    std::unique_ptr<LinuxSystemSignals> signals_;
    std::unique_ptr<Hearing> hearing_;
};

} // namespace kestrelfen
