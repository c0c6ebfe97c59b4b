#include "ui/GlassComponents/PictureItem.hpp"

#include <QQuickWindow>
#include <QSGImageNode>

namespace kestrelfen {

PictureItem::PictureItem(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

void PictureItem::remake() {
    isStale_ = true;
    update();
}

QSGNode* PictureItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/) {
    auto* imageNode = static_cast<QSGImageNode*>(node);
    if (width() <= 0 || height() <= 0) {
        delete imageNode;
        return nullptr;
    }
    if (!imageNode) {
        imageNode = window()->createImageNode();
        imageNode->setOwnsTexture(true);
        imageNode->setFiltering(QSGTexture::Linear);
        isStale_ = true;
    }
    if (isStale_) {
        isStale_ = false;
        imageNode->setTexture(
            window()->createTextureFromImage(makePicture(size(), window()->effectiveDevicePixelRatio())));
    }
    imageNode->setRect(pictureRect());
    return imageNode;
}

void PictureItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size()) {
        remake();
    }
}

void PictureItem::itemChange(ItemChange change, const ItemChangeData& value) {
    QQuickItem::itemChange(change, value);
    if (change == ItemDevicePixelRatioHasChanged) {
        remake();
    }
}

} // namespace kestrelfen
