#pragma once

#include "platform/linux/XConnection.hpp"
#include "platform/ports/EscapeKey.hpp"
#include "platform/ports/Log.hpp"

#include <functional>
#include <vector>

namespace kestrelfen {

/// One grab of Escape. Main thread only. It lives on a connection of its own, with which it ends.
class X11EscapeGrab final : public EscapeKey::Handle {
  public:
    X11EscapeGrab(Logger log, std::function<void()> pressed);

  private:
    void handle(const xcb_generic_event_t& event);
    void handlePress(const xcb_key_press_event_t& event);
    void handleError(const xcb_generic_error_t& error);
    void readKeycodes();
    void grabKeys();
    void regrabKeys();
    bool isEscape(xcb_keycode_t keycode) const;

    Logger log_;
    std::function<void()> pressed_;
    XConnection connection_;
    std::vector<xcb_keycode_t> keycodes_;
    xcb_timestamp_t lastRelease_ = XCB_CURRENT_TIME;
    bool refused_ = false;
};

} // namespace kestrelfen
