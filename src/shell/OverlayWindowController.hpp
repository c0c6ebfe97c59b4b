#pragma once

#include "platform/ports/Displays.hpp"
#include "shell/OverlayWindows.hpp"

#include <functional>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// Owns the windows of a break and the card of the warning. When they appear is decided elsewhere. Main
/// thread only.
class OverlayWindowController {
  public:
    /// Told of each call that changed something, by its name.
    std::function<void(std::string_view call)> onChange;

    OverlayWindowController(Displays& displays, OverlayWindows& windows)
        : displays_(displays), windows_(windows) {}

    void showWarning();
    void hideWarning();
    bool isWarningShown() const { return warningWindow_ != nullptr; }

    void buildBreakWindows();
    void tearDownBreakWindows();
    const std::vector<std::unique_ptr<OverlayWindows::BreakWindow>>& breakWindows() const {
        return breakWindows_;
    }

    void observeScreenChanges();
    void stopObservingScreenChanges();

  private:
    void screensChanged();
    void positionWarningWindow();
    void changed(std::string_view call) const;

    Displays& displays_;
    OverlayWindows& windows_;
    std::vector<std::unique_ptr<OverlayWindows::BreakWindow>> breakWindows_;
    std::unique_ptr<OverlayWindows::WarningPanel> warningWindow_;
    std::unique_ptr<Displays::Observation> screenChangeToken_;
};

} // namespace kestrelfen
