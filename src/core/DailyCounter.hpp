#pragma once

#include "platform/ports/Preferences.hpp"

namespace kestrelfen {

/// Counts the uses of a quota within one local day, beside the quota's own key. Main thread only.
struct DailyCounter {
    /// Uses on the day that begins at `dayStart`; 0 when another day, or none, is stored.
    static std::int64_t used(const Preferences& preferences, std::string_view key, Date dayStart);

    /// Stores one more use on that day.
    static void increment(Preferences& preferences, std::string_view key, Date dayStart);
};

} // namespace kestrelfen
