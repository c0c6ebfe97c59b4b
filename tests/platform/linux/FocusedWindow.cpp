#include "platform/linux/FocusedWindow.hpp"

#include <array>
#include <cstddef>

namespace kestrelfen {

FocusedWindow::FocusedWindow() : window_(xcb_generate_id(connection_.raw())) {
    xcb_connection_t* const raw = connection_.raw();
    const std::array<std::uint32_t, 2> values{1, XCB_EVENT_MASK_KEY_PRESS};
    xcb_create_window(raw, XCB_COPY_FROM_PARENT, window_, connection_.root(), 300, 300, 100, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, connection_.screen().root_visual,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values.data());
    xcb_map_window(raw, window_);
    xcb_set_input_focus(raw, XCB_INPUT_FOCUS_POINTER_ROOT, window_, XCB_CURRENT_TIME);
    settle();
}

std::vector<int> FocusedWindow::takePresses() {
    settle();
    std::vector<int> presses;
    while (const auto event = XPointer<xcb_generic_event_t>(xcb_poll_for_event(connection_.raw()))) {
        if ((event->response_type & 0x7f) == XCB_KEY_PRESS) {
            presses.push_back(reinterpret_cast<const xcb_key_press_event_t&>(*event).detail);
        }
    }
    return presses;
}

xcb_keycode_t FocusedWindow::keycodeOf(xcb_keysym_t keysym) const {
    const xcb_setup_t& setup = *xcb_get_setup(connection_.raw());
    const int count = setup.max_keycode - setup.min_keycode + 1;
    const auto cookie =
        xcb_get_keyboard_mapping(connection_.raw(), setup.min_keycode, static_cast<std::uint8_t>(count));
    const XPointer<xcb_get_keyboard_mapping_reply_t> mapping(
        xcb_get_keyboard_mapping_reply(connection_.raw(), cookie, nullptr));
    const xcb_keysym_t* const keysyms = xcb_get_keyboard_mapping_keysyms(mapping.get());
    for (std::ptrdiff_t key = 0; key < count; ++key) {
        if (keysyms[key * mapping->keysyms_per_keycode] == keysym) {
            return static_cast<xcb_keycode_t>(setup.min_keycode + key);
        }
    }
    return 0;
}

void FocusedWindow::settle() const {
    xcb_connection_t* const raw = connection_.raw();
    const XPointer<xcb_get_input_focus_reply_t> unused(
        xcb_get_input_focus_reply(raw, xcb_get_input_focus(raw), nullptr));
}

} // namespace kestrelfen
