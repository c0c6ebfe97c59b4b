#include "ui/SettingsWindowView/TimingPane.hpp"

#include "base/Translated.hpp"
#include "ui/LaunchAtLogin.hpp"
#include "ui/SettingsWindowView/PaneRows.hpp"

namespace kestrelfen {

namespace {

PaneRow longBreakRow(const Preferences& preferences) {
    PaneRow row = durationRow(Steppers::longBreak, preferences, translated("Long break"),
                              translated("must exceed the short break"));
    if (Steppers::longBreak.value(preferences) <= Steppers::breakDuration.value(preferences)) {
        markInvalid(row);
    }
    return row;
}

PaneRow warningLeadRow(const Preferences& preferences) {
    PaneRow row = durationRow(Steppers::warningLead, preferences, translated("Warning HUD lead time"),
                              translated("Shown before the overlay appears"));
    if (Steppers::warningLead.value(preferences) >= Steppers::workInterval.value(preferences)) {
        row.caption = translated("Must be shorter than the work interval");
        markInvalid(row);
    }
    return row;
}

} // namespace

PaneContent TimingPane::content(const Preferences& preferences, const LaunchAtLogin& launchAtLogin) {
    PaneContent pane{
        translated("Timing"),
        translated("Validated on commit, including the cross-field rules a single stepper can't express."),
    };
    pane.addRows({}, {durationRow(Steppers::workInterval, preferences, translated("Work interval")),
                      durationRow(Steppers::breakDuration, preferences, translated("Short break")),
                      longBreakRow(preferences), cyclesRow(preferences), warningLeadRow(preferences),
                      launchAtLoginRow(launchAtLogin, translated("SMAppService · also in the menu bar"))});
    if (const auto& error = launchAtLogin.error()) {
        pane.addText(PaneBlock::Kind::message, *error);
        pane.blocks.back().tint = "danger";
    }
    return pane;
}

} // namespace kestrelfen
