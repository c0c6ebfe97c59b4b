#include "ui/SettingsWindowView/SettingsControls.hpp"

#include "core/IdleMode.hpp"
#include "core/Settings.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

/// How much longer a long break is than a short one, at least.
constexpr double longBreakMargin = 60.0;
/// How much sooner the warning comes than the work interval is long, at least.
constexpr double warningMargin = 1.0;

void setIfDifferent(const Stepper& stepper, double value, Preferences& preferences) {
    if (stepper.value(preferences) != value) {
        preferences.set(stepper.key(), value);
    }
}

} // namespace

bool SettingsControls::step(const Stepper& stepper, StepDirection direction) {
    const bool isShown =
        stepper.key() != Steppers::idleThreshold.key() || current<IdleMode>(preferences_) == IdleMode::custom;
    if (!isShown || !stepper.can(direction, preferences_)) {
        return false;
    }
    stepper.step(direction, preferences_);
    if (stepper.key() != Steppers::idleThreshold.key() && stepper.key() != Steppers::longBreakEvery.key()) {
        reconcile();
    }
    return true;
}

void SettingsControls::reconcile() {
    const double shortest = Steppers::breakDuration.value(preferences_) + longBreakMargin;
    setIfDifferent(Steppers::longBreak, std::max(Steppers::longBreak.value(preferences_), shortest),
                   preferences_);
    const double longest = std::max(Steppers::workInterval.value(preferences_) - warningMargin, 0.0);
    setIfDifferent(Steppers::warningLead, std::min(Steppers::warningLead.value(preferences_), longest),
                   preferences_);
}

void SettingsControls::choose(const SettingChoice& choice, const SettingChoice::Option& option) {
    choice.choose(option, preferences_);
    if (&choice == SettingChoice::find(StoredEnumeration<IdleMode>::key) &&
        current<IdleMode>(preferences_) == IdleMode::custom) {
        startCustomIdleWhereAutomaticStood();
    }
}

void SettingsControls::startCustomIdleWhereAutomaticStood() {
    const std::string_view key = Steppers::idleThreshold.key();
    if (!preferences_.object(key)) {
        preferences_.set(key, automaticIdleThreshold(Steppers::workInterval.value(preferences_)));
    }
}

} // namespace kestrelfen
