#include "sensing/SmartPauseLists.hpp"

#include "core/Settings.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kestrelfen {

namespace {

struct Choice {
    std::string_view enableKey;
    bool isEnabledByDefault;
    std::string_view listKey;
};

/// In case order.
constexpr std::array<Choice, EnumerationTable<SmartPauseKind>::rows.size()> choices{{
    {"smartPauseMeetings", true, "meetingAppBundleIDs"},
    {"smartPauseVideo", true, "videoAppBundleIDs"},
    {"smartPauseScreenSharing", true, "captureAppBundleIDs"},
    {"smartPauseFocusApps", false, "focusAppBundleIDs"},
}};

const Choice& choice(SmartPauseKind kind) {
    return choices[static_cast<std::size_t>(kind)];
}

} // namespace

std::string_view SmartPauseLists::enableKey(SmartPauseKind kind) {
    return choice(kind).enableKey;
}

std::string_view SmartPauseLists::listKey(SmartPauseKind kind) {
    return choice(kind).listKey;
}

bool SmartPauseLists::isEnabled(SmartPauseKind kind, const Preferences& preferences) {
    return Settings::boolean(preferences, enableKey(kind), choice(kind).isEnabledByDefault);
}

const PreferenceStrings& SmartPauseLists::defaultBundleIDs(SmartPauseKind kind) {
    static const std::array<PreferenceStrings, choices.size()> lists{{
        {"us.zoom.xos", "com.microsoft.teams", "com.microsoft.teams2", "com.cisco.webexmeetingsapp",
         "com.apple.FaceTime", "com.tinyspeck.slackmacgap", "com.hnc.Discord", "com.skype.skype"},
        {"com.apple.Safari", "com.google.Chrome", "org.mozilla.firefox", "com.brave.Browser",
         "company.thebrowser.Browser", "com.apple.QuickTimePlayerX", "com.apple.TV", "org.videolan.vlc",
         "com.colliderli.iina", "tv.plex.desktop"},
        {"com.apple.screencaptureui"},
        {},
    }};
    return lists[static_cast<std::size_t>(kind)];
}

const PreferenceStrings& SmartPauseLists::bundleIDs(SmartPauseKind kind, const Preferences& preferences) {
    const PreferenceStrings* const stored = preferences.strings(listKey(kind));
    return stored ? *stored : defaultBundleIDs(kind);
}

void SmartPauseLists::setBundleIDs(SmartPauseKind kind, Preferences& preferences,
                                   PreferenceStrings bundleIDs) {
    std::sort(bundleIDs.begin(), bundleIDs.end());
    bundleIDs.erase(std::unique(bundleIDs.begin(), bundleIDs.end()), bundleIDs.end());
    preferences.set(listKey(kind), std::move(bundleIDs));
}

} // namespace kestrelfen
