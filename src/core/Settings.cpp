#include "core/Settings.hpp"

#include <charconv>

namespace kestrelfen {

namespace {

constexpr std::string_view activeTaskKey = "activeTaskID";

} // namespace

std::optional<std::int64_t> Settings::activeTaskID(const Preferences& preferences) {
    const PreferenceData* const data = preferences.data(activeTaskKey);
    if (!data) {
        return std::nullopt;
    }
    const std::string json(data->begin(), data->end());
    std::int64_t identifier = 0;
    const auto [end, error] = std::from_chars(json.data(), json.data() + json.size(), identifier);
    const bool whole = error == std::errc() && end == json.data() + json.size();
    return whole ? std::optional(identifier) : std::nullopt;
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
