#pragma once

#include "platform/ports/Displays.hpp"

#include <vector>

namespace kestrelfen {

/// A strip along an edge of the desktop that a panel has for itself, in the screen's physical pixels.
struct PanelStrip {
    enum class Edge { left, right, top, bottom };

    Edge edge = Edge::top;
    ScreenRect frame;

    friend bool operator==(const PanelStrip&, const PanelStrip&) = default;
};

/// The panels of the desktop. Main thread only.
class Panels {
  public:
    virtual ~Panels() = default;

    /// Of every panel that reserves its place, in any order; empty where that cannot be told. It may ask the
    /// desktop and wait for its answer: for when a window is placed, not for every frame.
    virtual std::vector<PanelStrip> strips() const = 0;
};

} // namespace kestrelfen
