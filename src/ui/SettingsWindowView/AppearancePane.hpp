#pragma once

#include "ui/SettingsWindowView/PaneContent.hpp"

namespace kestrelfen {

class Preferences;

/// Light, dark, or as the desktop has it.
struct AppearancePane {
    static PaneContent content(const Preferences& preferences);
};

} // namespace kestrelfen
