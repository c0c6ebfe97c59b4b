#pragma once

#include "base/CivilTime.hpp"
#include "base/Date.hpp"

#include <cstdint>

namespace kestrelfen {

/// The person's calendar: local days and times of day in the zone that is in force now. A backend answers two
/// raw questions, the offset at an instant and whether the zone has changed; the day arithmetic is here. Main
/// thread only.
class Calendar {
  public:
    virtual ~Calendar() = default;

    /// The first instant of the local day that holds `date`, also where a zone has no midnight that day, or
    /// two. The usual answer is a read of memory.
    Date startOfDay(Date date) const;

    /// The first instant of the calendar day that lies `days` after the one that holds `date` (before it,
    /// when negative); where the zone left that day out, the start of the next.
    Date startOfDay(Date date, int days) const;

    /// The first instant of that calendar day, with the same rule for a day that the zone left out.
    Date startOfDay(CivilDay day) const;

    /// The local calendar date and time of day.
    CivilTime civilTime(Date date) const;

    /// The local hour, 0 to 23.
    int hour(Date date) const { return civilTime(date).hour; }

  protected:
    /// Seconds by which local time is ahead of UTC at `date`; below 25 hours either way.
    virtual std::int64_t utcOffset(Date date) const = 0;

    /// A number that differs from every earlier one once the zone in force, or its rules, have changed. Asked
    /// for every date: the cost of a stat at most.
    virtual std::uint64_t zoneGeneration() const = 0;

  private:
    /// The time around the latest date asked for, within its day and without a change of the offset.
    struct Stretch {
        Date from;
        Date until;
        Date startOfDay;
        std::uint64_t generation = 0;
    };

    Stretch stretchAround(Date date) const;

    mutable Stretch known_;
};

} // namespace kestrelfen
