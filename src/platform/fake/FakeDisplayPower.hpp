#pragma once

#include "platform/ports/DisplayPower.hpp"

namespace kestrelfen {

/// A main display that sleeps when it is told to; at first it is awake.
class FakeDisplayPower final : public DisplayPower {
  public:
    void setAsleep(bool asleep) { asleep_ = asleep; }
    bool isMainDisplayAsleep() const override { return asleep_; }

  private:
    bool asleep_ = false;
};

} // namespace kestrelfen
