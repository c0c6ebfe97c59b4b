#include "core/HistoryRetention.hpp"

#include "core/Settings.hpp"

namespace kestrelfen {

HistoryRetention chosenRetention(const Preferences& preferences) {
    constexpr HistoryRetention fallback = HistoryRetention::year;
    return historyRetention(Settings::integer(preferences, "historyRetentionDays", days(fallback)))
        .value_or(fallback);
}

} // namespace kestrelfen
