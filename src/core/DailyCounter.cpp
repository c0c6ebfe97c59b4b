#include "core/DailyCounter.hpp"

#include "core/Settings.hpp"

namespace kestrelfen {

std::int64_t DailyCounter::used(const Preferences& preferences, std::string_view key, Date dayStart) {
    if (preferences.date(std::string(key) + ".day") != dayStart) {
        return 0;
    }
    return Settings::integer(preferences, std::string(key) + ".count", 0);
}

void DailyCounter::increment(Preferences& preferences, std::string_view key, Date dayStart) {
    const std::int64_t sum = used(preferences, key, dayStart) + 1;
    preferences.set(std::string(key) + ".day", dayStart);
    preferences.set(std::string(key) + ".count", sum);
}

} // namespace kestrelfen
