#pragma once

namespace kestrelfen {

/// Whether the main display sleeps. Main thread only; asked on every tick: a read of memory.
class DisplayPower {
  public:
    virtual ~DisplayPower() = default;

    /// False also where this session cannot tell.
    virtual bool isMainDisplayAsleep() const = 0;
};

} // namespace kestrelfen
