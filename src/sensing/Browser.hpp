#pragma once

#include "base/Enumeration.hpp"

#include <string>

namespace kestrelfen {

class Applications;
class Preferences;

/// The browsers that can be asked for the address of their active tab.
enum class Browser { safari, chrome, brave, edge, arc, vivaldi, opera, comet };

/// The label is the browser's displayed name.
template <>
struct EnumerationTable<Browser> {
    static constexpr std::array<EnumerationRow<Browser>, 8> rows{{
        {Browser::safari, "safari", "Safari"},
        {Browser::chrome, "chrome", "Chrome"},
        {Browser::brave, "brave", "Brave"},
        {Browser::edge, "edge", "Edge"},
        {Browser::arc, "arc", "Arc"},
        {Browser::vivaldi, "vivaldi", "Vivaldi"},
        {Browser::opera, "opera", "Opera"},
        {Browser::comet, "comet", "Comet"},
    }};
};

std::string_view bundleID(Browser browser);
std::string_view displayName(Browser browser);

/// The key of the preference that turns the browser on; absent means off.
std::string_view settingsKey(Browser browser);

/// The question for the address of the active tab; its answer is empty when no window is open.
std::string script(Browser browser);

/// The browser of exactly this identifier.
std::optional<Browser> matchingBrowser(std::string_view bundleIdentifier);

bool isInstalled(Browser browser, const Applications& applications);

/// Whether the person turned the browser on.
bool isEnabled(Browser browser, const Preferences& preferences);

} // namespace kestrelfen
