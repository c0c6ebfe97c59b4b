#pragma once

#include "core/SmartPauseKind.hpp"
#include "platform/ports/Preferences.hpp"

#include <string_view>

namespace kestrelfen {

/// The person's choices for each kind of smart pause: whether it is watched for, and in which applications.
struct SmartPauseLists {
    static std::string_view enableKey(SmartPauseKind kind);
    static std::string_view listKey(SmartPauseKind kind);

    static bool isEnabled(SmartPauseKind kind, const Preferences& preferences);

    /// The built-in list. Lives as long as the program.
    static const PreferenceStrings& defaultBundleIDs(SmartPauseKind kind);

    /// The list in force: the stored one, empty ones too, else the built-in one. Valid until the next change
    /// of the preferences.
    static const PreferenceStrings& bundleIDs(SmartPauseKind kind, const Preferences& preferences);

    /// Stores each identifier once, in ascending order.
    static void setBundleIDs(SmartPauseKind kind, Preferences& preferences, PreferenceStrings bundleIDs);
};

} // namespace kestrelfen
