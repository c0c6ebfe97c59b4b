#include "ui/SettingsWindowView/PausingPane.hpp"

#include "base/Translated.hpp"
#include "core/Formatters.hpp"
#include "core/IdleMode.hpp"
#include "core/Settings.hpp"
#include "ui/SettingsWindowView/PaneRows.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

std::vector<PaneRow> systemEventRows(const Preferences& preferences) {
    return {
        toggleRow(preferences, {"pauseOnScreenLock", translated("When the screen locks"),
                                translated("Lock screen or fast user switch")}),
        toggleRow(preferences, {"pauseOnDisplaySleep", translated("When the display sleeps"),
                                translated("Displays turn off but the Mac stays awake")}),
        toggleRow(preferences, {"pauseOnSystemSleep", translated("When the Mac sleeps"),
                                translated("Sleep, or closing the lid")}),
    };
}

bool isOn(const PaneRow& row) {
    const auto* const toggle = std::get_if<ToggleState>(&row.control);
    return toggle && toggle->isOn;
}

std::string idleCaption(IdleMode mode, const Preferences& preferences) {
    switch (mode) {
    case IdleMode::off:
        return translated("The timer keeps running while you're away");
    case IdleMode::custom:
        return translated("You choose how long counts as away");
    case IdleMode::automatic:
        const double work = Steppers::workInterval.value(preferences);
        return translated("Automatic — %1 at your %2 work interval",
                          {Formatters::duration(automaticIdleThreshold(work)), Formatters::duration(work)});
    }
    return {};
}

std::vector<PaneRow> idleRows(IdleMode mode, const Preferences& preferences) {
    std::vector<PaneRow> rows{pillsRow(preferences,
                                       {StoredEnumeration<IdleMode>::key,
                                        translated("Pause when I step away"), idleCaption(mode, preferences)},
                                       PillsEmphasis::accent)};
    if (mode == IdleMode::custom) {
        rows.push_back(durationRow(Steppers::idleThreshold, preferences, translated("Idle after"),
                                   translated("No input for this long counts as away")));
    }
    return rows;
}

} // namespace

PaneContent PausingPane::content(const Preferences& preferences) {
    const auto mode = current<IdleMode>(preferences);
    std::vector<PaneRow> systemEvents = systemEventRows(preferences);
    PaneContent pane{translated("Pausing"),
                     translated("Time spent paused is never counted as screen time, whichever trigger "
                                "stopped the clock.")};
    if (mode == IdleMode::off && std::none_of(systemEvents.begin(), systemEvents.end(), isOn)) {
        pane.addCallout(translated("Never pauses"),
                        translated("With every trigger off, the timer keeps running while you're away "
                                   "and screen time will overcount."));
    }
    pane.addRows(translated("Going idle"), idleRows(mode, preferences));
    pane.addRows(
        translated("Coming back"),
        {toggleRow(preferences,
                   {"resumeAutomatically", translated("Resume automatically"),
                    translated("Off means an automatic pause waits for you to resume it by hand")})});
    pane.addText(
        PaneBlock::Kind::note,
        translated("A manual pause from the menu bar always works, and is never lifted by a system event."));
    pane.addRows(translated("System events"), std::move(systemEvents));
    return pane;
}

} // namespace kestrelfen
