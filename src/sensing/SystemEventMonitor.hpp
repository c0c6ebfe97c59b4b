#pragma once

#include "core/SystemEvents.hpp"
#include "platform/ports/SystemSignals.hpp"

#include <memory>
#include <vector>

namespace kestrelfen {

/// Turns the system's sleep, display sleep and lock signals into the engine's two callbacks. It keeps no
/// state of the machine; it only translates. Main thread only.
class SystemEventMonitor final : public SystemEvents {
  public:
    explicit SystemEventMonitor(SystemSignals& signals) : signals_(signals) {}

    void start() override;
    void stop() override;

  private:
    SystemSignals& signals_;
    std::vector<std::unique_ptr<SystemSignals::Observation>> observations_;
};

} // namespace kestrelfen
