#pragma once

#include "ui/GlassComponents/PictureItem.hpp"

#include <QColor>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// The shadow of a rounded card, cut out where the card lies so that a translucent card stays clean. `card`
/// is its place in the item, which must leave room for the blur.
class CardShadow : public kestrelfen::PictureItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QRectF card MEMBER card_ WRITE setCard NOTIFY lookChanged)
    Q_PROPERTY(double radius MEMBER radius_ NOTIFY lookChanged)
    Q_PROPERTY(double blur MEMBER blur_ NOTIFY lookChanged)
    Q_PROPERTY(double drop MEMBER drop_ NOTIFY lookChanged)
    Q_PROPERTY(QColor tint MEMBER tint_ WRITE setTint NOTIFY lookChanged)
    Q_PROPERTY(double strength MEMBER strength_ NOTIFY lookChanged)

  public:
    using PictureItem::PictureItem;

    void setCard(const QRectF& card);
    void setTint(const QColor& tint);

  signals:
    void lookChanged();

  protected:
    QImage makePicture(const QSizeF& size, double ratio) const override;

  private:
    QRectF card_;
    double radius_ = 18;
    double blur_ = 18;
    double drop_ = 8;
    QColor tint_ = Qt::black;
    double strength_ = 0.22;
};

} // namespace kestrelfen
