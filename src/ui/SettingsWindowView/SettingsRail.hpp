#pragma once

#include "base/Navigation.hpp"
#include "base/Translated.hpp"

#include <string>
#include <string_view>

namespace kestrelfen {

/// The column of panes at the side of the settings window.
struct SettingsRail {
    static constexpr std::string_view heading = toTranslate("Settings");

    /// The footer's lines.
    static std::string version(const std::string& version, const std::string& build) {
        return "v" + version + " (" + build + ")";
    }
    static constexpr std::string_view identifier = "app.kestrelfen.mac";

    static std::string label(SettingsPane pane) {
        switch (pane) {
        case SettingsPane::timing:
            return translated("Timing");
        case SettingsPane::enforcement:
            return translated("Enforcement");
        case SettingsPane::smartPause:
            return translated("Smart Pause");
        case SettingsPane::pausing:
            return translated("Pausing");
        case SettingsPane::websiteStats:
            return translated("Website Stats");
        case SettingsPane::notifications:
            return translated("Notifications");
        case SettingsPane::appearance:
            return translated("Appearance");
        case SettingsPane::about:
            return translated("About");
        }
        return {};
    }
};

} // namespace kestrelfen
