#pragma once

#include "platform/linux/ProgramCatalogue.hpp"
#include "platform/ports/Displays.hpp"

#include <xcb/xproto.h>

#include <cstdint>
#include <optional>

namespace kestrelfen {

/// One window that the window manager handles, as it was read last.
struct X11WindowRecord {
    enum class Kind { normal, special, desktop };

    xcb_window_t window = XCB_WINDOW_NONE;
    WindowClues clues;
    Kind kind = Kind::normal;
    /// On the screen now: neither put away nor on another of the desktop's workspaces.
    bool isShown = false;
    /// In physical pixels, without the window manager's frame.
    std::optional<ScreenRect> bounds;

    /// What stands for its process: a number of its own where the window does not tell.
    std::int32_t owner() const {
        return clues.processIdentifier.value_or(-static_cast<std::int32_t>(window & 0x1fff'ffffU));
    }
};

} // namespace kestrelfen
