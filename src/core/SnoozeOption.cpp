#include "core/SnoozeOption.hpp"

#include "base/Translated.hpp"
#include "core/Settings.hpp"

namespace kestrelfen {

double chosenSnoozeSeconds(const Preferences& preferences) {
    return Settings::real(preferences, "snoozeDurationSeconds", seconds(SnoozeOption::five));
}

std::string spokenLabel(SnoozeOption option) {
    return translatedCount(minutes(option), "Snooze %1 minute", "Snooze %1 minutes");
}

std::string pickerLabel(SnoozeOption option) {
    return translated("%1 min", {std::to_string(minutes(option))});
}

} // namespace kestrelfen
