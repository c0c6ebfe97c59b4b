#include "shell/desktop/QuickLayerWarningPanel.hpp"

#include <utility>

namespace kestrelfen {

QuickLayerWarningPanel::QuickLayerWarningPanel(BreakEngine& engine, const Platform& platform,
                                               QuickViews& views, LayerSurfaces& layers)
    : displays_(platform.displays), layers_(layers), model_(engine, platform),
      scene_(views, QStringLiteral("PreBreakWarningView.qml"),
             {{QStringLiteral("model"), QVariant::fromValue(&model_)}, {QStringLiteral("blended"), true}}) {
    scene_.window().setTitle(QStringLiteral("Kestrelfen warning"));
    connect(&scene_.root(), SIGNAL(dragBegan()), this, SLOT(beginDrag()));
    connect(&scene_, &QuickLayerScene::pointerTravelled, this, &QuickLayerWarningPanel::drag);
}

void QuickLayerWarningPanel::moveTo(int x, int y) {
    const auto display = displays_.main();
    if (!display) {
        return;
    }
    const ScreenRect& frame = display->frame;
    margins_ = QPointF(frame.x + frame.width - x - width(), y - frame.y);
    scene_.setPlace({x, y});
    place();
}

void QuickLayerWarningPanel::show() {
    scene_.setSurface(layers_.putInCorner(width(), height(), scene_));
    place();
}

void QuickLayerWarningPanel::beginDrag() {
    isDragged_ = true;
    drag(0, 0);
}

void QuickLayerWarningPanel::drag(double x, double y) {
    if (!scene_.isPressed()) {
        isDragged_ = false;
        travelled_ = {};
        return;
    }
    // Of a press the view hears later than of the first travel.
    travelled_ += QPointF(-x, y);
    if (isDragged_) {
        margins_ += std::exchange(travelled_, {});
        place();
    }
}

void QuickLayerWarningPanel::place() {
    if (scene_.surface()) {
        const QPoint margins = margins_.toPoint();
        scene_.surface()->setMargins(margins.y(), margins.x());
    }
}

} // namespace kestrelfen
