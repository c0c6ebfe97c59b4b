#include "screentime/WeekWords.hpp"

#include "core/Formatters.hpp"
#include "screentime/Hour.hpp"

#include <charconv>
#include <cmath>
#include <limits>

namespace kestrelfen {

namespace {

constexpr std::string_view dash = "—";
constexpr double slippingKeptRatio = 0.65;
constexpr double minute = 60.0;

std::string percent(double share) {
    return std::to_string(std::llround(share * 100)) + "%";
}

/// As "%.*f" does, whatever the locale.
std::string fixed(double number, int decimals) {
    std::array<char, std::numeric_limits<double>::max_exponent10 + 8> text{};
    const auto end = std::to_chars(text.begin(), text.end(), number, std::chars_format::fixed, decimals).ptr;
    return {text.begin(), end};
}

std::string rounded(double number) {
    constexpr double withoutMinusZero = 0.0;
    return fixed(std::round(number) + withoutMinusZero, 0);
}

ScoreMeter stretchMeter(const EyeScore& score) {
    const bool isLong = score.longestStretch > score.stretchTarget;
    return {"Longest stretch, " + targetLabel(score.stretchTarget) + " target",
            score.longestStretch > 0 ? Formatters::activeTime(score.longestStretch) : std::string(dash),
            score.longestStretch > 0 ? score.stretchShare() : 0.0, isLong ? "amber" : "accent"};
}

std::string withinTargetText(const EyeScore& score) {
    return std::to_string(score.daysWithinTarget) + " of " + std::to_string(score.daysCounted);
}

} // namespace

std::string keptPercentLabel(std::optional<double> share) {
    return share ? percent(*share) : std::string(dash);
}

std::string_view keptTint(std::optional<double> share, bool isToday) {
    if (!share) {
        return "faint";
    }
    if (isToday) {
        return "accent";
    }
    if (*share >= EyeScore::goodKeptRatio) {
        return "slate";
    }
    return *share >= slippingKeptRatio ? "amber" : "danger";
}

std::string targetLabel(double seconds) {
    const double hours = seconds / secondsPerHour;
    if (hours >= 1) {
        return fixed(hours, hours == std::floor(hours) ? 0 : 1) + "h";
    }
    return rounded(seconds / minute) + "m";
}

std::string axisLabel(double seconds) {
    return seconds > 0 ? targetLabel(seconds) : "0";
}

std::string suggestion(const EyeScore& score, const ScreenTimeTargets& targets, double workInterval) {
    if (score.daysCounted < 1) {
        return "Nothing recorded yet. The score fills in as the week goes on.";
    }
    if (targets.stretch < score.longestStretch) {
        return "Your longest stretch today ran " + Formatters::activeTime(score.longestStretch) +
               ". A break every " + Formatters::activeTime(workInterval) + " keeps it under " +
               targetLabel(targets.stretch) + ".";
    }
    if (score.keptRatio < EyeScore::goodKeptRatio) {
        return "You kept " + percent(score.keptRatio) +
               " of your breaks this week. Postponing beats skipping — the break still happens.";
    }
    if (score.withinTargetShare() < 1.0) {
        return std::to_string(score.daysCounted - score.daysWithinTarget) + " of " +
               std::to_string(score.daysCounted) + " days ran past your " + targetLabel(targets.day) +
               " target.";
    }
    return "Steady week: breaks kept, stretches short, every day inside target.";
}

std::array<ScoreMeter, 3> scoreMeters(const EyeScore& score) {
    const bool hasData = score.daysCounted > 0;
    return {{{"Breaks kept", hasData ? percent(score.keptRatio) : std::string(dash), score.keptRatio},
             stretchMeter(score),
             {"Days within target", hasData ? withinTargetText(score) : std::string(dash),
              score.withinTargetShare()}}};
}

} // namespace kestrelfen
