#pragma once

#include "platform/linux/WaylandPointer.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <wayland-client.h>
#include <xkbcommon/xkbcommon.h>

namespace kestrelfen {

/// A keyboard of which only Escape matters, wherever its layout has it. Main thread only. A key that was down
/// when the keyboard came to us is not told as a press, and repetitions are each program's own.
class WaylandLayerKeyboard {
  public:
    WaylandLayerKeyboard(wl_keyboard* keyboard, std::function<void()> escape);
    WaylandLayerKeyboard(const WaylandLayerKeyboard&) = delete;
    WaylandLayerKeyboard& operator=(const WaylandLayerKeyboard&) = delete;

  private:
    struct Unref {
        void operator()(xkb_context* context) const { xkb_context_unref(context); }
        void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
        void operator()(xkb_state* state) const { xkb_state_unref(state); }
    };

    static const wl_keyboard_listener listener;
    static wl_keyboard_listener makeListener();

    void readLayout(std::uint32_t format, int file, std::size_t size);
    void press(std::uint32_t key);
    bool isEscape(std::uint32_t key) const;

    WaylandPointer<wl_keyboard> keyboard_;
    std::function<void()> escape_;
    std::unique_ptr<xkb_context, Unref> context_;
    std::unique_ptr<xkb_keymap, Unref> keymap_;
    std::unique_ptr<xkb_state, Unref> state_;
};

} // namespace kestrelfen
