#include "platform/linux/WaylandToplevel.hpp"

#include <algorithm>
#include <span>

namespace kestrelfen {

namespace {

using Handle = zwlr_foreign_toplevel_handle_v1;

WaylandToplevel& of(void* self) {
    return *static_cast<WaylandToplevel*>(self);
}

bool contains(const wl_array& states, std::uint32_t state) {
    const std::span all(static_cast<const std::uint32_t*>(states.data), states.size / sizeof(std::uint32_t));
    return std::find(all.begin(), all.end(), state) != all.end();
}

} // namespace

const zwlr_foreign_toplevel_handle_v1_listener WaylandToplevel::handleListener{
    .title = [](void*, Handle*, const char*) {},
    .app_id = [](void* self, Handle*,
                 const char* application) { of(self).pending_.application = application; },
    .output_enter = [](void* self, Handle*, wl_output* output) { of(self).enter(output); },
    .output_leave = [](void* self, Handle*, wl_output* output) { of(self).leave(output); },
    .state = [](void* self, Handle*, wl_array* states) { of(self).setState(*states); },
    .done = [](void* self, Handle*) { of(self).adopt(); },
    .closed = [](void* self, Handle*) { of(self).listener_.closed(of(self)); },
    .parent = [](void*, Handle*, Handle*) {},
};

WaylandToplevel::WaylandToplevel(Handle* handle, const Listener& listener)
    : handle_(handle), listener_(listener) {
    zwlr_foreign_toplevel_handle_v1_add_listener(handle, &handleListener, this);
}

void WaylandToplevel::forgetDisplaysBut(const std::function<bool(const wl_output*)>& isThere) {
    const auto isGone = [&](const wl_output* output) { return !isThere(output); };
    std::erase_if(pending_.outputs, isGone);
    std::erase_if(facts_.outputs, isGone);
}

void WaylandToplevel::setState(const wl_array& states) {
    pending_.isActivated = contains(states, ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED);
    pending_.isMinimized = contains(states, ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_MINIMIZED);
}

/// The library hands out nothing for a display that we have just let go.
void WaylandToplevel::enter(wl_output* output) {
    leave(output);
    if (output) {
        pending_.outputs.push_back(output);
    }
}

void WaylandToplevel::leave(const wl_output* output) {
    std::erase(pending_.outputs, output);
}

void WaylandToplevel::adopt() {
    facts_ = pending_;
    isKnown_ = true;
    listener_.changed(*this);
}

} // namespace kestrelfen
