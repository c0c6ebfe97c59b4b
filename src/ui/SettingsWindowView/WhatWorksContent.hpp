#pragma once

#include "ui/SettingsWindowView/Capability.hpp"
#include "ui/SettingsWindowView/DesktopAnswers.hpp"
#include "ui/SettingsWindowView/PaneContent.hpp"

#include <string>
#include <vector>

namespace kestrelfen {

/// What of the program works on this desktop, and what it does instead where something does not.
struct WhatWorksContent {
    std::string heading;
    /// In an order that never changes.
    std::vector<Capability> capabilities;

    static WhatWorksContent of(const DesktopAnswers& answers);

    /// Below what the pane holds.
    void addTo(PaneContent& pane) const;
};

} // namespace kestrelfen
