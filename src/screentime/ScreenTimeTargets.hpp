#pragma once

#include "core/Settings.hpp"
#include "screentime/Hour.hpp"

namespace kestrelfen {

/// What a day and a stretch of work are measured against, in seconds. No control changes them.
struct ScreenTimeTargets {
    /// For the screen time of one day.
    double day = 5 * secondsPerHour;
    /// For the longest stretch between two breaks.
    double stretch = secondsPerHour;

    static ScreenTimeTargets current(const Preferences& preferences) {
        constexpr ScreenTimeTargets fallback;
        return {Settings::real(preferences, "dailyScreenTimeTargetSeconds", fallback.day),
                Settings::real(preferences, "longestStretchTargetSeconds", fallback.stretch)};
    }

    friend bool operator==(const ScreenTimeTargets&, const ScreenTimeTargets&) = default;
};

} // namespace kestrelfen
