#pragma once

#include "platform/linux/ProgramCatalogue.hpp"
#include "platform/linux/WaylandConnection.hpp"

#include <functional>
#include <string>
#include <vector>
#include <wayland/wlr-foreign-toplevel-management-unstable-v1-client-protocol.h>

namespace kestrelfen {

/// One window, as the compositor last told of it; its title is not kept. Main thread only.
class WaylandToplevel {
  public:
    /// What is so all at once.
    struct Facts {
        /// The application id, empty when the window has none.
        std::string application;
        bool isActivated = false;
        bool isMinimized = false;
        /// In the order in which the window came onto them.
        std::vector<wl_output*> outputs;
    };
    struct Listener {
        /// The facts are others than before.
        std::function<void(WaylandToplevel&)> changed;
        /// The window is gone. May destroy this.
        std::function<void(WaylandToplevel&)> closed;
    };

    /// The listener outlives it.
    WaylandToplevel(zwlr_foreign_toplevel_handle_v1* handle, const Listener& listener);
    WaylandToplevel(const WaylandToplevel&) = delete;
    WaylandToplevel& operator=(const WaylandToplevel&) = delete;

    /// Nothing is known of it before the first time.
    bool isKnown() const { return isKnown_; }
    const Facts& facts() const { return facts_; }

    /// For displays that have gone without the window's having left them.
    void forgetDisplaysBut(const std::function<bool(const wl_output*)>& isThere);

    Program program;
    /// What stands for its process; the same for all windows of an application. Below 0.
    std::int32_t processIdentifier = 0;

  private:
    static const zwlr_foreign_toplevel_handle_v1_listener handleListener;

    void setState(const wl_array& states);
    void enter(wl_output* output);
    void leave(const wl_output* output);
    void adopt();

    WaylandPointer<zwlr_foreign_toplevel_handle_v1> handle_;
    const Listener& listener_;
    Facts pending_;
    Facts facts_;
    bool isKnown_ = false;
};

} // namespace kestrelfen
