#pragma once

#include "base/Date.hpp"
#include "core/SmartPauseKind.hpp"

#include <optional>

namespace kestrelfen {

/// What the engine asks of its smart pause monitor, on the main thread, within a tick.
class SmartPause {
  public:
    virtual ~SmartPause() = default;

    /// Takes one sample: what the person is found doing, if anything.
    virtual std::optional<SmartPauseKind> sample(Date now) = 0;

    /// Whether what was found has been gone for long enough to end a pause.
    virtual bool hasSettled(Date now) const = 0;
};

} // namespace kestrelfen
