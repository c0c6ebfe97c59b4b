#pragma once

#include "platform/ports/Platform.hpp"

namespace kestrelfen {

/// Makes the status item answer a right click as it does a left one. Main thread only.
struct StatusItemClicks {
    /// Looks for the button, which may not exist yet, up to `retries` times more, `delay` seconds apart.
    static void enableRightClick(const Platform& platform, int retries, double delay);
};

} // namespace kestrelfen
