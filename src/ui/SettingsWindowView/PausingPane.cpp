#include "ui/SettingsWindowView/PausingPane.hpp"

#include "core/Formatters.hpp"
#include "core/IdleMode.hpp"
#include "core/Settings.hpp"
#include "ui/SettingsWindowView/PaneRows.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

std::vector<PaneRow> systemEventRows(const Preferences& preferences) {
    return {
        toggleRow(preferences,
                  {"pauseOnScreenLock", "When the screen locks", "Lock screen or fast user switch"}),
        toggleRow(preferences, {"pauseOnDisplaySleep", "When the display sleeps",
                                "Displays turn off but the Mac stays awake"}),
        toggleRow(preferences, {"pauseOnSystemSleep", "When the Mac sleeps", "Sleep, or closing the lid"}),
    };
}

bool isOn(const PaneRow& row) {
    const auto* const toggle = std::get_if<ToggleState>(&row.control);
    return toggle && toggle->isOn;
}

std::string idleCaption(IdleMode mode, const Preferences& preferences) {
    switch (mode) {
    case IdleMode::off:
        return "The timer keeps running while you're away";
    case IdleMode::custom:
        return "You choose how long counts as away";
    case IdleMode::automatic:
        const double work = Steppers::workInterval.value(preferences);
        return "Automatic — " + Formatters::duration(automaticIdleThreshold(work)) + " at your " +
               Formatters::duration(work) + " work interval";
    }
    return {};
}

std::vector<PaneRow> idleRows(IdleMode mode, const Preferences& preferences) {
    std::vector<PaneRow> rows{
        pillsRow(preferences,
                 {StoredEnumeration<IdleMode>::key, "Pause when I step away", idleCaption(mode, preferences)},
                 PillsEmphasis::accent)};
    if (mode == IdleMode::custom) {
        rows.push_back(durationRow(Steppers::idleThreshold, preferences, "Idle after",
                                   "No input for this long counts as away"));
    }
    return rows;
}

} // namespace

PaneContent PausingPane::content(const Preferences& preferences) {
    const auto mode = current<IdleMode>(preferences);
    std::vector<PaneRow> systemEvents = systemEventRows(preferences);
    PaneContent pane{"Pausing", "Time spent paused is never counted as screen time, whichever trigger "
                                "stopped the clock."};
    if (mode == IdleMode::off && std::none_of(systemEvents.begin(), systemEvents.end(), isOn)) {
        pane.addCallout("Never pauses", "With every trigger off, the timer keeps running while you're away "
                                        "and screen time will overcount.");
    }
    pane.addRows("Going idle", idleRows(mode, preferences));
    pane.addRows(
        "Coming back",
        {toggleRow(preferences, {"resumeAutomatically", "Resume automatically",
                                 "Off means an automatic pause waits for you to resume it by hand"})});
    pane.addText(PaneBlock::Kind::note,
                 "A manual pause from the menu bar always works, and is never lifted by a system event.");
    pane.addRows("System events", std::move(systemEvents));
    return pane;
}

} // namespace kestrelfen
