#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// A line along the inside of a rounded rectangle, `lineWidth` wide, which may be a fraction: a rectangle's
/// border is of whole pixels, and uneven otherwise. Main thread only.
class Outline : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double radius MEMBER radius_ NOTIFY lookChanged)
    Q_PROPERTY(double lineWidth MEMBER lineWidth_ NOTIFY lookChanged)
    Q_PROPERTY(QColor tint MEMBER tint_ NOTIFY lookChanged)

  public:
    explicit Outline(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

  signals:
    void lookChanged();

  private:
    double radius_ = 0;
    double lineWidth_ = 1;
    QColor tint_;
};

} // namespace kestrelfen
