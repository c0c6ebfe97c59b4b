#pragma once

#include "shell/OverlayWindows.hpp"
#include "shell/desktop/QuickLayerScene.hpp"
#include "ui/BreakOverlayView/BreakOverlayModel.hpp"

namespace kestrelfen {

class QuickOverlayWindows;

/// One display's overlay as a layer of the desktop. Main thread only.
class QuickLayerBreakWindow final : public OverlayWindows::BreakWindow {
  public:
    QuickLayerBreakWindow(QuickOverlayWindows& owner, BreakEngine& engine, const Platform& platform,
                          QuickViews& views);
    ~QuickLayerBreakWindow() override;

    /// Whether the display could be covered.
    bool cover(LayerSurfaces& layers, const Display& display);

  private:
    QuickOverlayWindows& owner_;
    BreakOverlayModel model_;
    QuickLayerScene scene_;
};

} // namespace kestrelfen
