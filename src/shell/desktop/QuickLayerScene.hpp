#pragma once

#include "platform/ports/LayerSurfaces.hpp"
#include "shell/desktop/QuickViews.hpp"

#include <QImage>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickWindow>

#include <memory>
#include <vector>

namespace kestrelfen {

/// A view drawn by Qt Quick into a layer of the desktop instead of a window: what changes is drawn when the
/// desktop is ready for it, and nothing else ever. Main thread only.
class QuickLayerScene final : public QObject, public LayerSurfaces::Client {
    Q_OBJECT

  public:
    QuickLayerScene(QuickViews& views, const QString& view, const QVariantMap& properties);
    ~QuickLayerScene() override;

    /// Draws there from now on; taking the surface away ends it.
    void setSurface(std::unique_ptr<LayerSurfaces::Surface> surface) { surface_ = std::move(surface); }
    LayerSurfaces::Surface* surface() const { return surface_.get(); }

    QQuickItem& root() const { return *root_; }
    /// Not shown by itself.
    QQuickWindow& window() { return window_; }
    /// Where the surface lies on the desktop, for who asks where something is to be seen.
    void setPlace(const QPoint& place) { window_.setPosition(place); }

    bool isPressed() const { return buttons_ != Qt::NoButton; }

    void resized(const LayerExtent& extent) override;
    void ready() override;
    void pointer(const LayerPointer& pointer) override;
    void travelled(const LayerTravel& travel) override { emit pointerTravelled(travel.x, travel.y); }

  signals:
    void pointerTravelled(double x, double y);

  private:
    void drawSoon();
    void draw();
    void render();
    void show();
    QRect changedPart();
    QRect differenceTo(const QImage& before, const QRect& place) const;
    QRect lively() const;

    QQuickRenderControl control_;
    QQuickWindow window_{&control_};
    std::unique_ptr<QQuickItem> root_;
    QImage image_;
    /// What the desktop shows, of the part that moves and along the edges: what differs is new.
    QImage shown_;
    std::vector<QRgb> samples_;
    std::unique_ptr<LayerSurfaces::Surface> surface_;
    bool isStale_ = false;
    bool isQueued_ = false;
    Qt::MouseButtons buttons_;
};

} // namespace kestrelfen
