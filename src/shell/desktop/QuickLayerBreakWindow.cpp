#include "shell/desktop/QuickLayerBreakWindow.hpp"

#include "shell/desktop/QuickOverlayWindows.hpp"

namespace kestrelfen {

QuickLayerBreakWindow::QuickLayerBreakWindow(QuickOverlayWindows& owner, BreakEngine& engine,
                                             const Platform& platform, QuickViews& views)
    : owner_(owner), model_(engine, platform),
      scene_(views, QStringLiteral("BreakOverlayView.qml"),
             {{QStringLiteral("model"), QVariant::fromValue(&model_)}}) {
    scene_.window().setTitle(QStringLiteral("Kestrelfen break"));
    owner_.add(model_);
}

QuickLayerBreakWindow::~QuickLayerBreakWindow() {
    scene_.setSurface(nullptr);
    owner_.forget(model_);
}

bool QuickLayerBreakWindow::cover(LayerSurfaces& layers, const Display& display) {
    scene_.setPlace({display.frame.x, display.frame.y});
    scene_.setSurface(layers.cover(display, scene_));
    return scene_.surface() != nullptr;
}

} // namespace kestrelfen
