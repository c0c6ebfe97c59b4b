#pragma once

#include "platform/linux/LinuxSystemSignals.hpp"
#include "platform/ports/DisplayPower.hpp"

namespace kestrelfen {

/// Sleeping displays, as the system signals last told: a desktop puts all of them to sleep together. Main
/// thread only; the signals outlive it.
class LinuxDisplayPower final : public DisplayPower {
  public:
    explicit LinuxDisplayPower(const LinuxSystemSignals& systemSignals) : systemSignals_(systemSignals) {}

    bool isMainDisplayAsleep() const override { return systemSignals_.areDisplaysAsleep(); }

  private:
    const LinuxSystemSignals& systemSignals_;
};

} // namespace kestrelfen
