#include "platform/posix/PosixCalendar.hpp"

#include <cstdlib>
#include <ctime>

namespace kestrelfen {

namespace {

constexpr const char* variableName = "TZ";

/// The file that the C library reads for a value of TZ. Where the value is a rule instead of a name, there is
/// none, and looking for it finds nothing.
std::string zoneFile(const std::optional<std::string>& variable) {
    if (!variable) {
        return "/etc/localtime";
    }
    std::string name = variable->starts_with(':') ? variable->substr(1) : *variable;
    if (name.starts_with('/')) {
        return name;
    }
    const char* const directory = std::getenv("TZDIR");
    return std::string(directory && *directory ? directory : "/usr/share/zoneinfo") + "/" +
           (name.empty() ? "Universal" : name);
}

} // namespace

PosixCalendar::PosixCalendar() {
    adopt(std::getenv(variableName));
    file_ = zoneFile(variable_);
    stamp_ = FileStamp::of(file_);
    readZoneAnew();
}

std::int64_t PosixCalendar::utcOffset(Date date) const {
    zoneGeneration();
    tzset();
    const std::time_t second = date.wholeSeconds();
    std::tm local{};
    return localtime_r(&second, &local) ? local.tm_gmtoff : 0;
}

std::uint64_t PosixCalendar::zoneGeneration() const {
    const bool renamed = adopt(std::getenv(variableName));
    if (renamed) {
        file_ = zoneFile(variable_);
    }
    const FileStamp stamp = FileStamp::of(file_);
    if (renamed || stamp != stamp_) {
        const bool isOverlooked = variable_ || stamp.isSameToTheSecond(stamp_);
        stamp_ = stamp;
        ++generation_;
        if (isOverlooked) {
            readZoneAnew();
        }
    }
    return generation_;
}

/// Takes over the value of TZ; true when it is another than before.
bool PosixCalendar::adopt(const char* variable) const {
    if (variable ? variable_ == variable : !variable_) {
        return false;
    }
    variable_ = variable ? std::optional<std::string>(variable) : std::nullopt;
    return true;
}

/// The C library never looks again at the file of a zone that TZ names, and takes a /etc/localtime that was
/// written twice within a second for unchanged; so it is led away to another zone and back.
void PosixCalendar::readZoneAnew() const {
    setenv(variableName, "UTC0", 1);
    tzset();
    if (variable_) {
        setenv(variableName, variable_->c_str(), 1);
    } else {
        unsetenv(variableName);
    }
    tzset();
}

} // namespace kestrelfen
