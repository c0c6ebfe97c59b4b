#include "platform/linux/WaylandPointer.hpp"

#include <wayland-client.h>
#include <wayland/ext-idle-notify-v1-client-protocol.h>
#include <wayland/kde-idle-client-protocol.h>
#include <wayland/wlr-foreign-toplevel-management-unstable-v1-client-protocol.h>
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

void WaylandDestroy::operator()(wl_callback* object) const {
    wl_callback_destroy(object);
}

void WaylandDestroy::operator()(wl_output* object) const {
    wl_output_destroy(object);
}

void WaylandDestroy::operator()(wl_seat* object) const {
    wl_seat_destroy(object);
}

void WaylandDestroy::operator()(zwlr_foreign_toplevel_handle_v1* object) const {
    zwlr_foreign_toplevel_handle_v1_destroy(object);
}

void WaylandDestroy::operator()(zwlr_foreign_toplevel_manager_v1* object) const {
    zwlr_foreign_toplevel_manager_v1_destroy(object);
}

void WaylandDestroy::operator()(zxdg_output_manager_v1* object) const {
    zxdg_output_manager_v1_destroy(object);
}

void WaylandDestroy::operator()(zxdg_output_v1* object) const {
    zxdg_output_v1_destroy(object);
}

} // namespace kestrelfen
