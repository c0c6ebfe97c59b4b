#pragma once

#include <array>
#include <string>

namespace kestrelfen {

class BreakEngine;

/// Every text, number and flag of the popover's upper part at one moment.
struct MenuBarContent {
    struct Button {
        std::string label;
        bool enabled = true;

        friend bool operator==(const Button&, const Button&) = default;
    };

    std::string eyebrow;
    std::string value;
    std::string caption;
    std::string cycleText;
    /// Share of the phase that is left; may lie outside 0 to 1.
    double ringRemaining = 0;
    std::string ringLabel;
    /// Pause or resume, snooze or skip, break.
    std::array<Button, 3> buttons;

    static MenuBarContent of(const BreakEngine& engine);

    friend bool operator==(const MenuBarContent&, const MenuBarContent&) = default;
};

} // namespace kestrelfen
