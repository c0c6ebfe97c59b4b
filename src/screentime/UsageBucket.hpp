#pragma once

#include <cstdint>
#include <string>

namespace kestrelfen {

/// What a second of attention is credited to. The empty text stands for a missing bundle identifier.
struct UsageBucket {
    std::string bundleIdentifier;
    std::string displayName;
    /// 0 where no display is known.
    std::int64_t displayID = 0;

    friend bool operator==(const UsageBucket&, const UsageBucket&) = default;
};

} // namespace kestrelfen
