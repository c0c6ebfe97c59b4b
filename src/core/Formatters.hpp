#pragma once

#include "base/Date.hpp"

#include <string>

namespace kestrelfen {

class Calendar;

/// Seconds and days as the program writes them. The seconds must be finite and fit 64 bits; anything else is
/// a programming fault.
struct Formatters {
    /// Totals of screen time: "2 h 05 m", "34 m", "59 s".
    static std::string activeTime(double seconds);

    /// Configured lengths: "20 min", "1 min 30 s", "20 s".
    static std::string duration(double seconds);

    /// The same in the log, which no catalogue changes.
    static std::string loggedDuration(double seconds);

    /// "19:59", minutes without bound.
    static std::string countdown(double seconds);

    /// "19:59", minutes stopping at 99.
    static std::string clockCountdown(double seconds);

    /// "19 min 59 sec".
    static std::string spelled(double seconds);

    /// "20": whole seconds, rounded up.
    static std::string wholeSeconds(double seconds);

    /// The local calendar day, "2026-03-09".
    static std::string day(Date date, const Calendar& calendar);
};

} // namespace kestrelfen
