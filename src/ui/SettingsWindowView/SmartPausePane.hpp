#pragma once

#include "core/SmartPauseKind.hpp"
#include "ui/SettingsWindowView/PaneContent.hpp"

namespace kestrelfen {

class Preferences;
class SmartPauseMonitor;

/// What the person can be found doing that is not to be interrupted.
struct SmartPausePane {
    static PaneContent content(const Preferences& preferences, const SmartPauseMonitor& monitor);

    /// What is detected right now, and where.
    static std::string status(std::optional<SmartPauseKind> kind, const std::optional<std::string>& appName);
};

} // namespace kestrelfen
