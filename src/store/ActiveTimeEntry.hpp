#pragma once

#include "base/Date.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace kestrelfen {

/// Seconds of attention as they go into history, for one application on one display. Without a bundle
/// identifier they count towards the day alone.
struct ActiveTimeEntry {
    double seconds = 0;
    std::optional<std::string> bundleIdentifier;
    std::optional<std::string> displayName;
    std::int64_t displayID = 0;
    Date dayStart;
};

} // namespace kestrelfen
