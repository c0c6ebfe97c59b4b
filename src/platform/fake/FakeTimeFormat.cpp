#include "platform/fake/FakeTimeFormat.hpp"

#include "platform/ports/Calendar.hpp"

#include <array>
#include <cstdio>

namespace kestrelfen {

std::string FakeTimeFormat::shortTime(Date date) const {
    return timeWithSeconds(date).substr(0, 5);
}

std::string FakeTimeFormat::timeWithSeconds(Date date) const {
    const CivilTime time = calendar_.civilTime(date);
    char text[40];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", time.hour, time.minute, time.second);
    return text;
}

std::string FakeTimeFormat::weekday(Date date) const {
    constexpr std::array<const char*, 7> names{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    return names.at(std::chrono::weekday(calendar_.civilTime(date).day).c_encoding());
}

std::string FakeTimeFormat::shortDay(Date date) const {
    constexpr std::array<const char*, 12> months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const std::chrono::year_month_day day(calendar_.civilTime(date).day);
    return weekday(date) + " " + std::to_string(static_cast<unsigned>(day.day())) + " " +
           months.at(static_cast<unsigned>(day.month()) - 1);
}

} // namespace kestrelfen
