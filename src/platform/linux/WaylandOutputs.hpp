#pragma once

#include "platform/linux/WaylandOutput.hpp"

#include <functional>
#include <map>
#include <vector>

namespace kestrelfen {

/// The displays of the compositor. Main thread only; the connection outlives it.
class WaylandOutputs {
  public:
    explicit WaylandOutputs(WaylandConnection& connection);

    /// Absent for a display that is not known, or of which nothing was told yet.
    std::optional<ScreenRect> frame(const wl_output* output) const;
    bool contains(const wl_output* output) const { return find(output) != nullptr; }

    /// Those of which all is known, in the order of their coming.
    std::vector<Display> displays() const;
    /// Null when it is none of them any more.
    wl_output* find(const Display& display) const;
    /// 1 for one that is not known.
    int scale(const wl_output* output) const;

    /// Grows when an output comes or goes, even where another of the same kind takes its place.
    int revision() const { return revision_; }
    /// Hears when an output came, went or changed.
    [[nodiscard]] Subscription observe(std::function<void()> listener) {
        return observers_.add(std::move(listener));
    }

  private:
    const WaylandOutput* find(const wl_output* output) const;
    void update();
    void add();
    void removeLost();

    WaylandConnection& connection_;
    WaylandPointer<zxdg_output_manager_v1> manager_;
    /// By the numbers of their globals.
    std::map<std::uint32_t, WaylandOutput> outputs_;
    int revision_ = 0;
    Observers observers_;
    Subscription subscription_;
};

} // namespace kestrelfen
