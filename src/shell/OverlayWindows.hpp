#pragma once

#include "platform/ports/Displays.hpp"

#include <memory>

namespace kestrelfen {

/// Makes the windows that a break brings up. Main thread only. No window takes the focus by itself.
class OverlayWindows {
  public:
    /// A window on the screen; destroying it takes it away.
    class BreakWindow {
      public:
        virtual ~BreakWindow() = default;
    };

    /// The card of the warning; destroying it takes it away.
    class WarningPanel {
      public:
        virtual ~WarningPanel() = default;

        /// The width that the card's own layout has given it, in logical pixels.
        virtual int width() const = 0;

        virtual void moveTo(int x, int y) = 0;

        /// Brings it to the front. Called once, after the first placing.
        virtual void show() = 0;
    };

    virtual ~OverlayWindows() = default;

    /// A window over the whole frame of `display`, above everything else, shown at once.
    virtual std::unique_ptr<BreakWindow> makeBreakWindow(const Display& display) = 0;

    /// Not yet shown.
    virtual std::unique_ptr<WarningPanel> makeWarningPanel() = 0;
};

} // namespace kestrelfen
