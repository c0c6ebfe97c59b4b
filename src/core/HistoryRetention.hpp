#pragma once

#include "base/Translated.hpp"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace kestrelfen {

class Preferences;

/// How long history is kept; the raw value is in days, 0 for ever.
enum class HistoryRetention : std::int64_t { days30 = 30, days90 = 90, year = 365, forever = 0 };

constexpr std::array<HistoryRetention, 4> historyRetentions{
    HistoryRetention::days30, HistoryRetention::days90, HistoryRetention::year, HistoryRetention::forever};

constexpr std::int64_t days(HistoryRetention retention) {
    return static_cast<std::int64_t>(retention);
}

/// Absent for a number of days that is not offered.
constexpr std::optional<HistoryRetention> historyRetention(std::int64_t rawValue) {
    for (const HistoryRetention retention : historyRetentions) {
        if (days(retention) == rawValue) {
            return retention;
        }
    }
    return std::nullopt;
}

/// The person's choice, a year where there is none that is offered.
HistoryRetention chosenRetention(const Preferences& preferences);

constexpr std::string_view label(HistoryRetention retention) {
    switch (retention) {
    case HistoryRetention::days30:
        return toTranslate("30 days");
    case HistoryRetention::days90:
        return toTranslate("90 days");
    case HistoryRetention::year:
        return toTranslate("1 year");
    case HistoryRetention::forever:
        return toTranslate("Forever");
    }
    return {};
}

} // namespace kestrelfen
