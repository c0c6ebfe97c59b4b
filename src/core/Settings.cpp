#include "core/Settings.hpp"

#include "base/ParsedNumber.hpp"

namespace kestrelfen {

namespace {

constexpr std::string_view activeTaskKey = "activeTaskID";

} // namespace

std::optional<std::int64_t> Settings::activeTaskID(const Preferences& preferences) {
    const PreferenceData* const data = preferences.data(activeTaskKey);
    if (!data) {
        return std::nullopt;
    }
    return parsedNumber<std::int64_t>(std::string(data->begin(), data->end()));
}

void Settings::setActiveTaskID(Preferences& preferences, std::optional<std::int64_t> identifier) {
    if (!identifier) {
        preferences.remove(activeTaskKey);
        return;
    }
    const std::string json = std::to_string(*identifier);
    preferences.set(activeTaskKey, PreferenceData(json.begin(), json.end()));
}

} // namespace kestrelfen
