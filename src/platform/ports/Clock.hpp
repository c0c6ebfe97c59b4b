#pragma once

#include "base/Date.hpp"

namespace kestrelfen {

/// The wall clock. It may jump either way between two readings.
class Clock {
  public:
    virtual ~Clock() = default;
    virtual Date now() const = 0;
};

} // namespace kestrelfen
