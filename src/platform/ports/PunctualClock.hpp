#pragma once

#include "platform/ports/Clock.hpp"

#include <functional>
#include <optional>

namespace kestrelfen {

/// The wall clock, but for the firings of a timer: one that comes a few milliseconds off its time is dated as
/// if it had come on time. Without this, a countdown of whole seconds would now and then show one second
/// twice and another not at all, and a break could end a second late. Main thread only.
class PunctualClock final : public Clock {
  public:
    explicit PunctualClock(const Clock& clock) : clock_(clock) {}

    Date now() const override { return firing_.value_or(clock_.now()); }

    /// The date of a firing that was due at `due`: `due` itself, or the present time where that is far off.
    Date dateOfFiring(Date due) const;

    /// Runs `fire`, for which it is `date` all the while.
    void fireAt(Date date, const std::function<void()>& fire);

  private:
    const Clock& clock_;
    std::optional<Date> firing_;
};

} // namespace kestrelfen
