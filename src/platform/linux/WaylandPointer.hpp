#pragma once

#include <memory>

struct ext_idle_notification_v1;
struct ext_idle_notifier_v1;
struct org_kde_kwin_idle;
struct org_kde_kwin_idle_timeout;
struct wl_buffer;
struct wl_callback;
struct wl_compositor;
struct wl_keyboard;
struct wl_output;
struct wl_pointer;
struct wl_region;
struct wl_seat;
struct wl_shm;
struct wl_surface;
struct wp_fractional_scale_manager_v1;
struct wp_fractional_scale_v1;
struct wp_viewport;
struct wp_viewporter;
struct zwlr_foreign_toplevel_handle_v1;
struct zwlr_foreign_toplevel_manager_v1;
struct zwlr_layer_shell_v1;
struct zwlr_layer_surface_v1;
struct zwp_relative_pointer_manager_v1;
struct zwp_relative_pointer_v1;
struct zxdg_output_manager_v1;
struct zxdg_output_v1;

namespace kestrelfen {

struct WaylandDestroy {
    void operator()(ext_idle_notification_v1* object) const;
    void operator()(ext_idle_notifier_v1* object) const;
    void operator()(org_kde_kwin_idle* object) const;
    void operator()(org_kde_kwin_idle_timeout* object) const;
    void operator()(wl_buffer* object) const;
    void operator()(wl_callback* object) const;
    void operator()(wl_compositor* object) const;
    void operator()(wl_keyboard* object) const;
    void operator()(wl_output* object) const;
    void operator()(wl_pointer* object) const;
    void operator()(wl_region* object) const;
    void operator()(wl_seat* object) const;
    void operator()(wl_shm* object) const;
    void operator()(wl_surface* object) const;
    void operator()(wp_fractional_scale_manager_v1* object) const;
    void operator()(wp_fractional_scale_v1* object) const;
    void operator()(wp_viewport* object) const;
    void operator()(wp_viewporter* object) const;
    void operator()(zwlr_foreign_toplevel_handle_v1* object) const;
    void operator()(zwlr_foreign_toplevel_manager_v1* object) const;
    void operator()(zwlr_layer_shell_v1* object) const;
    void operator()(zwlr_layer_surface_v1* object) const;
    void operator()(zwp_relative_pointer_manager_v1* object) const;
    void operator()(zwp_relative_pointer_v1* object) const;
    void operator()(zxdg_output_manager_v1* object) const;
    void operator()(zxdg_output_v1* object) const;
};

/// An object of a Wayland connection, which must outlive it.
template <typename Type>
using WaylandPointer = std::unique_ptr<Type, WaylandDestroy>;

} // namespace kestrelfen
