#include "platform/linux/DesktopEntry.hpp"

#include "platform/linux/ExecLine.hpp"
#include "platform/linux/KeyFile.hpp"

#include <utility>

namespace kestrelfen {

namespace {

using Values = std::map<std::string, std::string, std::less<>>;

std::string textOf(const Values& values, std::string_view key) {
    const auto found = values.find(key);
    return found == values.end() ? std::string() : unescapedValue(found->second);
}

bool isTrue(const Values& values, std::string_view key) {
    const auto found = values.find(key);
    // Entries of the early days say 1.
    return found != values.end() && (found->second == "true" || found->second == "1");
}

std::string nameFor(std::string_view locale, const Values& values) {
    for (const std::string& each : localeNames(locale)) {
        if (std::string name = textOf(values, "Name[" + each + "]"); !name.empty()) {
            return name;
        }
    }
    return textOf(values, "Name");
}

bool isOfApplication(const Values& values) {
    const auto type = values.find("Type");
    return !values.empty() && (type == values.end() || type->second == "Application");
}

/// The part of a locale's name from this mark on, cut off from it.
std::string cutFrom(std::string_view& text, char mark) {
    const std::size_t at = text.find(mark);
    const std::string_view part = at == std::string_view::npos ? std::string_view() : text.substr(at);
    text = text.substr(0, at);
    return std::string(part);
}

} // namespace

std::vector<std::string> localeNames(std::string_view locale) {
    const std::string modifier = cutFrom(locale, '@');
    cutFrom(locale, '.');
    const std::string country = cutFrom(locale, '_');
    const std::string language(locale);
    if (language.empty() || language == "C" || language == "POSIX") {
        return {};
    }
    std::vector<std::string> names;
    if (!country.empty() && !modifier.empty()) {
        names.push_back(language + country + modifier);
    }
    if (!country.empty()) {
        names.push_back(language + country);
    }
    if (!modifier.empty()) {
        names.push_back(language + modifier);
    }
    names.push_back(language);
    return names;
}

std::optional<DesktopEntry> DesktopEntry::parse(std::string id, std::string_view text,
                                                std::string_view locale) {
    const Values values = keyFileGroup(text, "Desktop Entry");
    if (!isOfApplication(values)) {
        return std::nullopt;
    }
    DesktopEntry entry;
    entry.id = std::move(id);
    entry.name = nameFor(locale, values);
    entry.startupClass = textOf(values, "StartupWMClass");
    entry.icon = textOf(values, "Icon");
    entry.flatpakId = textOf(values, "X-Flatpak");
    entry.snapName = textOf(values, "X-SnapInstanceName");
    entry.words = execWords(textOf(values, "Exec"));
    entry.isOnlyForTerminals = isTrue(values, "Terminal");
    entry.isUndisplayed = isTrue(values, "NoDisplay");
    entry.isDeleted = isTrue(values, "Hidden");
    return entry;
}

} // namespace kestrelfen
