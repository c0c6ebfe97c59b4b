#pragma once

#include "platform/ports/Clock.hpp"

namespace kestrelfen {

/// The machine's wall clock, in microseconds. Any thread.
class PosixClock final : public Clock {
  public:
    Date now() const override;
};

} // namespace kestrelfen
