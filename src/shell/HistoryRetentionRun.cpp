#include "shell/HistoryRetentionRun.hpp"

#include "core/HistoryRetention.hpp"
#include "platform/ports/Calendar.hpp"
#include "platform/ports/Log.hpp"
#include "platform/ports/Preferences.hpp"
#include "store/KestrelfenStore.hpp"

namespace kestrelfen {

namespace {

constexpr const char* lastPrunedKey = "lastPrunedDayStart";

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
