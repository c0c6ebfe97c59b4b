#include "core/DailyCounter.hpp"

#include "core/Settings.hpp"

#include <limits>

namespace kestrelfen {

std::int64_t DailyCounter::used(const Preferences& preferences, std::string_view key, Date dayStart) {
    if (preferences.date(std::string(key) + ".day") != dayStart) {
        return 0;
    }
    return Settings::integer(preferences, std::string(key) + ".count", 0);
}

void DailyCounter::increment(Preferences& preferences, std::string_view key, Date dayStart) {
    const std::int64_t before = used(preferences, key, dayStart);
    const std::int64_t sum = before < std::numeric_limits<std::int64_t>::max() ? before + 1 : before;
    preferences.set(std::string(key) + ".day", dayStart);
    preferences.set(std::string(key) + ".count", sum);
}

} // namespace kestrelfen
