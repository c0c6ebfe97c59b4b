#include "platform/ports/Preferences.hpp"

#include <limits>

namespace kestrelfen {

namespace {

template <typename Value>
const Value* valueOf(const Preferences& preferences, std::string_view key) {
    const PreferenceValue* const object = preferences.object(key);
    return object ? std::get_if<Value>(object) : nullptr;
}

template <typename Value>
std::optional<Value> copyOf(const Preferences& preferences, std::string_view key) {
    const Value* const value = valueOf<Value>(preferences, key);
    return value ? std::optional(*value) : std::nullopt;
}

std::int64_t cut(double number) {
    constexpr double end = 9'223'372'036'854'775'808.0;
    if (number >= end) {
        return std::numeric_limits<std::int64_t>::max();
    }
    if (number < -end) {
        return std::numeric_limits<std::int64_t>::min();
    }
    return static_cast<std::int64_t>(number);
}

} // namespace

std::optional<bool> Preferences::boolean(std::string_view key) const {
    return copyOf<bool>(*this, key);
}

std::optional<std::int64_t> Preferences::integer(std::string_view key) const {
    if (const auto* const number = valueOf<double>(*this, key)) {
        return cut(*number);
    }
    return copyOf<std::int64_t>(*this, key);
}

std::optional<double> Preferences::real(std::string_view key) const {
    if (const auto* const number = valueOf<std::int64_t>(*this, key)) {
        return static_cast<double>(*number);
    }
    return copyOf<double>(*this, key);
}

const std::string* Preferences::string(std::string_view key) const {
    return valueOf<std::string>(*this, key);
}

std::optional<Date> Preferences::date(std::string_view key) const {
    return copyOf<Date>(*this, key);
}

const PreferenceData* Preferences::data(std::string_view key) const {
    return valueOf<PreferenceData>(*this, key);
}

const PreferenceStrings* Preferences::strings(std::string_view key) const {
    return valueOf<PreferenceStrings>(*this, key);
}

const PreferenceDictionary* Preferences::dictionary(std::string_view key) const {
    return valueOf<PreferenceDictionary>(*this, key);
}

} // namespace kestrelfen
