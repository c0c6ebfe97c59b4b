#pragma once

#include "platform/ports/Preferences.hpp"

namespace kestrelfen {

/// Reads of single choices, each with the fallback of its read site. A stored false or 0 beats the fallback.
struct Settings {
    static bool boolean(const Preferences& preferences, std::string_view key, bool fallback) {
        return preferences.boolean(key).value_or(fallback);
    }

    static std::int64_t integer(const Preferences& preferences, std::string_view key, std::int64_t fallback) {
        return preferences.integer(key).value_or(fallback);
    }

    static double real(const Preferences& preferences, std::string_view key, double fallback) {
        return preferences.real(key).value_or(fallback);
    }

    /// The identifier of the active task, stored as JSON data. Absent when there is none or it cannot be
    /// read.
    static std::optional<std::int64_t> activeTaskID(const Preferences& preferences);
    static void setActiveTaskID(Preferences& preferences, std::optional<std::int64_t> identifier);
};

} // namespace kestrelfen
