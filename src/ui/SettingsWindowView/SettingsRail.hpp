#pragma once

#include "base/Navigation.hpp"

#include <string>
#include <string_view>

namespace kestrelfen {

/// The column of panes at the side of the settings window.
struct SettingsRail {
    static constexpr std::string_view heading = "Settings";

    /// The footer's lines.
    static std::string version(const std::string& version, const std::string& build) {
        return "v" + version + " (" + build + ")";
    }
    static constexpr std::string_view identifier = "app.kestrelfen.mac";

    static constexpr std::string_view label(SettingsPane pane) {
        switch (pane) {
        case SettingsPane::timing:
            return "Timing";
        case SettingsPane::enforcement:
            return "Enforcement";
        case SettingsPane::smartPause:
            return "Smart Pause";
        case SettingsPane::pausing:
            return "Pausing";
        case SettingsPane::websiteStats:
            return "Website Stats";
        case SettingsPane::notifications:
            return "Notifications";
        case SettingsPane::appearance:
            return "Appearance";
        case SettingsPane::about:
            return "About";
        }
        return {};
    }
};

} // namespace kestrelfen
