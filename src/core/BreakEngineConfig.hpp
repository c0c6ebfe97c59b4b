#pragma once

#include <cstdint>

namespace kestrelfen {

class Preferences;

/// The cadence in force for one work interval. Lengths are seconds.
struct BreakEngineConfig {
    double workInterval = 0;
    double breakDuration = 0;
    double longBreakDuration = 0;
    /// Every how many breaks one is long; never 0. Below 2 only in the fast cycle.
    std::int64_t longBreakEvery = 1;
    /// How long before a break its warning starts.
    double preBreakWarningLead = 0;
    /// How long without input counts as away.
    double idleThreshold = 0;

    static BreakEngineConfig fromDefaults(const Preferences& preferences);

    friend bool operator==(const BreakEngineConfig&, const BreakEngineConfig&) = default;
};

} // namespace kestrelfen
