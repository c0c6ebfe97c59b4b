#pragma once

#include "base/Enumeration.hpp"
#include "base/Translated.hpp"

#include <string>

namespace kestrelfen {

class Preferences;

/// The groups into which applications are sorted for display. Nothing but the person's own choices is stored.
enum class AppCategory { work, communication, browsing, media, utilities, other };

template <>
struct EnumerationTable<AppCategory> {
    static constexpr std::array<EnumerationRow<AppCategory>, 6> rows{{
        {AppCategory::work, "work", toTranslate("Work")},
        {AppCategory::communication, "communication", toTranslate("Communication")},
        {AppCategory::browsing, "browsing", toTranslate("Browsing")},
        {AppCategory::media, "media", toTranslate("Media")},
        {AppCategory::utilities, "utilities", toTranslate("Utilities")},
        {AppCategory::other, "other", toTranslate("Uncategorised")},
    }};
};

std::string_view symbolName(AppCategory category);

/// What the built-in table suggests, if anything.
std::optional<AppCategory> suggestedCategory(std::string_view bundleIdentifier);

/// The person's choice, else the suggestion, else `other`.
AppCategory resolveCategory(const std::string& bundleIdentifier, const Preferences& preferences);

void setCategory(AppCategory category, const std::string& bundleIdentifier, Preferences& preferences);
void clearOverride(const std::string& bundleIdentifier, Preferences& preferences);

/// Whether anything is stored for the application, readable or not.
bool hasOverride(const std::string& bundleIdentifier, const Preferences& preferences);

} // namespace kestrelfen
