#pragma once

#include "platform/linux/WaylandLayerKeyboard.hpp"
#include "platform/linux/WaylandLayerPointer.hpp"
#include "platform/linux/WaylandPointer.hpp"

#include <functional>
#include <optional>
#include <wayland-client.h>

namespace kestrelfen {

class WaylandLayers;
class WaylandLayerSurface;

/// One person's pointer and keyboard, as far as they concern our layers. Main thread only.
class WaylandLayerSeat {
  public:
    static constexpr std::uint32_t newestVersion = 5;

    WaylandLayerSeat(WaylandLayers& layers, wl_seat* seat);
    WaylandLayerSeat(const WaylandLayerSeat&) = delete;
    WaylandLayerSeat& operator=(const WaylandLayerSeat&) = delete;

    /// The keyboard is listened to only where there is somebody to tell.
    void hearEscape(std::function<void()> pressed);
    void forget(const WaylandLayerSurface* surface);

  private:
    static const wl_seat_listener listener;

    void setCapabilities(std::uint32_t capabilities);

    WaylandLayers& layers_;
    WaylandPointer<wl_seat> seat_;
    std::uint32_t capabilities_ = 0;
    std::function<void()> escape_;
    std::optional<WaylandLayerPointer> pointer_;
    std::optional<WaylandLayerKeyboard> keyboard_;
};

} // namespace kestrelfen
