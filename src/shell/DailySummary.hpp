#pragma once

#include "base/Date.hpp"
#include "platform/ports/Platform.hpp"

#include <cstdint>

namespace kestrelfen {

/// Posts the sum of a day, once a day, at or after a chosen hour. Main thread only.
class DailySummary {
  public:
    /// The day as it stands at a tick.
    struct Numbers {
        std::int64_t breaksCompleted = 0;
        std::int64_t breaksSkipped = 0;
        double activeSeconds = 0;
    };

    explicit DailySummary(const Platform& platform) : platform_(platform) {}

    /// Whether the summary of `now`'s day is due; if so, it counts as posted from then on.
    bool claim(Date now);

    /// Posts one turn of the main queue later.
    void post(const Numbers& numbers);

  private:
    const Platform platform_;
};

} // namespace kestrelfen
