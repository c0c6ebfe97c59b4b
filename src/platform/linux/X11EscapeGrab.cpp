#include "platform/linux/X11EscapeGrab.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace kestrelfen {

namespace {

constexpr xcb_keysym_t escapeKeysym = 0xff1b;

/// Bit 7 of an event's type tells that a program sent it.
constexpr int eventTypeMask = 0x7f;
constexpr int errorType = 0;

/// Caps Lock and Num Lock, on or off, make no other key of Escape.
constexpr std::array<std::uint16_t, 4> ignoredModifiers{0, XCB_MOD_MASK_LOCK, XCB_MOD_MASK_2,
                                                        XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2};

template <typename Event>
const Event& as(const xcb_generic_event_t& event) {
    return reinterpret_cast<const Event&>(event);
}

} // namespace

X11EscapeGrab::X11EscapeGrab(Logger log, std::function<void()> pressed)
    : log_(log), pressed_(std::move(pressed)) {
    if (connection_.isBroken()) {
        log_.error("Escape is not heard: there is no X server");
        return;
    }
    readKeycodes();
    grabKeys();
    connection_.listen([this](const xcb_generic_event_t& event) { handle(event); }, [] {});
}

void X11EscapeGrab::handle(const xcb_generic_event_t& event) {
    switch (event.response_type & eventTypeMask) {
    case XCB_KEY_PRESS:
        handlePress(as<xcb_key_press_event_t>(event));
        break;
    case XCB_KEY_RELEASE:
        lastRelease_ = as<xcb_key_release_event_t>(event).time;
        break;
    case XCB_MAPPING_NOTIFY:
        regrabKeys();
        break;
    case errorType:
        handleError(as<xcb_generic_error_t>(event));
        break;
    default:
        break;
    }
}

void X11EscapeGrab::handlePress(const xcb_key_press_event_t& event) {
    // The server tells a repetition as a release and a press of the same instant, and so it does of a key
    // that was down before the grab.
    const bool isRepetition = event.time == lastRelease_;
    if (isRepetition || !isEscape(event.detail)) {
        return;
    }
    const auto pressed = pressed_;
    pressed();
}

void X11EscapeGrab::handleError(const xcb_generic_error_t& error) {
    if (error.error_code == XCB_ACCESS && !refused_) {
        refused_ = true;
        log_.error("Escape is not heard: another program has taken the key");
    }
}

void X11EscapeGrab::readKeycodes() {
    keycodes_.clear();
    const xcb_setup_t& setup = *xcb_get_setup(connection_.raw());
    const int count = setup.max_keycode - setup.min_keycode + 1;
    const auto cookie =
        xcb_get_keyboard_mapping(connection_.raw(), setup.min_keycode, static_cast<std::uint8_t>(count));
    const XPointer<xcb_get_keyboard_mapping_reply_t> mapping(
        xcb_get_keyboard_mapping_reply(connection_.raw(), cookie, nullptr));
    if (!mapping) {
        return;
    }
    const xcb_keysym_t* const keysyms = xcb_get_keyboard_mapping_keysyms(mapping.get());
    for (std::ptrdiff_t key = 0; key < count; ++key) {
        if (keysyms[key * mapping->keysyms_per_keycode] == escapeKeysym) {
            keycodes_.push_back(static_cast<xcb_keycode_t>(setup.min_keycode + key));
        }
    }
}

void X11EscapeGrab::grabKeys() {
    for (const xcb_keycode_t keycode : keycodes_) {
        for (const std::uint16_t modifiers : ignoredModifiers) {
            xcb_grab_key(connection_.raw(), 0, connection_.root(), modifiers, keycode, XCB_GRAB_MODE_ASYNC,
                         XCB_GRAB_MODE_ASYNC);
        }
    }
    connection_.flush();
}

void X11EscapeGrab::regrabKeys() {
    xcb_ungrab_key(connection_.raw(), XCB_GRAB_ANY, connection_.root(), XCB_MOD_MASK_ANY);
    readKeycodes();
    grabKeys();
}

bool X11EscapeGrab::isEscape(xcb_keycode_t keycode) const {
    return std::find(keycodes_.begin(), keycodes_.end(), keycode) != keycodes_.end();
}

} // namespace kestrelfen
