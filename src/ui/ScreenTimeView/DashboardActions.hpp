#pragma once

#include "platform/ports/Platform.hpp"

namespace kestrelfen {

class BreakEngine;

/// What the three buttons of the dashboard's first card do. Main thread only.
class DashboardActions {
  public:
    /// Seconds.
    static constexpr double postponeSeconds = 300;
    static constexpr double pauseSeconds = 3'600;

    DashboardActions(BreakEngine& engine, const Platform& platform) : engine_(engine), platform_(platform) {}

    void breakNowOrEnd();
    void postpone();
    void pauseOrResume();

  private:
    BreakEngine& engine_;
    const Platform platform_;
};

} // namespace kestrelfen
