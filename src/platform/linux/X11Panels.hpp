#pragma once

#include "platform/linux/XConnection.hpp"
#include "platform/ports/Panels.hpp"

namespace kestrelfen {

/// The panels that have told the window manager of an X11 desktop what they reserve. Main thread only.
class X11Panels final : public Panels {
  public:
    std::vector<PanelStrip> strips() const override;
};

} // namespace kestrelfen
