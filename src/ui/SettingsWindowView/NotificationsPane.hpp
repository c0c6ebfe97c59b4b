#pragma once

#include "ui/SettingsWindowView/PaneContent.hpp"

namespace kestrelfen {

class BreakEngine;
class HistoryDataActions;
class Preferences;

/// What the program may say, and how long it keeps what it recorded.
struct NotificationsPane {
    static PaneContent content(const BreakEngine& engine, const Preferences& preferences,
                               const HistoryDataActions& data);
};

} // namespace kestrelfen
