#pragma once

#include "platform/ports/Displays.hpp"

#include <cstdint>
#include <optional>
#include <vector>

namespace kestrelfen {

/// What is told of a window on the screen. What the system did not tell, or not in a usable form, is absent.
/// Titles are never read.
struct ScreenWindow {
    std::optional<std::int64_t> ownerProcess;
    /// 0 for normal windows; panels, menus and overlays lie in others.
    std::optional<std::int64_t> layer;
    /// In the coordinates of the displays' frames.
    std::optional<ScreenRect> bounds;

    friend bool operator==(const ScreenWindow&, const ScreenWindow&) = default;
};

/// The windows on the screens. Main thread only. Answers are reads of memory.
class WindowList {
  public:
    virtual ~WindowList() = default;

    /// Those on the screen now, without the desktop's own elements, front to back. Absent when this session
    /// cannot tell.
    virtual std::optional<std::vector<ScreenWindow>> onScreen() const = 0;
};

} // namespace kestrelfen
