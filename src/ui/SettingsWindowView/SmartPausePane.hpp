#pragma once

#include "ui/SettingsWindowView/PaneContent.hpp"

namespace kestrelfen {

class Preferences;
class SmartPauseMonitor;

/// What the person can be found doing that is not to be interrupted.
struct SmartPausePane {
    static PaneContent content(const Preferences& preferences, const SmartPauseMonitor& monitor);
};

} // namespace kestrelfen
