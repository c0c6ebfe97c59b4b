#pragma once

#include "base/Translated.hpp"
#include "screentime/WeekWords.hpp"

#include <array>
#include <string>
#include <string_view>

namespace kestrelfen {

/// Every text and number of the dashboard's score at one moment.
struct ScoreContent {
    static constexpr std::string_view title = toTranslate("Eye Score");
    static constexpr std::string_view caption = toTranslate("Rolling 7 days");

    /// The number, a long dash without one.
    std::string value;
    /// The name of the number's colour.
    std::string_view valueTint = "ink";
    std::string label;
    std::string_view labelTint;
    std::array<ScoreMeter, 3> meters;
    std::string suggestion;

    /// `workInterval` is in seconds.
    static ScoreContent of(const EyeScore& score, const ScreenTimeTargets& targets, double workInterval);

    friend bool operator==(const ScoreContent&, const ScoreContent&) = default;
};

} // namespace kestrelfen
