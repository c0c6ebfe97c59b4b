#pragma once

#include "ui/GlassComponents/Breath.hpp"
#include "ui/GlassComponents/PictureItem.hpp"

#include <QColor>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace kestrelfen {

/// A soft disc that breathes: it grows and shrinks again, easing in and out, `legSeconds` each way. It wakes
/// and is drawn only when its edge has moved by a whole pixel. Main thread only.
class Halo : public kestrelfen::PictureItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor tint MEMBER tint_ WRITE setTint NOTIFY lookChanged)
    Q_PROPERTY(double diameter MEMBER diameter_ WRITE setDiameter NOTIFY lookChanged)
    Q_PROPERTY(double blur MEMBER blur_ WRITE setBlur NOTIFY lookChanged)
    Q_PROPERTY(double legSeconds MEMBER legSeconds_ WRITE setLegSeconds NOTIFY lookChanged)
    Q_PROPERTY(bool breathing READ isBreathing WRITE setBreathing NOTIFY lookChanged)

  public:
    explicit Halo(QQuickItem* parent = nullptr);

    void setTint(const QColor& color);
    void setDiameter(double diameter);
    void setBlur(double blur);
    void setLegSeconds(double seconds);
    bool isBreathing() const { return isBreathing_; }
    void setBreathing(bool breathing);

  signals:
    void lookChanged();

  protected:
    QImage makePicture(const QSizeF& size, double ratio) const override;
    QRectF pictureRect() const override;

  private:
    void breathe();
    void fit();
    void restart();
    std::vector<QRgb> shades(double farthest, double scale) const;

    QColor tint_;
    double diameter_ = 280;
    double blur_ = 30;
    double legSeconds_ = 5;
    bool isBreathing_ = false;
    std::vector<BreathStep> steps_;
    std::size_t step_ = 0;
    int growth_ = 0;
    QTimer timer_;
};

} // namespace kestrelfen
