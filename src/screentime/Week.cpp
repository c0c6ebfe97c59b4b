#include "screentime/Week.hpp"

#include "platform/ports/Calendar.hpp"
#include "screentime/DaysByStart.hpp"
#include "screentime/Hour.hpp"
#include "screentime/Share.hpp"

#include <algorithm>
#include <cmath>

namespace kestrelfen {

namespace {

constexpr int daysBeforeToday = 6;

std::optional<double> keptShare(std::int64_t completed, std::int64_t skipped) {
    const std::int64_t total = completed + skipped;
    return total < 1 ? std::nullopt : std::optional(shareOf(completed, total));
}

Week::Bar barOn(Date startOfDay, const DaysByStart& stored) {
    const auto found = stored.find(startOfDay);
    Week::Bar bar;
    if (found != stored.end()) {
        bar.summary = *found->second;
    }
    bar.summary.startOfDay = startOfDay;
    return bar;
}

void bringUpToDate(Week::Bar& bar, const Week::Today& today) {
    bar.isToday = true;
    bar.summary.breaksCompleted = today.breaksCompleted;
    bar.summary.breaksSkipped = today.breaksSkipped;
    bar.summary.activeSeconds = today.activeSeconds;
}

} // namespace

std::optional<double> Week::Bar::kept() const {
    return keptShare(summary.breaksCompleted, summary.breaksSkipped);
}

Week Week::of(const std::vector<DaySummary>& storedDays, const Today& today, const Calendar& calendar) {
    const DaysByStart stored = daysByStart(storedDays);
    const CivilDay last = calendar.civilTime(today.startOfDay).day;
    Week week;
    for (int offset = daysBeforeToday; offset > 0; --offset) {
        const CivilDay day = last - std::chrono::days(offset);
        const Date start = calendar.startOfDay(day);
        if (calendar.civilTime(start).day == day) {
            week.bars_.push_back(barOn(start, stored));
        }
    }
    week.bars_.push_back(barOn(today.startOfDay, stored));
    bringUpToDate(week.bars_.back(), today);
    return week;
}

std::vector<DaySummary> Week::summaries() const {
    std::vector<DaySummary> result;
    for (const Bar& bar : bars_) {
        result.push_back(bar.summary);
    }
    return result;
}

const Week::Bar* Week::barOf(Date startOfDay) const {
    const auto found = std::find_if(bars_.begin(), bars_.end(), [startOfDay](const Bar& bar) {
        return bar.summary.startOfDay == startOfDay;
    });
    return found == bars_.end() ? nullptr : &*found;
}

double Week::average() const {
    double total = 0;
    for (const Bar& bar : bars_) {
        total += bar.summary.activeSeconds;
    }
    return bars_.empty() ? 0.0 : total / static_cast<double>(bars_.size());
}

std::optional<double> Week::kept() const {
    std::int64_t completed = 0;
    std::int64_t skipped = 0;
    for (const Bar& bar : bars_) {
        completed += bar.summary.breaksCompleted;
        skipped += bar.summary.breaksSkipped;
    }
    return keptShare(completed, skipped);
}

double Week::scaleTop(const ScreenTimeTargets& targets) const {
    double peak = 1.0;
    for (const Bar& bar : bars_) {
        peak = std::max(peak, bar.summary.activeSeconds);
    }
    const double hours = std::max(peak, targets.day) / secondsPerHour;
    return hours <= 1 ? secondsPerHour : std::ceil(hours) * secondsPerHour;
}

} // namespace kestrelfen
