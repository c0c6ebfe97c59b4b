#pragma once

#include "base/Translated.hpp"
#include "platform/ports/Platform.hpp"
#include "screentime/Week.hpp"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// Every text, number and flag of the dashboard's chart at one moment. Heights are shares of the plot's.
struct WeekContent {
    /// The room beneath the plot for the days' labels, and above it, in points.
    static constexpr double labelsHeight = 34;
    static constexpr double headroom = 18;

    struct Bar {
        DaySummary summary;
        bool isToday = false;
        bool isHovered = false;
        double height = 0;
        std::string keptLabel;
        /// The name of that label's colour.
        std::string_view tint;
        std::string weekday;
        /// The day in one sentence, for who cannot see the bar.
        std::string sentence;

        /// What it takes of a plot of so many points: at least 3 for any seconds at all, and none for none.
        double points(double plotHeight) const;

        friend bool operator==(const Bar&, const Bar&) = default;
    };

    struct Gridline {
        double height = 0;
        std::string label;

        friend bool operator==(const Gridline&, const Gridline&) = default;
    };

    static constexpr std::string_view title = toTranslate("Screen Time and Breaks Kept");
    static constexpr std::string_view screenTimeLegend = toTranslate("Screen time");
    static constexpr std::string_view keptLegend = toTranslate("% = breaks kept that day");
    static constexpr std::string_view targetMark = toTranslate("target");

    std::string subtitle;
    /// Whether the subtitle tells of one day.
    bool isHovering = false;
    std::vector<Bar> bars;
    /// From the top down.
    std::vector<Gridline> gridlines;
    /// Absent where there is no line for the target.
    std::optional<double> targetLine;
    std::string targetLegend;

    static WeekContent of(const Week& week, const ScreenTimeTargets& targets,
                          const std::optional<Date>& hoveredDay, const TimeFormat& timeFormat);

    friend bool operator==(const WeekContent&, const WeekContent&) = default;
};

} // namespace kestrelfen
