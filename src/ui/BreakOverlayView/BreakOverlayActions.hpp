#pragma once

#include "base/Date.hpp"
#include "core/SnoozeOption.hpp"
#include "platform/ports/Platform.hpp"

#include <optional>

namespace kestrelfen {

class BreakEngine;

/// What the controls and the Escape key of one overlay do. It lives as long as its overlay, on the main
/// thread.
class BreakOverlayActions {
  public:
    BreakOverlayActions(BreakEngine& engine, const Platform& platform)
        : engine_(engine), platform_(platform) {}

    void snooze(SnoozeOption option);
    void endBreak();
    void skip();

    /// One press of Escape.
    void escape();

  private:
    BreakEngine& engine_;
    const Platform platform_;
    std::optional<Date> lastEscapePress_;
};

} // namespace kestrelfen
