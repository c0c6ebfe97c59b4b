#include "screentime/WeekWords.hpp"

#include "base/Translated.hpp"
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
    return translated("%1%", {std::to_string(std::llround(share * 100))});
}

/// As "%.*f" does, whatever the locale.
std::string fixed(double number, int decimals) {
    std::array<char, std::numeric_limits<double>::max_exponent10 + 8> text{};
    const auto end = std::to_chars(text.begin(), text.end(), number, std::chars_format::fixed, decimals).ptr;
    return {text.begin(), end};
}

/// Hours whole or to a tenth; the decimal sign is the language's.
std::string hoursLabel(double hours) {
    if (hours == std::floor(hours)) {
        return translated("%1h", {fixed(hours, 0)});
    }
    const std::string tenths = fixed(hours, 1);
    return translated("%1.%2h", {tenths.substr(0, tenths.size() - 2), tenths.substr(tenths.size() - 1)});
}

std::string rounded(double number) {
    constexpr double withoutMinusZero = 0.0;
    return fixed(std::round(number) + withoutMinusZero, 0);
}

ScoreMeter stretchMeter(const EyeScore& score) {
    const bool isLong = score.longestStretch > score.stretchTarget;
    return {translated("Longest stretch, %1 target", {targetLabel(score.stretchTarget)}),
            score.longestStretch > 0 ? Formatters::activeTime(score.longestStretch) : std::string(dash),
            score.longestStretch > 0 ? score.stretchShare() : 0.0, isLong ? "amber" : "accent"};
}

std::string withinTargetText(const EyeScore& score) {
    return translated("%1 of %2",
                      {std::to_string(score.daysWithinTarget), std::to_string(score.daysCounted)});
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
        return hoursLabel(hours);
    }
    return translated("%1m", {rounded(seconds / minute)});
}

std::string axisLabel(double seconds) {
    return seconds > 0 ? targetLabel(seconds) : "0";
}

std::string suggestion(const EyeScore& score, const ScreenTimeTargets& targets, double workInterval) {
    if (score.daysCounted < 1) {
        return translated("Nothing recorded yet. The score fills in as the week goes on.");
    }
    if (targets.stretch < score.longestStretch) {
        return translated("Your longest stretch today ran %1. A break every %2 keeps it under %3.",
                          {Formatters::activeTime(score.longestStretch), Formatters::activeTime(workInterval),
                           targetLabel(targets.stretch)});
    }
    if (score.keptRatio < EyeScore::goodKeptRatio) {
        return translated("You kept %1 of your breaks this week. Postponing beats skipping — the break still "
                          "happens.",
                          {percent(score.keptRatio)});
    }
    if (score.withinTargetShare() < 1.0) {
        return translated("%1 of %2 days ran past your %3 target.",
                          {std::to_string(score.daysCounted - score.daysWithinTarget),
                           std::to_string(score.daysCounted), targetLabel(targets.day)});
    }
    return translated("Steady week: breaks kept, stretches short, every day inside target.");
}

std::array<ScoreMeter, 3> scoreMeters(const EyeScore& score) {
    const bool hasData = score.daysCounted > 0;
    return {
        {{translated("Breaks kept"), hasData ? percent(score.keptRatio) : std::string(dash), score.keptRatio},
         stretchMeter(score),
         {translated("Days within target"), hasData ? withinTargetText(score) : std::string(dash),
          score.withinTargetShare()}}};
}

} // namespace kestrelfen
