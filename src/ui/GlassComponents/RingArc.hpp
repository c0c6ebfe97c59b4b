#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// A full circle and, over it, an arc from the top clockwise. The arc moves to a new value over one second,
/// in steps of a pixel or so, so that few frames are drawn. Main thread only.
class RingArc : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double remaining READ remaining WRITE setRemaining NOTIFY remainingChanged)
    Q_PROPERTY(double lineWidth MEMBER lineWidth_ WRITE setLineWidth NOTIFY lookChanged)
    Q_PROPERTY(bool isStill MEMBER isStill_ WRITE setStill NOTIFY lookChanged)
    Q_PROPERTY(QColor track MEMBER track_ WRITE setTrack NOTIFY lookChanged)
    Q_PROPERTY(QColor tint MEMBER tint_ WRITE setTint NOTIFY lookChanged)

  public:
    explicit RingArc(QQuickItem* parent = nullptr);

    double remaining() const { return target_; }
    void setRemaining(double remaining);
    void setLineWidth(double width);
    /// The arc jumps to a new value.
    void setStill(bool isStill);
    void setTrack(const QColor& color);
    void setTint(const QColor& color);

    void paint(QPainter* painter) override;

  signals:
    void remainingChanged();
    void lookChanged();

  private:
    void sweep();
    int framesFor(double distance) const;
    QRect partBetween(double before, double after) const;

    double lineWidth_ = 8;
    QColor track_;
    QColor tint_;
    bool isStill_ = false;
    bool isSet_ = false;
    double from_ = 0;
    double target_ = 0;
    double shown_ = 0;
    int frame_ = 0;
    int frames_ = 1;
    QTimer timer_;
};

} // namespace kestrelfen
