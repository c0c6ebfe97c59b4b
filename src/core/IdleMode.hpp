#pragma once

#include "base/Translated.hpp"
#include "core/StoredEnumeration.hpp"

namespace kestrelfen {

/// How the absence of input pauses the timer.
enum class IdleMode { off, automatic, custom };

template <>
struct EnumerationTable<IdleMode> {
    static constexpr std::array<EnumerationRow<IdleMode>, 3> rows{{
        {IdleMode::off, "off", toTranslate("Off"), toTranslate("Never pauses")},
        {IdleMode::automatic, "automatic", toTranslate("Automatic"),
         toTranslate("Scaled from your work interval")},
        {IdleMode::custom, "custom", toTranslate("Custom"),
         toTranslate("You choose how long counts as away")},
    }};
};

template <>
struct StoredEnumeration<IdleMode> {
    static constexpr std::string_view key = "idleMode";
};

/// The stored case; without one, `off` where the older key "pauseOnIdle" says so, else `automatic`.
template <>
IdleMode current<IdleMode>(const Preferences& preferences);

/// Seconds without input that count as away in mode `automatic`, at that length of the work interval.
double automaticIdleThreshold(double workIntervalSeconds);

/// Seconds without input that count as away, by the mode in force; in mode `off` more than can ever pass.
double effectiveIdleThreshold(const Preferences& preferences);

} // namespace kestrelfen
