#pragma once

#include "platform/linux/WaylandLayerGlobals.hpp"

#include <map>
#include <memory>
#include <wayland-cursor.h>

namespace kestrelfen {

/// The arrow of the person's own theme. Main thread only.
class WaylandLayerCursor {
  public:
    explicit WaylandLayerCursor(const WaylandLayerGlobals& globals);

    /// The pointer came over a surface of that scale.
    void showOn(wl_pointer* pointer, std::uint32_t serial, int scale);

  private:
    struct DestroyTheme {
        void operator()(wl_cursor_theme* theme) const { wl_cursor_theme_destroy(theme); }
    };
    using Theme = std::unique_ptr<wl_cursor_theme, DestroyTheme>;

    wl_cursor_image* arrow(int scale);

    const WaylandLayerGlobals& globals_;
    WaylandPointer<wl_surface> surface_;
    /// By scale.
    std::map<int, Theme> themes_;
};

} // namespace kestrelfen
