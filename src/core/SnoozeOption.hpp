#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace kestrelfen {

class Preferences;

/// The lengths of a snooze that are offered; the raw value is in minutes.
enum class SnoozeOption : std::int64_t { one = 1, three = 3, five = 5 };

constexpr std::array<SnoozeOption, 3> snoozeOptions{SnoozeOption::one, SnoozeOption::three,
                                                    SnoozeOption::five};

constexpr std::int64_t minutes(SnoozeOption option) {
    return static_cast<std::int64_t>(option);
}

constexpr double seconds(SnoozeOption option) {
    return static_cast<double>(minutes(option)) * 60.0;
}

/// Absent for a number of minutes that is not offered.
constexpr std::optional<SnoozeOption> snoozeOption(std::int64_t rawValue) {
    for (const SnoozeOption option : snoozeOptions) {
        if (minutes(option) == rawValue) {
            return option;
        }
    }
    return std::nullopt;
}

/// The seconds of a snooze for which no length is asked, offered or not.
double chosenSnoozeSeconds(const Preferences& preferences);

/// "Snooze 3 minutes".
std::string spokenLabel(SnoozeOption option);

/// "3 min".
std::string pickerLabel(SnoozeOption option);

} // namespace kestrelfen
