#pragma once

#include "platform/ports/Compositor.hpp"
#include "platform/ports/EscapeKey.hpp"
#include "platform/ports/Platform.hpp"
#include "shell/OverlayWindows.hpp"
#include "shell/desktop/QuickViews.hpp"

#include <vector>

namespace kestrelfen {

class BreakEngine;
class QuickBreakWindow;

/// The overlay and warning windows as Qt Quick windows that no window manager handles. While an overlay is up
/// the Escape key goes to the first of them. Main thread only.
class QuickOverlayWindows final : public OverlayWindows {
  public:
    QuickOverlayWindows(const Platform& platform, QuickViews& views, EscapeKey& escapeKey,
                        const Compositor& compositor);

    /// Before the first window is made.
    void setEngine(BreakEngine& engine) { engine_ = &engine; }

    std::unique_ptr<BreakWindow> makeBreakWindow(const Display& display) override;
    std::unique_ptr<WarningPanel> makeWarningPanel() override;

  private:
    friend class QuickBreakWindow;

    void escapePressed();
    void forget(const QuickBreakWindow* window);

    const Platform platform_;
    QuickViews& views_;
    EscapeKey& escapeKey_;
    const Compositor& compositor_;
    BreakEngine* engine_ = nullptr;
    std::vector<QuickBreakWindow*> breakWindows_;
    std::unique_ptr<EscapeKey::Handle> escapeHandle_;
};

} // namespace kestrelfen
