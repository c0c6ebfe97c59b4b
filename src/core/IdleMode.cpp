#include "core/IdleMode.hpp"

#include "core/Settings.hpp"

#include <algorithm>
#include <limits>

namespace kestrelfen {

namespace {

constexpr double automaticShare = 0.05;
constexpr double leastAutomatic = 30.0;
constexpr double mostAutomatic = 120.0;
constexpr double customFallback = 60.0;

} // namespace

template <>
IdleMode current<IdleMode>(const Preferences& preferences) {
    if (const auto stored = storedCase<IdleMode>(preferences)) {
        return *stored;
    }
    return Settings::boolean(preferences, "pauseOnIdle", true) ? IdleMode::automatic : IdleMode::off;
}

double automaticIdleThreshold(double workIntervalSeconds) {
    return std::clamp(workIntervalSeconds * automaticShare, leastAutomatic, mostAutomatic);
}

double effectiveIdleThreshold(const Preferences& preferences) {
    switch (current<IdleMode>(preferences)) {
    case IdleMode::off:
        return std::numeric_limits<double>::max();
    case IdleMode::automatic:
        return automaticIdleThreshold(Settings::real(preferences, "workIntervalSeconds", 1200.0));
    case IdleMode::custom:
        return Settings::real(preferences, "idleThresholdSeconds", customFallback);
    }
    return std::numeric_limits<double>::max();
}

} // namespace kestrelfen
