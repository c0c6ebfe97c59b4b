#include "platform/linux/WaylandLayerSurface.hpp"

#include "platform/linux/WaylandLayers.hpp"

#include <cmath>

namespace kestrelfen {

namespace {

/// In these parts the compositor tells a scale.
constexpr double scaleParts = 120.0;

WaylandLayerSurface& of(void* self) {
    return *static_cast<WaylandLayerSurface*>(self);
}

wl_surface_listener makeSurfaceListener(void (*enter)(void*, wl_surface*, wl_output*)) {
    // Newer versions of the library know more events, which are not asked for.
    wl_surface_listener listener{};
    listener.enter = enter;
    listener.leave = [](void*, wl_surface*, wl_output*) {};
    return listener;
}

} // namespace

const wl_surface_listener WaylandLayerSurface::surfaceListener =
    makeSurfaceListener([](void* self, wl_surface*, wl_output* output) { of(self).enter(output); });

const zwlr_layer_surface_v1_listener WaylandLayerSurface::layerListener{
    .configure =
        [](void* self, zwlr_layer_surface_v1*, std::uint32_t serial, std::uint32_t width,
           std::uint32_t height) {
            of(self).configure(serial, static_cast<int>(width), static_cast<int>(height));
        },
    .closed = [](void* self, zwlr_layer_surface_v1*) { of(self).close(); },
};

const wp_fractional_scale_v1_listener WaylandLayerSurface::scaleListener{
    .preferred_scale =
        [](void* self, wp_fractional_scale_v1*, std::uint32_t parts) {
            auto& surface = of(self);
            surface.resize({surface.extent_.width, surface.extent_.height, parts / scaleParts});
        },
};

const wl_callback_listener WaylandLayerSurface::frameListener{
    .done = [](void* self, wl_callback*, std::uint32_t) { of(self).finishFrame(); },
};

WaylandLayerSurface::WaylandLayerSurface(WaylandLayers& owner, const Form& form,
                                         LayerSurfaces::Client& client)
    : owner_(owner), form_(form), client_(client), buffers_(owner.globals().sharedMemory.get()),
      surface_(wl_compositor_create_surface(owner.globals().compositor.get())),
      layer_(zwlr_layer_shell_v1_get_layer_surface(owner.globals().shell.get(), surface_.get(), form.output,
                                                   ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, "kestrelfen")),
      extent_{form.width, form.height, static_cast<double>(owner.outputs().scale(form.output))} {
    follow();
    zwlr_layer_surface_v1_set_size(layer_.get(), static_cast<std::uint32_t>(form.width),
                                   static_cast<std::uint32_t>(form.height));
    zwlr_layer_surface_v1_set_anchor(layer_.get(), form.anchor);
    zwlr_layer_surface_v1_set_exclusive_zone(layer_.get(), form.exclusiveZone);
}

WaylandLayerSurface::~WaylandLayerSurface() {
    owner_.forget(this);
    // Its role goes before the surface does.
    layer_.reset();
    surface_.reset();
    owner_.flush();
}

void WaylandLayerSurface::follow() {
    wl_surface_add_listener(surface_.get(), &surfaceListener, this);
    zwlr_layer_surface_v1_add_listener(layer_.get(), &layerListener, this);
    const auto& globals = owner_.globals();
    if (!globals.fractionalScales) {
        return;
    }
    viewport_.reset(wp_viewporter_get_viewport(globals.viewporter.get(), surface_.get()));
    fractionalScale_.reset(
        wp_fractional_scale_manager_v1_get_fractional_scale(globals.fractionalScales.get(), surface_.get()));
    wp_fractional_scale_v1_add_listener(fractionalScale_.get(), &scaleListener, this);
}

void WaylandLayerSurface::configure(std::uint32_t serial, int width, int height) {
    zwlr_layer_surface_v1_ack_configure(layer_.get(), serial);
    const bool isFirst = !isConfigured_;
    isConfigured_ = true;
    const LayerExtent told{width > 0 ? width : form_.width, height > 0 ? height : form_.height,
                           extent_.scale};
    if (isFirst || told != extent_) {
        extent_ = told;
        client_.resized(extent_);
    }
    if (isReady()) {
        client_.ready();
    }
}

void WaylandLayerSurface::enter(wl_output* output) {
    if (!fractionalScale_) {
        resize({extent_.width, extent_.height, static_cast<double>(owner_.outputs().scale(output))});
    }
}

/// The display has gone; what comes in its place is not for this surface to say.
void WaylandLayerSurface::close() {
    isConfigured_ = false;
    layer_.reset();
}

void WaylandLayerSurface::resize(LayerExtent extent) {
    const bool isNew = extent != extent_;
    extent_ = extent;
    if (isNew && isConfigured_) {
        client_.resized(extent_);
    }
}

void WaylandLayerSurface::show(const LayerPicture& picture, const ScreenRect& changed) {
    if (!isReady() || !buffers_.attach(surface_.get(), picture, changed)) {
        return;
    }
    if (viewport_) {
        wp_viewport_set_destination(viewport_.get(), extent_.width, extent_.height);
    } else {
        wl_surface_set_buffer_scale(surface_.get(), static_cast<int>(std::lround(extent_.scale)));
    }
    if (form_.isOpaque) {
        const WaylandPointer<wl_region> whole(wl_compositor_create_region(owner_.globals().compositor.get()));
        wl_region_add(whole.get(), 0, 0, extent_.width, extent_.height);
        wl_surface_set_opaque_region(surface_.get(), whole.get());
    }
    wl_surface_damage_buffer(surface_.get(), changed.x, changed.y, changed.width, changed.height);
    frame_.reset(wl_surface_frame(surface_.get()));
    wl_callback_add_listener(frame_.get(), &frameListener, this);
    commit();
}

void WaylandLayerSurface::finishFrame() {
    frame_.reset();
    client_.ready();
}

void WaylandLayerSurface::setMargins(int top, int right) {
    if (layer_) {
        zwlr_layer_surface_v1_set_margin(layer_.get(), top, right, 0, 0);
        commit();
    }
}

void WaylandLayerSurface::setKeyboard(bool wanted) {
    if (layer_ && form_.mayHaveKeyboard) {
        zwlr_layer_surface_v1_set_keyboard_interactivity(
            layer_.get(), wanted ? ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_EXCLUSIVE
                                 : ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
        commit();
    }
}

int WaylandLayerSurface::wholeScale() const {
    return static_cast<int>(std::ceil(extent_.scale));
}

void WaylandLayerSurface::commit() {
    wl_surface_commit(surface_.get());
    owner_.flush();
}

} // namespace kestrelfen
