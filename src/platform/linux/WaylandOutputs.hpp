#pragma once

#include "platform/linux/WaylandOutput.hpp"

#include <map>

namespace kestrelfen {

/// The displays of the compositor. Main thread only; the connection outlives it.
class WaylandOutputs {
  public:
    explicit WaylandOutputs(WaylandConnection& connection);

    /// Absent for a display that is not known, or of which nothing was told yet.
    std::optional<ScreenRect> frame(const wl_output* output) const;
    bool contains(const wl_output* output) const { return find(output) != nullptr; }

  private:
    const WaylandOutput* find(const wl_output* output) const;
    void update();
    void add();
    void removeLost();

    WaylandConnection& connection_;
    WaylandPointer<zxdg_output_manager_v1> manager_;
    /// By the numbers of their globals.
    std::map<std::uint32_t, WaylandOutput> outputs_;
    Subscription subscription_;
};

} // namespace kestrelfen
