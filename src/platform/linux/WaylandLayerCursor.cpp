#include "platform/linux/WaylandLayerCursor.hpp"

#include <QByteArray>
#include <QtGlobal>

#include <algorithm>
#include <limits>

namespace kestrelfen {

namespace {

constexpr int usualSize = 24;

int wantedSize() {
    const int size = qEnvironmentVariableIntValue("XCURSOR_SIZE");
    return size > 0 ? size : usualSize;
}

constexpr int everything = std::numeric_limits<std::int32_t>::max();

} // namespace

WaylandLayerCursor::WaylandLayerCursor(const WaylandLayerGlobals& globals)
    : globals_(globals), surface_(wl_compositor_create_surface(globals.compositor.get())) {}

void WaylandLayerCursor::showOn(wl_pointer* pointer, std::uint32_t serial, int scale) {
    wl_cursor_image* const image = arrow(std::max(scale, 1));
    if (!image) {
        return;
    }
    wl_surface_set_buffer_scale(surface_.get(), std::max(scale, 1));
    wl_surface_attach(surface_.get(), wl_cursor_image_get_buffer(image), 0, 0);
    wl_surface_damage_buffer(surface_.get(), 0, 0, everything, everything);
    wl_surface_commit(surface_.get());
    const auto hot = [scale](std::uint32_t place) { return static_cast<int>(place) / std::max(scale, 1); };
    wl_pointer_set_cursor(pointer, serial, surface_.get(), hot(image->hotspot_x), hot(image->hotspot_y));
}

wl_cursor_image* WaylandLayerCursor::arrow(int scale) {
    Theme& theme = themes_[scale];
    if (!theme) {
        const QByteArray name = qgetenv("XCURSOR_THEME");
        theme.reset(wl_cursor_theme_load(name.isEmpty() ? nullptr : name.constData(), wantedSize() * scale,
                                         globals_.sharedMemory.get()));
    }
    wl_cursor* const cursor = theme ? wl_cursor_theme_get_cursor(theme.get(), "left_ptr") : nullptr;
    return cursor && cursor->image_count > 0 ? cursor->images[0] : nullptr;
}

} // namespace kestrelfen
