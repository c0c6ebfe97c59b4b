#pragma once

#include "ui/MenuBarView/FooterItem.hpp"

#include <functional>

namespace kestrelfen {

class Navigation;
class SceneWindows;

/// What the popover's footer does. Main thread only.
class MenuBarFooter {
  public:
    /// `quit` asks the program to end. The others outlive this object.
    MenuBarFooter(Navigation& navigation, SceneWindows& windows, std::function<void()> quit)
        : navigation_(navigation), windows_(windows), quit_(std::move(quit)) {}

    /// Names the place first, so that a window that is open already shows it, then shows the window.
    void perform(FooterItem item);

  private:
    Navigation& navigation_;
    SceneWindows& windows_;
    std::function<void()> quit_;
};

} // namespace kestrelfen
