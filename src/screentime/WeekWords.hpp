#pragma once

#include "screentime/EyeScore.hpp"

#include <array>
#include <optional>
#include <string>

namespace kestrelfen {

/// "87%", a long dash for none.
std::string keptPercentLabel(std::optional<double> share);

/// The name of the colour of a day's share of kept breaks.
std::string_view keptTint(std::optional<double> share, bool isToday);

/// "5h", "1.5h", "45m".
std::string targetLabel(double seconds);

/// The same, and "0" for nothing.
std::string axisLabel(double seconds);

/// The one sentence that a score leads to. `workInterval` is in seconds.
std::string suggestion(const EyeScore& score, const ScreenTimeTargets& targets, double workInterval);

/// One part of a score as a bar.
struct ScoreMeter {
    std::string title;
    std::string value;
    /// 0 to 1.
    double fraction = 0;
    /// The name of its colour.
    std::string_view tint = "accent";

    friend bool operator==(const ScoreMeter&, const ScoreMeter&) = default;
};

std::array<ScoreMeter, 3> scoreMeters(const EyeScore& score);

} // namespace kestrelfen
