#pragma once

#include "base/Observable.hpp"

#include <functional>
#include <optional>

namespace kestrelfen {

/// How the desktop wishes all programs to look. Main thread only.
class DisplayWishes {
  public:
    /// Each is absent while the desktop does not tell.
    struct Values {
        std::optional<bool> dark = std::nullopt;
        std::optional<bool> highContrast = std::nullopt;
        std::optional<bool> reducedMotion = std::nullopt;
        friend bool operator==(const Values&, const Values&) = default;
    };

    virtual ~DisplayWishes() = default;

    /// What is wished now: a read of memory.
    virtual Values values() const = 0;

    /// Hears of every change of the values.
    [[nodiscard]] virtual Subscription observe(std::function<void()> listener) = 0;
};

} // namespace kestrelfen
