#include "face/FakeLayerSurfaces.hpp"

#include <QPainter>

#include <algorithm>
#include <vector>

namespace kestrelfen {

FakeLayerSurfaces::Shown::Shown(FakeLayerSurfaces& owner, Client& client) : owner_(owner), client_(client) {
    owner_.shown.push_back(this);
}

FakeLayerSurfaces::Shown::~Shown() {
    std::erase(owner_.shown, this);
}

void FakeLayerSurfaces::Shown::show(const LayerPicture& picture, const ScreenRect& changed) {
    ++pictures;
    isReady_ = false;
    given = QImage(picture.bytes, picture.width, picture.height, picture.bytesPerLine,
                   QImage::Format_ARGB32_Premultiplied)
                .copy();
    if (seen.size() != given.size()) {
        seen = QImage(given.size(), given.format());
        seen.fill(Qt::red);
    }
    const QRect part(changed.x, changed.y, changed.width, changed.height);
    QPainter painter(&seen);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(part.topLeft(), given, part);
}

void FakeLayerSurfaces::Shown::configure(const LayerExtent& extent) {
    client_.resized(extent);
    isReady_ = true;
    client_.ready();
}

void FakeLayerSurfaces::Shown::finishFrame() {
    isReady_ = true;
    client_.ready();
}

void FakeLayerSurfaces::Shown::point(LayerPointer::Kind kind, const QPoint& place) {
    client_.pointer({.kind = kind, .x = double(place.x()), .y = double(place.y()), .milliseconds = 1000});
}

void FakeLayerSurfaces::Shown::click(const QPoint& place) {
    point(LayerPointer::Kind::move, place);
    point(LayerPointer::Kind::press, place);
    point(LayerPointer::Kind::release, place);
}

std::unique_ptr<LayerSurfaces::Surface> FakeLayerSurfaces::cover(const Display& display, Client& client) {
    if (refuses) {
        return nullptr;
    }
    auto made = std::make_unique<Shown>(*this, client);
    made->display = display;
    return made;
}

std::unique_ptr<LayerSurfaces::Surface> FakeLayerSurfaces::putInCorner(int width, int height,
                                                                       Client& client) {
    auto made = std::make_unique<Shown>(*this, client);
    made->width = width;
    made->height = height;
    return made;
}

} // namespace kestrelfen
