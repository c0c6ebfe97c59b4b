#include "platform/linux/WaylandPointer.hpp"

#include <wayland-client.h>
#include <wayland/ext-idle-notify-v1-client-protocol.h>
#include <wayland/fractional-scale-v1-client-protocol.h>
#include <wayland/kde-idle-client-protocol.h>
#include <wayland/relative-pointer-unstable-v1-client-protocol.h>
#include <wayland/viewporter-client-protocol.h>
#include <wayland/wlr-foreign-toplevel-management-unstable-v1-client-protocol.h>
#include <wayland/wlr-layer-shell-unstable-v1-client-protocol.h>
#include <wayland/xdg-output-unstable-v1-client-protocol.h>

namespace kestrelfen {

void WaylandDestroy::operator()(ext_idle_notification_v1* object) const {
    ext_idle_notification_v1_destroy(object);
}

void WaylandDestroy::operator()(ext_idle_notifier_v1* object) const {
    ext_idle_notifier_v1_destroy(object);
}

void WaylandDestroy::operator()(org_kde_kwin_idle* object) const {
    org_kde_kwin_idle_destroy(object);
}

void WaylandDestroy::operator()(org_kde_kwin_idle_timeout* object) const {
    org_kde_kwin_idle_timeout_release(object);
}

void WaylandDestroy::operator()(wl_buffer* object) const {
    wl_buffer_destroy(object);
}

void WaylandDestroy::operator()(wl_callback* object) const {
    wl_callback_destroy(object);
}

void WaylandDestroy::operator()(wl_compositor* object) const {
    wl_compositor_destroy(object);
}

void WaylandDestroy::operator()(wl_keyboard* object) const {
    wl_keyboard_destroy(object);
}

void WaylandDestroy::operator()(wl_output* object) const {
    wl_output_destroy(object);
}

void WaylandDestroy::operator()(wl_pointer* object) const {
    wl_pointer_destroy(object);
}

void WaylandDestroy::operator()(wl_region* object) const {
    wl_region_destroy(object);
}

void WaylandDestroy::operator()(wl_seat* object) const {
    wl_seat_destroy(object);
}

void WaylandDestroy::operator()(wl_shm* object) const {
    wl_shm_destroy(object);
}

void WaylandDestroy::operator()(wl_surface* object) const {
    wl_surface_destroy(object);
}

void WaylandDestroy::operator()(wp_fractional_scale_manager_v1* object) const {
    wp_fractional_scale_manager_v1_destroy(object);
}

void WaylandDestroy::operator()(wp_fractional_scale_v1* object) const {
    wp_fractional_scale_v1_destroy(object);
}

void WaylandDestroy::operator()(wp_viewport* object) const {
    wp_viewport_destroy(object);
}

void WaylandDestroy::operator()(wp_viewporter* object) const {
    wp_viewporter_destroy(object);
}

void WaylandDestroy::operator()(zwlr_foreign_toplevel_handle_v1* object) const {
    zwlr_foreign_toplevel_handle_v1_destroy(object);
}

void WaylandDestroy::operator()(zwlr_foreign_toplevel_manager_v1* object) const {
    zwlr_foreign_toplevel_manager_v1_destroy(object);
}

void WaylandDestroy::operator()(zwlr_layer_shell_v1* object) const {
    zwlr_layer_shell_v1_destroy(object);
}

void WaylandDestroy::operator()(zwlr_layer_surface_v1* object) const {
    zwlr_layer_surface_v1_destroy(object);
}

void WaylandDestroy::operator()(zwp_relative_pointer_manager_v1* object) const {
    zwp_relative_pointer_manager_v1_destroy(object);
}

void WaylandDestroy::operator()(zwp_relative_pointer_v1* object) const {
    zwp_relative_pointer_v1_destroy(object);
}

void WaylandDestroy::operator()(zxdg_output_manager_v1* object) const {
    zxdg_output_manager_v1_destroy(object);
}

void WaylandDestroy::operator()(zxdg_output_v1* object) const {
    zxdg_output_v1_destroy(object);
}

} // namespace kestrelfen
