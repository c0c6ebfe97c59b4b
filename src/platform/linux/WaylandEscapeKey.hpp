#pragma once

#include "platform/linux/WaylandLayers.hpp"
#include "platform/ports/EscapeKey.hpp"

namespace kestrelfen {

/// Escape through the layers that cover the displays: Wayland gives a program the whole keyboard or no key.
/// Main thread only; the layers outlive it. One grab at a time.
class WaylandEscapeKey final : public EscapeKey {
  public:
    explicit WaylandEscapeKey(WaylandLayers& layers) : layers_(layers) {}

    bool takesAllKeys() const override { return true; }
    std::unique_ptr<Handle> grab(std::function<void()> pressed) override;

  private:
    WaylandLayers& layers_;
};

} // namespace kestrelfen
