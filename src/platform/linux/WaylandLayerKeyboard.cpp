#include "platform/linux/WaylandLayerKeyboard.hpp"

#include <algorithm>
#include <array>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace kestrelfen {

namespace {

/// Between the kernel's numbers of the keys and those of a layout.
constexpr std::uint32_t keycodeOffset = 8;

/// With one of these it is another key.
constexpr std::array<const char*, 4> tellingModifiers{XKB_MOD_NAME_SHIFT, XKB_MOD_NAME_CTRL, XKB_MOD_NAME_ALT,
                                                      XKB_MOD_NAME_LOGO};

WaylandLayerKeyboard& of(void* self) {
    return *static_cast<WaylandLayerKeyboard*>(self);
}

} // namespace

wl_keyboard_listener WaylandLayerKeyboard::makeListener() {
    // Newer versions of the library know more events, which are not asked for.
    wl_keyboard_listener result{};
    result.keymap = [](void* self, wl_keyboard*, std::uint32_t format, std::int32_t file,
                       std::uint32_t size) { of(self).readLayout(format, file, size); };
    result.enter = [](void*, wl_keyboard*, std::uint32_t, wl_surface*, wl_array*) {};
    result.leave = [](void*, wl_keyboard*, std::uint32_t, wl_surface*) {};
    result.key = [](void* self, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t key,
                    std::uint32_t state) {
        if (state == WL_KEYBOARD_KEY_STATE_PRESSED) {
            of(self).press(key);
        }
    };
    result.modifiers = [](void* self, wl_keyboard*, std::uint32_t, std::uint32_t depressed,
                          std::uint32_t latched, std::uint32_t locked, std::uint32_t group) {
        if (of(self).state_) {
            xkb_state_update_mask(of(self).state_.get(), depressed, latched, locked, 0, 0, group);
        }
    };
    result.repeat_info = [](void*, wl_keyboard*, std::int32_t, std::int32_t) {};
    return result;
}

const wl_keyboard_listener WaylandLayerKeyboard::listener = makeListener();

WaylandLayerKeyboard::WaylandLayerKeyboard(wl_keyboard* keyboard, std::function<void()> escape)
    : keyboard_(keyboard), escape_(std::move(escape)), context_(xkb_context_new(XKB_CONTEXT_NO_FLAGS)) {
    wl_keyboard_add_listener(keyboard, &listener, this);
}

void WaylandLayerKeyboard::readLayout(std::uint32_t format, int file, std::size_t size) {
    void* const text = format == WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1
                           ? ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0)
                           : MAP_FAILED;
    ::close(file);
    if (text == MAP_FAILED) {
        return;
    }
    // The text ends with a zero.
    keymap_.reset(xkb_keymap_new_from_buffer(context_.get(), static_cast<const char*>(text), size - 1,
                                             XKB_KEYMAP_FORMAT_TEXT_V1, XKB_KEYMAP_COMPILE_NO_FLAGS));
    ::munmap(text, size);
    state_.reset(keymap_ ? xkb_state_new(keymap_.get()) : nullptr);
}

void WaylandLayerKeyboard::press(std::uint32_t key) {
    if (state_ && isEscape(key + keycodeOffset)) {
        const auto escape = escape_;
        escape();
    }
}

bool WaylandLayerKeyboard::isEscape(std::uint32_t key) const {
    if (xkb_state_key_get_one_sym(state_.get(), key) != XKB_KEY_Escape) {
        return false;
    }
    return std::none_of(tellingModifiers.begin(), tellingModifiers.end(), [this](const char* name) {
        return xkb_state_mod_name_is_active(state_.get(), name, XKB_STATE_MODS_EFFECTIVE) > 0;
    });
}

} // namespace kestrelfen
