#pragma once

#include "ui/SettingsWindowView/SettingChoice.hpp"
#include "ui/SettingsWindowView/Stepper.hpp"

namespace kestrelfen {

/// What the controls of the panes do: each writes straight to its preference. Main thread only.
class SettingsControls {
  public:
    explicit SettingsControls(Preferences& preferences) : preferences_(preferences) {}

    /// False, and nothing is changed, when the stepper is at its end or not shown.
    bool step(const Stepper& stepper, StepDirection direction);

    /// Writes it even when it is in force already.
    void choose(const SettingChoice& choice, const SettingChoice::Option& option);

  private:
    /// Keeps the lengths in order with each other, after one of them was changed.
    void reconcile();
    void startCustomIdleWhereAutomaticStood();

    Preferences& preferences_;
};

} // namespace kestrelfen
