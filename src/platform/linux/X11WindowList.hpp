#pragma once

#include "platform/linux/X11WindowWatch.hpp"
#include "platform/ports/WindowList.hpp"

namespace kestrelfen {

/// The windows on an X11 desktop. Main thread only.
class X11WindowList final : public WindowList {
  public:
    explicit X11WindowList(const X11WindowWatch& watch) : watch_(watch) {}

    std::optional<std::vector<ScreenWindow>> onScreen() const override;

  private:
    const X11WindowWatch& watch_;
};

} // namespace kestrelfen
