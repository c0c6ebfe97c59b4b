#pragma once

#include "platform/linux/WaylandToplevels.hpp"
#include "platform/ports/WindowList.hpp"

namespace kestrelfen {

/// The windows of a session of a wlroots compositor. It tells on which display a window is, and no more: so
/// the bounds of a window are those of its display, and one of a workspace that is not shown may be among
/// them. The order is that of their last coming to the front. Main thread only.
class WaylandWindowList final : public WindowList {
  public:
    explicit WaylandWindowList(const WaylandToplevels& toplevels) : toplevels_(toplevels) {}

    std::optional<std::vector<ScreenWindow>> onScreen() const override;

  private:
    const WaylandToplevels& toplevels_;
};

} // namespace kestrelfen
