#include "core/SnoozeOption.hpp"

#include "core/Settings.hpp"

namespace kestrelfen {

double chosenSnoozeSeconds(const Preferences& preferences) {
    return Settings::real(preferences, "snoozeDurationSeconds", seconds(SnoozeOption::five));
}

std::string spokenLabel(SnoozeOption option) {
    const char* const ending = option == SnoozeOption::one ? " minute" : " minutes";
    return "Snooze " + std::to_string(minutes(option)) + ending;
}

std::string pickerLabel(SnoozeOption option) {
    return std::to_string(minutes(option)) + " min";
}

} // namespace kestrelfen
