#pragma once

#include "platform/ports/Displays.hpp"
#include "shell/OverlayWindows.hpp"
#include "shell/desktop/QuickLayerScene.hpp"
#include "ui/PreBreakWarningView/PreBreakWarningModel.hpp"

#include <QPointF>

namespace kestrelfen {

/// The warning card as a layer of the desktop, dragged by the distances from its corner. Main thread only.
class QuickLayerWarningPanel final : public QObject, public OverlayWindows::WarningPanel {
    Q_OBJECT

  public:
    QuickLayerWarningPanel(BreakEngine& engine, const Platform& platform, QuickViews& views,
                           LayerSurfaces& layers);

    int width() const override { return static_cast<int>(scene_.root().implicitWidth()); }
    /// On the main display; the desktop itself knows which that is, and where its panels are.
    void moveTo(int x, int y) override;
    void show() override;

  private slots:
    void beginDrag();
    void drag(double x, double y);

  private:
    int height() const { return static_cast<int>(scene_.root().implicitHeight()); }
    void place();

    const Displays& displays_;
    LayerSurfaces& layers_;
    PreBreakWarningModel model_;
    QuickLayerScene scene_;
    /// From the right and from the top.
    QPointF margins_;
    /// Since the press, and not in the margins yet.
    QPointF travelled_;
    bool isDragged_ = false;
};

} // namespace kestrelfen
