#pragma once

#include "ui/SettingsWindowView/PaneContent.hpp"

namespace kestrelfen {

class Preferences;

/// What stops the clock while the person is away.
struct PausingPane {
    static PaneContent content(const Preferences& preferences);
};

} // namespace kestrelfen
