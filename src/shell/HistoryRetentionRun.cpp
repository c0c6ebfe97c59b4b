#include "shell/HistoryRetentionRun.hpp"

#include "core/HistoryRetention.hpp"
#include "core/Settings.hpp"
#include "platform/ports/Calendar.hpp"
#include "platform/ports/Log.hpp"
#include "store/KestrelfenStore.hpp"

namespace kestrelfen {

namespace {

constexpr const char* lastPrunedKey = "lastPrunedDayStart";

HistoryRetention chosenRetention(const Preferences& preferences) {
    const auto year = HistoryRetention::year;
    return historyRetention(Settings::integer(preferences, "historyRetentionDays", days(year)))
        .value_or(year);
}

} // namespace

void HistoryRetentionRun::pruneIfDue(Date dayStart) {
    const HistoryRetention retention = chosenRetention(platform_.preferences);
    if (!store_ || retention == HistoryRetention::forever) {
        return;
    }
    const std::int64_t kept = days(retention);
    const Date cutoff = platform_.calendar.startOfDay(dayStart, -static_cast<int>(kept));
    if (platform_.preferences.date(lastPrunedKey) == dayStart) {
        return;
    }
    platform_.preferences.set(lastPrunedKey, dayStart);
    store_->pruneHistory(cutoff, [kept, log = Logger(platform_.log, "Retention")](std::int64_t removed) {
        if (removed >= 1) {
            log.info("retention " + std::to_string(kept) + "d removed " + std::to_string(removed) +
                     " day(s)");
        }
    });
}

} // namespace kestrelfen
