#pragma once

namespace kestrelfen {

/// Whether the desktop blends the translucent parts of a window with what lies below.
class Compositor {
  public:
    virtual ~Compositor() = default;

    /// Asked when a window is made; may cost a round trip to the display server.
    virtual bool isBlending() const = 0;
};

} // namespace kestrelfen
