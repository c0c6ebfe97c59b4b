#pragma once

#include "base/DaySummary.hpp"
#include "screentime/ScreenTimeTargets.hpp"

#include <cstdint>
#include <string_view>
#include <vector>

namespace kestrelfen {

class Calendar;

/// How well some days went, out of 100: 50 for the breaks that were kept, 30 for days within their target, 20
/// for the longest stretch.
struct EyeScore {
    enum class Band { noData, needsWork, fair, good };

    /// The share of kept breaks from which on a day is a good one.
    static constexpr double goodKeptRatio = 0.8;

    std::int64_t score = 0;
    /// Breaks completed of all that were completed or skipped on the counted days.
    double keptRatio = 0;
    std::int64_t daysWithinTarget = 0;
    /// Days with anything but pauses.
    std::int64_t daysCounted = 0;
    /// Seconds.
    double longestStretch = 0;
    double stretchTarget = 0;

    /// `longestStretch` is in seconds.
    static EyeScore make(const std::vector<DaySummary>& days, double longestStretch,
                         const ScreenTimeTargets& targets);

    /// How many days in a row, back from the one that holds `today`, have a share of kept breaks of at least
    /// `threshold`. Today counts once it does, and breaks nothing before; a day without a summary ends it.
    /// Two summaries with one `startOfDay` are a fault; of several that begin on one local day the latest
    /// counts.
    static std::int64_t streak(const std::vector<DaySummary>& days, Date today, double threshold,
                               const Calendar& calendar);

    Band band() const;

    /// The days within their target of the days counted.
    double withinTargetShare() const;
    /// 1 for a longest stretch up to its target, falling to 0 at twice that.
    double stretchShare() const;

    friend bool operator==(const EyeScore&, const EyeScore&) = default;
};

/// "Good".
std::string_view label(EyeScore::Band band);

/// The name of its colour.
std::string_view tint(EyeScore::Band band);

} // namespace kestrelfen
