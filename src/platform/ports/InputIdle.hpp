#pragma once

#include <optional>

namespace kestrelfen {

/// How long ago the person last touched the machine.
class InputIdle {
  public:
    virtual ~InputIdle() = default;

    /// Seconds since the last keyboard, pointer, button or scroll input anywhere in the session; never below
    /// 0. Absent when this system cannot tell. Asked on every tick: at most some 50 µs.
    virtual std::optional<double> secondsSinceLastInput() = 0;
};

} // namespace kestrelfen
