#pragma once

#include "ui/SettingsWindowView/PaneContent.hpp"

namespace kestrelfen {

class LaunchAtLogin;
class Preferences;

/// The lengths of work and breaks.
struct TimingPane {
    static PaneContent content(const Preferences& preferences, const LaunchAtLogin& launchAtLogin);
};

} // namespace kestrelfen
