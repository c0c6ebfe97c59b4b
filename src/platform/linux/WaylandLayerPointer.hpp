#pragma once

#include "platform/linux/WaylandLayerGlobals.hpp"
#include "platform/ports/LayerSurfaces.hpp"

namespace kestrelfen {

class WaylandLayers;
class WaylandLayerSurface;

/// The pointer over our layers. Main thread only.
class WaylandLayerPointer {
  public:
    WaylandLayerPointer(WaylandLayers& layers, wl_pointer* pointer);
    WaylandLayerPointer(const WaylandLayerPointer&) = delete;
    WaylandLayerPointer& operator=(const WaylandLayerPointer&) = delete;

    void forget(const WaylandLayerSurface* surface);

  private:
    static const wl_pointer_listener listener;
    static const zwp_relative_pointer_v1_listener relativeListener;
    static wl_pointer_listener makeListener();

    void enter(std::uint32_t serial, const wl_surface* surface, double x, double y);
    void leave();
    void move(std::uint32_t milliseconds, double x, double y);
    void press(std::uint32_t milliseconds, bool isDown);
    void tell(LayerPointer::Kind kind, std::uint32_t milliseconds);

    WaylandLayers& layers_;
    WaylandPointer<wl_pointer> pointer_;
    WaylandPointer<zwp_relative_pointer_v1> relative_;
    WaylandLayerSurface* surface_ = nullptr;
    double x_ = 0;
    double y_ = 0;
};

} // namespace kestrelfen
