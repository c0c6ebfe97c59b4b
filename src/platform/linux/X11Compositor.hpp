#pragma once

#include "platform/linux/XConnection.hpp"
#include "platform/ports/Compositor.hpp"

namespace kestrelfen {

/// Whether a compositing manager runs on the X screen. Main thread only. Without a server nothing is blended.
class X11Compositor final : public Compositor {
  public:
    X11Compositor();

    bool isBlending() const override;

  private:
    XConnection connection_;
    xcb_atom_t selection_ = XCB_ATOM_NONE;
};

} // namespace kestrelfen
