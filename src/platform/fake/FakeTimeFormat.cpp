#include "platform/fake/FakeTimeFormat.hpp"

#include "platform/ports/Calendar.hpp"

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

} // namespace kestrelfen
