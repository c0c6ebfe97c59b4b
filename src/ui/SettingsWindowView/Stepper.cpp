#include "ui/SettingsWindowView/Stepper.hpp"

#include "core/Settings.hpp"

#include <algorithm>
#include <array>

namespace kestrelfen {

namespace {

constexpr std::array<const Stepper*, 6> steppers{&Steppers::workInterval, &Steppers::breakDuration,
                                                 &Steppers::longBreak,    &Steppers::longBreakEvery,
                                                 &Steppers::warningLead,  &Steppers::idleThreshold};

} // namespace

const Stepper* Stepper::find(std::string_view key) {
    const auto found = std::find_if(steppers.begin(), steppers.end(),
                                    [key](const Stepper* stepper) { return stepper->key_ == key; });
    return found == steppers.end() ? nullptr : *found;
}

std::vector<std::string_view> Stepper::keys() {
    std::vector<std::string_view> keys;
    keys.reserve(steppers.size());
    for (const Stepper* const stepper : steppers) {
        keys.push_back(stepper->key_);
    }
    return keys;
}

double Stepper::value(const Preferences& preferences) const {
    if (number_ == Number::real) {
        return Settings::real(preferences, key_, fallback_);
    }
    return static_cast<double>(Settings::integer(preferences, key_, static_cast<std::int64_t>(fallback_)));
}

bool Stepper::can(StepDirection direction, const Preferences& preferences) const {
    return direction == StepDirection::up ? value(preferences) < range_.maximum
                                          : value(preferences) > range_.minimum;
}

void Stepper::step(StepDirection direction, Preferences& preferences) const {
    const double change = direction == StepDirection::up ? range_.step : -range_.step;
    write(std::clamp(value(preferences) + change, range_.minimum, range_.maximum), preferences);
}

void Stepper::write(double value, Preferences& preferences) const {
    if (number_ == Number::real) {
        preferences.set(key_, value);
    } else {
        preferences.set(key_, static_cast<std::int64_t>(value));
    }
}

} // namespace kestrelfen
