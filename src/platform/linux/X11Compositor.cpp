#include "platform/linux/X11Compositor.hpp"

#include <string>

namespace kestrelfen {

X11Compositor::X11Compositor() {
    if (!connection_.isBroken()) {
        selection_ = connection_.atom("_NET_WM_CM_S" + std::to_string(connection_.screenNumber()));
    }
}

bool X11Compositor::isBlending() const {
    if (connection_.isBroken() || selection_ == XCB_ATOM_NONE) {
        return false;
    }
    const auto cookie = xcb_get_selection_owner(connection_.raw(), selection_);
    const XPointer<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection_.raw(), cookie, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

} // namespace kestrelfen
