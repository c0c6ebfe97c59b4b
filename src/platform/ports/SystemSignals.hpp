#pragma once

#include "base/Enumeration.hpp"

#include <functional>
#include <memory>

namespace kestrelfen {

/// The moments at which the machine or the session comes or goes.
enum class SystemSignal {
    willSleep,
    didWake,
    screensDidSleep,
    screensDidWake,
    sessionDidResignActive,
    sessionDidBecomeActive,
    screenIsLocked,
    screenIsUnlocked,
};

template <>
struct EnumerationTable<SystemSignal> {
    static constexpr std::array<EnumerationRow<SystemSignal>, 8> rows{{
        {SystemSignal::willSleep, "willSleep"},
        {SystemSignal::didWake, "didWake"},
        {SystemSignal::screensDidSleep, "screensDidSleep"},
        {SystemSignal::screensDidWake, "screensDidWake"},
        {SystemSignal::sessionDidResignActive, "sessionDidResignActive"},
        {SystemSignal::sessionDidBecomeActive, "sessionDidBecomeActive"},
        {SystemSignal::screenIsLocked, "screenIsLocked"},
        {SystemSignal::screenIsUnlocked, "screenIsUnlocked"},
    }};
};

/// Delivers system signals on the main thread: one for each real change, none for the state found at the
/// start.
class SystemSignals {
  public:
    /// Which of the facts behind the signals this session tells, as far as is known by now.
    struct Capabilities {
        bool sleep = false;
        bool lock = false;
        bool session = false;
        bool displaySleep = false;
        friend bool operator==(const Capabilities&, const Capabilities&) = default;
    };

    /// Destroying it ends the delivery.
    class Observation {
      public:
        virtual ~Observation() = default;
    };

    virtual ~SystemSignals() = default;

    virtual std::unique_ptr<Observation> observe(SystemSignal signal, std::function<void()> deliver) = 0;

    /// A read of memory.
    virtual Capabilities capabilities() const = 0;
};

} // namespace kestrelfen
