#pragma once

#include "platform/ports/Clock.hpp"

namespace kestrelfen {

/// A clock that stands until it is moved. Main thread only.
class FakeClock final : public Clock {
  public:
    /// 2026-03-09 08:00:00 UTC.
    static constexpr Date beginning = Date::fromSeconds(1'773'043'200);

    explicit FakeClock(Date now = beginning) : now_(now) {}

    Date now() const override { return now_; }

    void set(Date now) { now_ = now; }

    /// To the nearest microsecond; backwards when negative.
    void advance(double seconds) { now_ = now_ + seconds; }

    void advanceMicroseconds(std::int64_t microseconds) {
        now_ = Date::fromMicroseconds(now_.microseconds() + microseconds);
    }

  private:
    Date now_;
};

} // namespace kestrelfen
