#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// A filled circle in the middle of the item, of any diameter up to its size: one that is scaled instead
/// would be cut at whole pixels. Main thread only.
class Disc : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double diameter MEMBER diameter_ NOTIFY lookChanged)
    Q_PROPERTY(QColor tint MEMBER tint_ NOTIFY lookChanged)

  public:
    explicit Disc(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

  signals:
    void lookChanged();

  private:
    double diameter_ = 0;
    QColor tint_;
};

} // namespace kestrelfen
