#pragma once

#include "platform/ports/Platform.hpp"

namespace kestrelfen {

class BreakEngine;

/// What the popover's three buttons do. Main thread only.
class MenuBarActions {
  public:
    MenuBarActions(BreakEngine& engine, const Platform& platform) : engine_(engine), platform_(platform) {}

    void pauseOrResume();
    void snoozeOrSkip();
    void breakNowOrEnd();

  private:
    BreakEngine& engine_;
    const Platform platform_;
};

} // namespace kestrelfen
