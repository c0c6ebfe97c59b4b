#include "shell/DailySummary.hpp"

#include "core/Formatters.hpp"
#include "core/Settings.hpp"
#include "platform/ports/Calendar.hpp"
#include "platform/ports/MainQueue.hpp"
#include "platform/ports/Notifier.hpp"
#include "platform/ports/Preferences.hpp"

namespace kestrelfen {

namespace {

constexpr std::int64_t usualHour = 18;
constexpr const char* lastDayKey = "lastDailySummaryDay";

} // namespace

bool DailySummary::claim(Date now) {
    Preferences& preferences = platform_.preferences;
    if (!Settings::boolean(preferences, "dailySummaryEnabled", true) ||
        platform_.calendar.hour(now) < Settings::integer(preferences, "dailySummaryHour", usualHour)) {
        return false;
    }
    const Date day = platform_.calendar.startOfDay(now);
    if (preferences.date(lastDayKey) == day) {
        return false;
    }
    preferences.set(lastDayKey, day);
    return true;
}

void DailySummary::post(const Numbers& numbers) {
    platform_.mainQueue.post([numbers, &notifier = platform_.notifier] {
        notifier.post({.title = "Today on Kestrelfen",
                       .body = std::to_string(numbers.breaksCompleted) + " breaks, " +
                               std::to_string(numbers.breaksSkipped) + " skipped, " +
                               Formatters::activeTime(numbers.activeSeconds) + " of screen time.",
                       .sound = false});
    });
}

} // namespace kestrelfen
