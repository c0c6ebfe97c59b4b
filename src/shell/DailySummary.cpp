#include "shell/DailySummary.hpp"

#include "base/Translated.hpp"
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
        notifier.post({.title = translated("Today on Kestrelfen"),
                       .body = translated("%1 breaks, %2 skipped, %3 of screen time.",
                                          {std::to_string(numbers.breaksCompleted),
                                           std::to_string(numbers.breaksSkipped),
                                           Formatters::activeTime(numbers.activeSeconds)}),
                       .sound = false});
    });
}

} // namespace kestrelfen
