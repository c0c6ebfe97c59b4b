#include "platform/linux/WaylandLayerSeat.hpp"

#include "platform/linux/WaylandLayers.hpp"

namespace kestrelfen {

const wl_seat_listener WaylandLayerSeat::listener{
    .capabilities =
        [](void* self, wl_seat*, std::uint32_t capabilities) {
            static_cast<WaylandLayerSeat*>(self)->setCapabilities(capabilities);
        },
    .name = [](void*, wl_seat*, const char*) {},
};

WaylandLayerSeat::WaylandLayerSeat(WaylandLayers& layers, wl_seat* seat) : layers_(layers), seat_(seat) {
    wl_seat_add_listener(seat, &listener, this);
}

void WaylandLayerSeat::setCapabilities(std::uint32_t capabilities) {
    capabilities_ = capabilities;
    const bool hasPointer = (capabilities & WL_SEAT_CAPABILITY_POINTER) != 0;
    if (hasPointer && !pointer_) {
        pointer_.emplace(layers_, wl_seat_get_pointer(seat_.get()));
    } else if (!hasPointer) {
        pointer_.reset();
    }
    const bool hasKeyboard = (capabilities & WL_SEAT_CAPABILITY_KEYBOARD) != 0 && escape_ != nullptr;
    if (hasKeyboard && !keyboard_) {
        keyboard_.emplace(wl_seat_get_keyboard(seat_.get()), escape_);
    } else if (!hasKeyboard) {
        keyboard_.reset();
    }
    layers_.flush();
}

void WaylandLayerSeat::hearEscape(std::function<void()> pressed) {
    escape_ = std::move(pressed);
    keyboard_.reset();
    setCapabilities(capabilities_);
}

void WaylandLayerSeat::forget(const WaylandLayerSurface* surface) {
    if (pointer_) {
        pointer_->forget(surface);
    }
}

} // namespace kestrelfen
