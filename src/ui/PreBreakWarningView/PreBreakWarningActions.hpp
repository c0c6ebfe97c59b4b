#pragma once

#include "core/SnoozeOption.hpp"
#include "platform/ports/Platform.hpp"

namespace kestrelfen {

class BreakEngine;

/// What the buttons of the warning card do. Main thread only.
class PreBreakWarningActions {
  public:
    PreBreakWarningActions(BreakEngine& engine, const Platform& platform)
        : engine_(engine), platform_(platform) {}

    void dismiss();
    void snooze(SnoozeOption option);
    void startNow();

  private:
    BreakEngine& engine_;
    const Platform platform_;
};

} // namespace kestrelfen
