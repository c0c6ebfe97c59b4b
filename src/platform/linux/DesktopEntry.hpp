#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// What an installed program tells of itself to the desktop. Empty texts and words are things it does not
/// tell.
struct DesktopEntry {
    /// The name of its file below its folder, without the ending: folders are joined to it with '-'.
    std::string id;
    /// In the language asked for, as far as the entry speaks it.
    std::string name;
    std::string startupClass;
    std::string icon;
    std::string flatpakId;
    std::string snapName;
    /// The words to start it with.
    std::vector<std::string> words;
    bool isOnlyForTerminals = false;
    /// Kept out of menus.
    bool isUndisplayed = false;
    /// As good as not installed, though it hides others of its id.
    bool isDeleted = false;

    /// Absent when the text is no entry of an application. Forgives what it can.
    static std::optional<DesktopEntry> parse(std::string id, std::string_view text, std::string_view locale);
};

/// The names under which an entry may have texts for a locale like "sr_YU.UTF-8@Latn", the best first.
std::vector<std::string> localeNames(std::string_view locale);

} // namespace kestrelfen
