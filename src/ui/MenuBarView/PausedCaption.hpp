#pragma once

#include "core/PauseReason.hpp"

#include <string>

namespace kestrelfen {

/// Why the timer stands still, and what ends that, in words.
std::string pausedCaption(PauseReason reason);

} // namespace kestrelfen
