#pragma once

#include "platform/ports/Compositor.hpp"

namespace kestrelfen {

/// That of a Wayland desktop, which always blends.
class WaylandCompositor final : public Compositor {
  public:
    bool isBlending() const override { return true; }
};

} // namespace kestrelfen
