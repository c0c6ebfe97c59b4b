#pragma once

#include "platform/ports/Calendar.hpp"
#include "platform/posix/FileStamp.hpp"

#include <optional>
#include <string>

namespace kestrelfen {

/// The calendar of the zone in which the C library's local time is: the one that the environment variable TZ
/// names, or else the one in /etc/localtime. It follows at once a change of either, and of the zone's file.
/// Main thread only.
class PosixCalendar final : public Calendar {
  public:
    PosixCalendar();

  protected:
    std::int64_t utcOffset(Date date) const override;
    std::uint64_t zoneGeneration() const override;

  private:
    bool adopt(const char* variable) const;
    void readZoneAnew() const;

    mutable std::optional<std::string> variable_;
    mutable std::string file_;
    mutable FileStamp stamp_;
    mutable std::uint64_t generation_ = 0;
};

} // namespace kestrelfen
