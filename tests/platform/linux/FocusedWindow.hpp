#pragma once

#include "platform/linux/XConnection.hpp"

#include <vector>

namespace kestrelfen {

/// Another program's window, with the keyboard focus.
class FocusedWindow {
  public:
    FocusedWindow();

    /// The keys pressed in it since the last call, by their codes.
    std::vector<int> takePresses();

    xcb_keycode_t keycodeOf(xcb_keysym_t keysym) const;
    const XConnection& connection() const { return connection_; }

  private:
    /// One round trip, after which all that was asked for is done.
    void settle() const;

    XConnection connection_;
    xcb_window_t window_;
};

} // namespace kestrelfen
