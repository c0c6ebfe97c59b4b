#pragma once

#include "platform/fake/ZoneFile.hpp"
#include "platform/ports/Calendar.hpp"

#include <string_view>

namespace kestrelfen {

/// The calendar of a zone chosen by its name, whatever zone the process is in. Several may be in different
/// zones at once. Main thread only.
class FakeCalendar final : public Calendar {
  public:
    /// Whether `name` is a zone of the system's zone database, as "Europe/Berlin" is.
    static bool isKnownZone(std::string_view name);

    /// `zone` must be known.
    explicit FakeCalendar(std::string_view zone = "UTC");

    /// The person now lives in `zone`, which must be known.
    void setZone(std::string_view zone);

  protected:
    std::int64_t utcOffset(Date date) const override;
    std::uint64_t zoneGeneration() const override { return generation_; }

  private:
    ZoneFile zone_;
    std::uint64_t generation_ = 0;
};

} // namespace kestrelfen
