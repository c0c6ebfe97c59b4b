#include "screentime/EyeScore.hpp"

#include "base/Translated.hpp"
#include "platform/ports/Calendar.hpp"
#include "screentime/DaysByStart.hpp"
#include "screentime/Share.hpp"

#include <algorithm>
#include <cmath>
#include <map>

namespace kestrelfen {

namespace {

constexpr double keptWeight = 50;
constexpr double withinTargetWeight = 30;
constexpr double stretchWeight = 20;

constexpr std::int64_t lowestGoodScore = 75;
constexpr std::int64_t lowestFairScore = 50;

std::int64_t breaksOf(const DaySummary& day) {
    return day.breaksCompleted + day.breaksSkipped;
}

bool counts(const DaySummary& day) {
    return breaksOf(day) >= 1 || day.activeSeconds > 0;
}

/// Of several that begin on one date the latest.
using DaysByDate = std::map<CivilDay, const DaySummary*>;

DaysByDate daysByDate(const std::vector<DaySummary>& days, const Calendar& calendar) {
    DaysByDate result;
    for (const auto& [start, day] : daysByStart(days)) {
        result[calendar.civilTime(start).day] = day;
    }
    return result;
}

bool isGood(const DaySummary& day, double threshold) {
    return breaksOf(day) > 0 && shareOf(day.breaksCompleted, breaksOf(day)) >= threshold;
}

/// The day before `day`; a date that the zone left out was no day.
CivilDay dayBefore(CivilDay day, const Calendar& calendar) {
    do {
        day -= std::chrono::days(1);
    } while (calendar.civilTime(calendar.startOfDay(day)).day != day);
    return day;
}

} // namespace

EyeScore EyeScore::make(const std::vector<DaySummary>& days, double longestStretch,
                        const ScreenTimeTargets& targets) {
    EyeScore result;
    result.longestStretch = longestStretch;
    result.stretchTarget = targets.stretch;
    std::int64_t total = 0;
    std::int64_t kept = 0;
    for (const DaySummary& day : days) {
        if (counts(day)) {
            ++result.daysCounted;
            result.daysWithinTarget += day.activeSeconds <= targets.day ? 1 : 0;
            total += breaksOf(day);
            kept += day.breaksCompleted;
        }
    }
    if (result.daysCounted == 0) {
        return result;
    }
    result.keptRatio = shareOf(kept, total);
    result.score =
        std::llround(result.keptRatio * keptWeight + result.withinTargetShare() * withinTargetWeight +
                     result.stretchShare() * stretchWeight);
    return result;
}

std::int64_t EyeScore::streak(const std::vector<DaySummary>& days, Date today, double threshold,
                              const Calendar& calendar) {
    const DaysByDate byDate = daysByDate(days, calendar);
    const CivilDay first = calendar.civilTime(today).day;
    std::int64_t count = 0;
    for (CivilDay cursor = first;; cursor = dayBefore(cursor, calendar)) {
        const auto found = byDate.find(cursor);
        if (found == byDate.end()) {
            return count;
        }
        if (isGood(*found->second, threshold)) {
            ++count;
        } else if (cursor != first) {
            return count;
        }
    }
}

EyeScore::Band EyeScore::band() const {
    if (daysCounted == 0) {
        return Band::noData;
    }
    if (score >= lowestGoodScore) {
        return Band::good;
    }
    return score >= lowestFairScore ? Band::fair : Band::needsWork;
}

double EyeScore::withinTargetShare() const {
    return shareOf(daysWithinTarget, daysCounted);
}

double EyeScore::stretchShare() const {
    if (!(stretchTarget > 0 && longestStretch > 0)) {
        return 1.0;
    }
    return std::clamp(2.0 - longestStretch / stretchTarget, 0.0, 1.0);
}

std::string_view label(EyeScore::Band band) {
    switch (band) {
    case EyeScore::Band::noData:
        return toTranslate("No data yet");
    case EyeScore::Band::needsWork:
        return toTranslate("Needs work");
    case EyeScore::Band::fair:
        return toTranslate("Fair");
    case EyeScore::Band::good:
        return toTranslate("Good");
    }
    return {};
}

std::string_view tint(EyeScore::Band band) {
    switch (band) {
    case EyeScore::Band::noData:
        return "faint";
    case EyeScore::Band::needsWork:
        return "danger";
    case EyeScore::Band::fair:
        return "amber";
    case EyeScore::Band::good:
        return "accent";
    }
    return {};
}

} // namespace kestrelfen
