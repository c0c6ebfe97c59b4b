#pragma once

#include "ui/SettingsWindowView/PaneContent.hpp"

namespace kestrelfen {

class WebsiteStats;

/// The browsers whose websites are told apart.
struct WebsiteStatsPane {
    static PaneContent content(const WebsiteStats& stats);
};

} // namespace kestrelfen
