#include "core/BreakEngineConfig.hpp"

#include "core/IdleMode.hpp"
#include "core/Settings.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr std::int64_t usualLongBreakEvery = 4;
constexpr std::int64_t leastLongBreakEvery = 2;

std::int64_t storedLongBreakEvery(const Preferences& preferences) {
    return Settings::integer(preferences, "longBreakEvery", usualLongBreakEvery);
}

/// As it is stored; nothing can be divided by 0.
std::int64_t longBreakEveryOfTheFastCycle(const Preferences& preferences) {
    const std::int64_t stored = storedLongBreakEvery(preferences);
    return stored == 0 ? 1 : stored;
}

BreakEngineConfig fastCycle(const Preferences& preferences) {
    return {.workInterval = 10.0,
            .breakDuration = 5.0,
            .longBreakDuration = 8.0,
            .longBreakEvery = longBreakEveryOfTheFastCycle(preferences),
            .preBreakWarningLead = 3.0};
}

BreakEngineConfig chosenCycle(const Preferences& preferences) {
    return {.workInterval = Settings::real(preferences, "workIntervalSeconds", 1200.0),
            .breakDuration = Settings::real(preferences, "breakDurationSeconds", 20.0),
            .longBreakDuration = Settings::real(preferences, "longBreakDurationSeconds", 300.0),
            .longBreakEvery = std::max(storedLongBreakEvery(preferences), leastLongBreakEvery),
            .preBreakWarningLead = Settings::real(preferences, "preBreakWarningLeadSeconds", 10.0)};
}

} // namespace

BreakEngineConfig BreakEngineConfig::fromDefaults(const Preferences& preferences) {
    const bool fast = Settings::boolean(preferences, "debugFastCycle", false);
    BreakEngineConfig config = fast ? fastCycle(preferences) : chosenCycle(preferences);
    config.idleThreshold = effectiveIdleThreshold(preferences);
    return config;
}

} // namespace kestrelfen
