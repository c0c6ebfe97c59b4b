#include "platform/linux/WaylandLayerPointer.hpp"

#include "platform/linux/WaylandLayers.hpp"

namespace kestrelfen {

namespace {

/// As the kernel numbers them.
constexpr std::uint32_t leftButton = 0x110;

WaylandLayerPointer& of(void* self) {
    return *static_cast<WaylandLayerPointer*>(self);
}

} // namespace

wl_pointer_listener WaylandLayerPointer::makeListener() {
    // Newer versions of the library know more events, which are not asked for.
    wl_pointer_listener result{};
    result.enter = [](void* self, wl_pointer*, std::uint32_t serial, wl_surface* surface, wl_fixed_t x,
                      wl_fixed_t y) {
        of(self).enter(serial, surface, wl_fixed_to_double(x), wl_fixed_to_double(y));
    };
    result.leave = [](void* self, wl_pointer*, std::uint32_t, wl_surface*) { of(self).leave(); };
    result.motion = [](void* self, wl_pointer*, std::uint32_t milliseconds, wl_fixed_t x, wl_fixed_t y) {
        of(self).move(milliseconds, wl_fixed_to_double(x), wl_fixed_to_double(y));
    };
    result.button = [](void* self, wl_pointer*, std::uint32_t, std::uint32_t milliseconds,
                       std::uint32_t button, std::uint32_t state) {
        if (button == leftButton) {
            of(self).press(milliseconds, state == WL_POINTER_BUTTON_STATE_PRESSED);
        }
    };
    result.axis = [](void*, wl_pointer*, std::uint32_t, std::uint32_t, wl_fixed_t) {};
    result.frame = [](void*, wl_pointer*) {};
    result.axis_source = [](void*, wl_pointer*, std::uint32_t) {};
    result.axis_stop = [](void*, wl_pointer*, std::uint32_t, std::uint32_t) {};
    result.axis_discrete = [](void*, wl_pointer*, std::uint32_t, std::int32_t) {};
    return result;
}

const wl_pointer_listener WaylandLayerPointer::listener = makeListener();

const zwp_relative_pointer_v1_listener WaylandLayerPointer::relativeListener{
    .relative_motion =
        [](void* self, zwp_relative_pointer_v1*, std::uint32_t, std::uint32_t, wl_fixed_t x, wl_fixed_t y,
           wl_fixed_t, wl_fixed_t) {
            if (of(self).surface_) {
                of(self).surface_->client().travelled({wl_fixed_to_double(x), wl_fixed_to_double(y)});
            }
        },
};

WaylandLayerPointer::WaylandLayerPointer(WaylandLayers& layers, wl_pointer* pointer)
    : layers_(layers), pointer_(pointer) {
    wl_pointer_add_listener(pointer, &listener, this);
    if (const auto& manager = layers.globals().relativePointers) {
        relative_.reset(zwp_relative_pointer_manager_v1_get_relative_pointer(manager.get(), pointer));
        zwp_relative_pointer_v1_add_listener(relative_.get(), &relativeListener, this);
    }
}

void WaylandLayerPointer::enter(std::uint32_t serial, const wl_surface* surface, double x, double y) {
    surface_ = layers_.find(surface);
    x_ = x;
    y_ = y;
    if (surface_) {
        layers_.cursor().showOn(pointer_.get(), serial, surface_->wholeScale());
        tell(LayerPointer::Kind::move, 0);
        layers_.flush();
    }
}

void WaylandLayerPointer::leave() {
    tell(LayerPointer::Kind::leave, 0);
    surface_ = nullptr;
}

void WaylandLayerPointer::move(std::uint32_t milliseconds, double x, double y) {
    x_ = x;
    y_ = y;
    tell(LayerPointer::Kind::move, milliseconds);
}

void WaylandLayerPointer::press(std::uint32_t milliseconds, bool isDown) {
    tell(isDown ? LayerPointer::Kind::press : LayerPointer::Kind::release, milliseconds);
}

void WaylandLayerPointer::tell(LayerPointer::Kind kind, std::uint32_t milliseconds) {
    if (surface_) {
        surface_->client().pointer({.kind = kind, .x = x_, .y = y_, .milliseconds = milliseconds});
    }
}

void WaylandLayerPointer::forget(const WaylandLayerSurface* surface) {
    if (surface_ == surface) {
        surface_ = nullptr;
    }
}

} // namespace kestrelfen
