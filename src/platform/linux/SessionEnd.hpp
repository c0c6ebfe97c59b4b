#pragma once

#include "base/Lifeline.hpp"
#include "platform/linux/BusService.hpp"

#include <QDBusUnixFileDescriptor>

#include <functional>

namespace kestrelfen {

/// Tells that the machine is about to shut down, and has login1 hold that up, for the few seconds it allows,
/// until the program has done what it must. Main thread only; it never waits.
class SessionEnd {
  public:
    /// To be called when the shutdown may go on.
    using Done = std::function<void()>;

    SessionEnd(BusLink& systemBus, std::function<void(Done)> ending);

  private:
    void takeInhibitor();
    void hear(const QDBusMessage& signal);

    std::function<void(Done)> ending_;
    /// Open, it holds the shutdown up.
    QDBusUnixFileDescriptor inhibitor_;
    BusService service_;
    Lifeline lifeline_;
};

} // namespace kestrelfen
