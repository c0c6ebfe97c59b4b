#pragma once

#include "platform/ports/EscapeKey.hpp"
#include "platform/ports/Log.hpp"

namespace kestrelfen {

/// Escape through the X server's key grabs. Main thread only, with an event loop. While nothing is grabbed
/// there is no connection, so that nothing can wake the program.
class X11EscapeKey final : public EscapeKey {
  public:
    explicit X11EscapeKey(Log& log) : log_(log, "EscapeKey") {}

    std::unique_ptr<Handle> grab(std::function<void()> pressed) override;

  private:
    Logger log_;
};

} // namespace kestrelfen
