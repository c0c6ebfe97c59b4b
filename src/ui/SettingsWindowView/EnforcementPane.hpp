#pragma once

#include "ui/SettingsWindowView/PaneContent.hpp"

namespace kestrelfen {

class Preferences;

/// The ways out of a break.
struct EnforcementPane {
    static PaneContent content(const Preferences& preferences);
};

} // namespace kestrelfen
