#pragma once

#include "platform/linux/WaylandConnection.hpp"
#include "platform/ports/Displays.hpp"

#include <optional>
#include <wayland/xdg-output-unstable-v1-client-protocol.h>

namespace kestrelfen {

/// Where one display of the compositor lies on the desktop. Main thread only.
class WaylandOutput {
  public:
    /// Without a manager of logical places the display's place is taken from its mode and its whole scale.
    WaylandOutput(wl_output* output, zxdg_output_manager_v1* manager);
    WaylandOutput(const WaylandOutput&) = delete;
    WaylandOutput& operator=(const WaylandOutput&) = delete;

    static constexpr std::uint32_t newestVersion = 3;

    const wl_output* raw() const { return output_.get(); }
    /// Absent until the compositor has told.
    std::optional<ScreenRect> frame() const;

  private:
    static const wl_output_listener outputListener;
    static const zxdg_output_v1_listener logicalListener;

    void setPlace(int x, int y, int transform);
    void setMode(std::uint32_t flags, int width, int height);

    WaylandPointer<wl_output> output_;
    WaylandPointer<zxdg_output_v1> logicalOutput_;
    /// In physical pixels, unturned; its corner is in logical ones.
    ScreenRect physical_;
    int scale_ = 1;
    bool isTurned_ = false;
    ScreenRect logical_;
};

} // namespace kestrelfen
