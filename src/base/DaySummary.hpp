#pragma once

#include "base/Date.hpp"

#include <cstdint>

namespace kestrelfen {

/// What the store knows of one local day. All durations are seconds.
struct DaySummary {
    Date startOfDay;
    std::int64_t breaksCompleted = 0;
    std::int64_t breaksSkipped = 0;
    double activeSeconds = 0;
    double pausedSeconds = 0;
    std::int64_t longBreaksCompleted = 0;

    friend bool operator==(const DaySummary&, const DaySummary&) = default;
};

} // namespace kestrelfen
