#pragma once

namespace kestrelfen {

/// How far the overlays, and the Escape key over them, reach on this desktop. Settled when the program
/// starts.
enum class OverlayReach {
    /// Above every window, and whoever has the keyboard.
    everywhere,
    /// As windows of a Wayland desktop's own X server, which hears the keys of its own programs alone.
    throughXServer,
    /// As windows like any other's, which hear no key.
    ordinaryWindows,
};

} // namespace kestrelfen
