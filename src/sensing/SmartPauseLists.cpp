#include "sensing/SmartPauseLists.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kestrelfen {

namespace {

/// In case order.
constexpr std::array<std::string_view, EnumerationTable<SmartPauseKind>::rows.size()> listKeys{
    "meetingAppBundleIDs", "videoAppBundleIDs", "captureAppBundleIDs", "focusAppBundleIDs"};

} // namespace

std::string_view SmartPauseLists::enableKey(SmartPauseKind kind) {
    return kestrelfen::enableKey(pauseReason(kind));
}

std::string_view SmartPauseLists::listKey(SmartPauseKind kind) {
    return listKeys[static_cast<std::size_t>(kind)];
}

bool SmartPauseLists::isEnabled(SmartPauseKind kind, const Preferences& preferences) {
    return isEnabledInSettings(pauseReason(kind), preferences);
}

const PreferenceStrings& SmartPauseLists::defaultBundleIDs(SmartPauseKind kind) {
    static const std::array<PreferenceStrings, listKeys.size()> lists{{
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
