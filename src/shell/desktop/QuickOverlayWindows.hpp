#pragma once

#include "base/Date.hpp"
#include "base/Lifeline.hpp"
#include "platform/ports/Compositor.hpp"
#include "platform/ports/EscapeKey.hpp"
#include "platform/ports/Platform.hpp"
#include "shell/OverlayWindows.hpp"
#include "shell/desktop/QuickViews.hpp"

#include <vector>

namespace kestrelfen {

class BreakEngine;
class BreakOverlayModel;
class LayerSurfaces;

/// The overlay and warning windows: layers of the desktop where it has them, else windows that no window
/// manager handles. While an overlay is up the Escape key goes to the first of them. Main thread only.
class QuickOverlayWindows final : public OverlayWindows {
  public:
    QuickOverlayWindows(const Platform& platform, QuickViews& views, EscapeKey& escapeKey,
                        const Compositor& compositor);

    /// Before the first window is made, where the desktop has such; they outlive the windows.
    void setLayers(LayerSurfaces* layers) { layers_ = layers; }

    /// Before the first window is made.
    void setEngine(BreakEngine& engine);

    std::unique_ptr<BreakWindow> makeBreakWindow(const Display& display) override;
    std::unique_ptr<WarningPanel> makeWarningPanel() override;

    /// The overlays that are up, each from its coming to its going.
    void add(BreakOverlayModel& overlay);
    void forget(const BreakOverlayModel& overlay);

  private:
    void prepareForBreak();
    std::unique_ptr<BreakWindow> makeLayer(const Display& display);
    bool hearsEscape() const;
    bool hasSettled() const;
    void escapePressed();

    const Platform platform_;
    QuickViews& views_;
    EscapeKey& escapeKey_;
    const Compositor& compositor_;
    BreakEngine* engine_ = nullptr;
    Lifeline lifeline_;
    Subscription engineSubscription_;
    LayerSurfaces* layers_ = nullptr;
    std::vector<BreakOverlayModel*> overlays_;
    Date upSince_;
    std::unique_ptr<EscapeKey::Handle> escapeHandle_;
};

} // namespace kestrelfen
