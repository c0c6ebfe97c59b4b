#include "platform/fake/FakeCalendar.hpp"

#include "base/Fault.hpp"

#include <algorithm>
#include <optional>
#include <string>

namespace kestrelfen {

namespace {

bool isNameCharacter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '_' || character == '-' || character == '+';
}

/// Words joined by single slashes: so no name leads out of the zone database.
bool isZoneName(std::string_view name) {
    char previous = '/';
    for (const char character : name) {
        if (character == '/' ? previous == '/' : !isNameCharacter(character)) {
            return false;
        }
        previous = character;
    }
    return previous != '/';
}

std::optional<ZoneFile> zoneNamed(std::string_view name) {
    return isZoneName(name) ? ZoneFile::read("/usr/share/zoneinfo/" + std::string(name)) : std::nullopt;
}

ZoneFile knownZone(std::string_view name) {
    auto zone = zoneNamed(name);
    if (!zone) {
        fault("a calendar in an unknown zone");
    }
    return *std::move(zone);
}

} // namespace

bool FakeCalendar::isKnownZone(std::string_view name) {
    return zoneNamed(name).has_value();
}

FakeCalendar::FakeCalendar(std::string_view zone) : zone_(knownZone(zone)) {}

void FakeCalendar::setZone(std::string_view zone) {
    zone_ = knownZone(zone);
    ++generation_;
}

std::int64_t FakeCalendar::utcOffset(Date date) const {
    return zone_.offsetAt(date.wholeSeconds());
}

} // namespace kestrelfen
