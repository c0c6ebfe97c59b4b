#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// The bright line along the top of a rounded card, cut off where the card's corners leave it. Main thread
/// only.
class TopEdge : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double inset MEMBER inset_ NOTIFY lookChanged)
    Q_PROPERTY(double radius MEMBER radius_ NOTIFY lookChanged)
    Q_PROPERTY(QColor tint MEMBER tint_ NOTIFY lookChanged)

  public:
    explicit TopEdge(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

  signals:
    void lookChanged();

  private:
    double inset_ = 8;
    double radius_ = 16;
    QColor tint_;
};

} // namespace kestrelfen
