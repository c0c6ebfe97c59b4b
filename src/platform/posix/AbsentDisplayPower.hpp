#pragma once

#include "platform/ports/DisplayPower.hpp"

namespace kestrelfen {

/// A display whose sleep nobody tells of.
class AbsentDisplayPower final : public DisplayPower {
  public:
    bool isMainDisplayAsleep() const override { return false; }
};

} // namespace kestrelfen
