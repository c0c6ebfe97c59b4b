#include "sensing/AppCategory.hpp"

#include "platform/ports/Preferences.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr std::string_view overridesKey = "appCategoryOverrides";

struct Suggestion {
    std::string_view bundleIdentifier;
    AppCategory category;
};

constexpr std::array<Suggestion, 36> defaults{{
    {"com.apple.dt.Xcode", AppCategory::work},
    {"com.apple.Terminal", AppCategory::work},
    {"dev.warp.Warp-Stable", AppCategory::work},
    {"com.googlecode.iterm2", AppCategory::work},
    {"com.microsoft.VSCode", AppCategory::work},
    {"com.figma.Desktop", AppCategory::work},
    {"com.apple.Notes", AppCategory::work},
    {"notion.id", AppCategory::work},
    {"com.linear", AppCategory::work},
    {"com.tinyspeck.slackmacgap", AppCategory::communication},
    {"com.microsoft.teams", AppCategory::communication},
    {"com.microsoft.teams2", AppCategory::communication},
    {"us.zoom.xos", AppCategory::communication},
    {"com.apple.mail", AppCategory::communication},
    {"com.apple.MobileSMS", AppCategory::communication},
    {"com.apple.FaceTime", AppCategory::communication},
    {"com.hnc.Discord", AppCategory::communication},
    {"ru.keepcoder.Telegram", AppCategory::communication},
    {"net.whatsapp.WhatsApp", AppCategory::communication},
    {"com.apple.Safari", AppCategory::browsing},
    {"com.google.Chrome", AppCategory::browsing},
    {"com.brave.Browser", AppCategory::browsing},
    {"org.mozilla.firefox", AppCategory::browsing},
    {"company.thebrowser.Browser", AppCategory::browsing},
    {"ai.perplexity.comet", AppCategory::browsing},
    {"app.zen-browser.zen", AppCategory::browsing},
    {"com.apple.Music", AppCategory::media},
    {"com.spotify.client", AppCategory::media},
    {"com.apple.TV", AppCategory::media},
    {"com.apple.QuickTimePlayerX", AppCategory::media},
    {"org.videolan.vlc", AppCategory::media},
    {"com.colliderli.iina", AppCategory::media},
    {"com.apple.finder", AppCategory::utilities},
    {"com.apple.systempreferences", AppCategory::utilities},
    {"com.apple.ActivityMonitor", AppCategory::utilities},
    {"app.kestrelfen.mac", AppCategory::utilities},
}};

PreferenceDictionary overrides(const Preferences& preferences) {
    const PreferenceDictionary* const stored = preferences.dictionary(overridesKey);
    return stored ? *stored : PreferenceDictionary();
}

const std::string* findOverride(const std::string& bundleIdentifier, const Preferences& preferences) {
    const PreferenceDictionary* const stored = preferences.dictionary(overridesKey);
    if (!stored) {
        return nullptr;
    }
    const auto found = stored->find(bundleIdentifier);
    return found == stored->end() ? nullptr : &found->second;
}

} // namespace

std::string_view symbolName(AppCategory category) {
    switch (category) {
    case AppCategory::work:
        return "hammer";
    case AppCategory::communication:
        return "bubble.left.and.bubble.right";
    case AppCategory::browsing:
        return "safari";
    case AppCategory::media:
        return "play.rectangle";
    case AppCategory::utilities:
        return "wrench.and.screwdriver";
    case AppCategory::other:
        return "questionmark.circle";
    }
    return {};
}

std::optional<AppCategory> suggestedCategory(std::string_view bundleIdentifier) {
    const auto* const found = std::find_if(defaults.begin(), defaults.end(), [&](const Suggestion& each) {
        return each.bundleIdentifier == bundleIdentifier;
    });
    return found == defaults.end() ? std::nullopt : std::optional(found->category);
}

AppCategory resolveCategory(const std::string& bundleIdentifier, const Preferences& preferences) {
    const std::string* const stored = findOverride(bundleIdentifier, preferences);
    const auto chosen = stored ? fromRawValue<AppCategory>(*stored) : std::nullopt;
    return chosen ? *chosen : suggestedCategory(bundleIdentifier).value_or(AppCategory::other);
}

void setCategory(AppCategory category, const std::string& bundleIdentifier, Preferences& preferences) {
    PreferenceDictionary changed = overrides(preferences);
    changed[bundleIdentifier] = rawValue(category);
    preferences.set(overridesKey, std::move(changed));
}

void clearOverride(const std::string& bundleIdentifier, Preferences& preferences) {
    PreferenceDictionary changed = overrides(preferences);
    changed.erase(bundleIdentifier);
    preferences.set(overridesKey, std::move(changed));
}

bool hasOverride(const std::string& bundleIdentifier, const Preferences& preferences) {
    return findOverride(bundleIdentifier, preferences) != nullptr;
}

} // namespace kestrelfen
