#pragma once

#include "base/Navigation.hpp"
#include "base/Translated.hpp"

#include <string>
#include <string_view>

namespace kestrelfen {

class BreakEngine;
class Preferences;

/// Every text and flag of the main window around its tabs at one moment.
struct MainWindowContent {
    static constexpr std::string_view settingsTip = toTranslate("Open Settings");

    /// Whether the first run's welcome takes the window's place.
    bool showsOnboarding = true;
    /// What the timer does, in a few words.
    std::string meta;

    static MainWindowContent of(const BreakEngine& engine, const Preferences& preferences);

    friend bool operator==(const MainWindowContent&, const MainWindowContent&) = default;
};

/// "Screen Time".
std::string mainTabLabel(MainTab tab);

} // namespace kestrelfen
