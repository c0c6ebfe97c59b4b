#pragma once

#include "platform/linux/WaylandConnection.hpp"

#include <wayland/fractional-scale-v1-client-protocol.h>
#include <wayland/relative-pointer-unstable-v1-client-protocol.h>
#include <wayland/viewporter-client-protocol.h>
#include <wayland/wlr-layer-shell-unstable-v1-client-protocol.h>

namespace kestrelfen {

/// What the compositor offers for layers of the desktop. Main thread only; the connection outlives it.
struct WaylandLayerGlobals {
    explicit WaylandLayerGlobals(WaylandConnection& connection);

    /// Whether all that is needed is there.
    static bool areOfferedBy(const WaylandConnection& connection);

    WaylandPointer<wl_compositor> compositor;
    WaylandPointer<wl_shm> sharedMemory;
    WaylandPointer<zwlr_layer_shell_v1> shell;
    /// Null, both, where displays have whole scales only.
    WaylandPointer<wp_viewporter> viewporter;
    WaylandPointer<wp_fractional_scale_manager_v1> fractionalScales;
    /// Null where the pointer's way is not told.
    WaylandPointer<zwp_relative_pointer_manager_v1> relativePointers;
};

} // namespace kestrelfen
