#pragma once

#include "platform/ports/Platform.hpp"
#include "shell/OverlayWindows.hpp"
#include "ui/BreakOverlayView/BreakOverlayModel.hpp"

#include <QQuickView>

namespace kestrelfen {

class QuickOverlayWindows;
class QuickViews;

/// One display's overlay. Main thread only.
class QuickBreakWindow final : public OverlayWindows::BreakWindow {
  public:
    QuickBreakWindow(QuickOverlayWindows& owner, BreakEngine& engine, const Platform& platform,
                     QuickViews& views, const Display& display);
    ~QuickBreakWindow() override;

  private:
    QuickOverlayWindows& owner_;
    BreakOverlayModel model_;
    std::unique_ptr<QQuickView> view_;
};

} // namespace kestrelfen
