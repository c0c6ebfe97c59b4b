#pragma once

#include <QImage>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// An item that shows one picture made ahead, remade when its size or scale changes. Main thread only.
class PictureItem : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

  public:
    explicit PictureItem(QQuickItem* parent = nullptr);

  protected:
    /// The picture for `size` logical pixels at `ratio` device pixels each.
    virtual QImage makePicture(const QSizeF& size, double ratio) const = 0;

    /// Where the picture lies within the item.
    virtual QRectF pictureRect() const { return boundingRect(); }

    /// The picture must be made anew.
    void remake();

    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;

  private:
    bool isStale_ = true;
};

} // namespace kestrelfen
