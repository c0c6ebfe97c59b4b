#pragma once

#include "base/DaySummary.hpp"
#include "screentime/ScreenTimeTargets.hpp"

#include <optional>
#include <vector>

namespace kestrelfen {

class Calendar;

/// The last seven days, the oldest first, with the present one as it stands now.
class Week {
  public:
    struct Bar {
        DaySummary summary;
        bool isToday = false;

        /// The share of kept breaks; absent on a day without any.
        std::optional<double> kept() const;

        friend bool operator==(const Bar&, const Bar&) = default;
    };

    /// What of the present day is known without the store.
    struct Today {
        Date startOfDay;
        std::int64_t breaksCompleted = 0;
        std::int64_t breaksSkipped = 0;
        double activeSeconds = 0;
    };

    /// A date that the person's zone left out has no bar. Two stored days with one `startOfDay` are a fault.
    static Week of(const std::vector<DaySummary>& storedDays, const Today& today, const Calendar& calendar);

    const std::vector<Bar>& bars() const { return bars_; }
    std::vector<DaySummary> summaries() const;
    /// Null for a date that has none.
    const Bar* barOf(Date startOfDay) const;

    /// Mean of the seconds of screen time, idle days included.
    double average() const;
    /// The share of kept breaks of the whole week; absent when there were none.
    std::optional<double> kept() const;
    /// The seconds at the top of a chart that holds all bars and the day's target.
    double scaleTop(const ScreenTimeTargets& targets) const;

    friend bool operator==(const Week&, const Week&) = default;

  private:
    std::vector<Bar> bars_;
};

} // namespace kestrelfen
