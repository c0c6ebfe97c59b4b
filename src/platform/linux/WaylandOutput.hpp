#pragma once

#include "platform/linux/WaylandConnection.hpp"
#include "platform/ports/Displays.hpp"

#include <functional>
#include <optional>
#include <string>
#include <wayland/xdg-output-unstable-v1-client-protocol.h>

namespace kestrelfen {

/// Where one display of the compositor lies on the desktop. Main thread only.
class WaylandOutput {
  public:
    /// Without a manager of logical places the display's place is taken from its mode and its whole scale.
    /// `told` runs each time that the compositor has told all of it anew.
    WaylandOutput(wl_output* output, zxdg_output_manager_v1* manager, std::function<void()> told);
    WaylandOutput(const WaylandOutput&) = delete;
    WaylandOutput& operator=(const WaylandOutput&) = delete;

    static constexpr std::uint32_t newestVersion = 4;

    wl_output* raw() const { return output_.get(); }
    /// Of its connector; empty where that is not told.
    const std::string& name() const { return name_; }
    /// The next whole one where it is a fraction.
    int scale() const { return scale_; }
    /// Absent until the compositor has told.
    std::optional<ScreenRect> frame() const;

  private:
    static const wl_output_listener outputListener;
    static const zxdg_output_v1_listener logicalListener;

    void setPlace(int x, int y, int transform);
    void setMode(std::uint32_t flags, int width, int height);

    WaylandPointer<wl_output> output_;
    std::function<void()> told_;
    std::string name_;
    WaylandPointer<zxdg_output_v1> logicalOutput_;
    /// In physical pixels, unturned; its corner is in logical ones.
    ScreenRect physical_;
    int scale_ = 1;
    bool isTurned_ = false;
    ScreenRect logical_;
};

} // namespace kestrelfen
