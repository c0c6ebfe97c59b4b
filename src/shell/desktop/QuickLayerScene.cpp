#include "shell/desktop/QuickLayerScene.hpp"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickRenderTarget>

#include <array>
#include <cmath>
#include <cstring>

namespace kestrelfen {

namespace {

constexpr int bytesPerPixel = 4;

/// How many places along each edge tell whether the whole has another look.
constexpr int samplesPerEdge = 8;

QSize physicalSize(const LayerExtent& extent) {
    return {static_cast<int>(std::lround(extent.width * extent.scale)),
            static_cast<int>(std::lround(extent.height * extent.scale))};
}

const uchar* pixelsOf(const QImage& image, int x, int y) {
    return image.constScanLine(y) + std::ptrdiff_t{x} * bytesPerPixel;
}

/// The colours along the edges.
std::vector<QRgb> samplesOf(const QImage& image) {
    std::vector<QRgb> samples;
    const auto add = [&](int x, int y) { samples.push_back(image.pixel(x, y)); };
    for (int step = 0; step < samplesPerEdge; ++step) {
        const int x = step * (image.width() - 1) / samplesPerEdge;
        const int y = step * (image.height() - 1) / samplesPerEdge;
        add(x, 0);
        add(image.width() - 1, y);
        add(x, image.height() - 1);
        add(0, y);
    }
    return samples;
}

QEvent::Type eventType(LayerPointer::Kind kind) {
    switch (kind) {
    case LayerPointer::Kind::press:
        return QEvent::MouseButtonPress;
    case LayerPointer::Kind::release:
        return QEvent::MouseButtonRelease;
    case LayerPointer::Kind::move:
    case LayerPointer::Kind::leave:
        break;
    }
    return QEvent::MouseMove;
}

} // namespace

QuickLayerScene::QuickLayerScene(QuickViews& views, const QString& view, const QVariantMap& properties)
    : root_(views.makeItem(view, properties)) {
    window_.setColor(Qt::transparent);
    root_->setParentItem(window_.contentItem());
    connect(&control_, &QQuickRenderControl::renderRequested, this, &QuickLayerScene::drawSoon);
    connect(&control_, &QQuickRenderControl::sceneChanged, this, &QuickLayerScene::drawSoon);
}

QuickLayerScene::~QuickLayerScene() {
    surface_.reset();
    control_.invalidate();
}

void QuickLayerScene::resized(const LayerExtent& extent) {
    image_ = QImage(physicalSize(extent), QImage::Format_ARGB32_Premultiplied);
    image_.setDevicePixelRatio(extent.scale);
    image_.fill(Qt::transparent);
    QQuickRenderTarget target = QQuickRenderTarget::fromPaintDevice(&image_);
    target.setDevicePixelRatio(extent.scale);
    window_.setRenderTarget(target);
    window_.resize(extent.width, extent.height);
    window_.contentItem()->setSize(QSizeF(extent.width, extent.height));
    root_->setSize(QSizeF(extent.width, extent.height));
    shown_ = {};
    drawSoon();
}

void QuickLayerScene::ready() {
    if (isStale_) {
        drawSoon();
    }
}

void QuickLayerScene::drawSoon() {
    isStale_ = true;
    if (isQueued_ || !surface_ || !surface_->isReady()) {
        return;
    }
    isQueued_ = true;
    QMetaObject::invokeMethod(this, &QuickLayerScene::draw, Qt::QueuedConnection);
}

void QuickLayerScene::draw() {
    isQueued_ = false;
    if (!surface_ || !surface_->isReady() || image_.isNull()) {
        return;
    }
    isStale_ = false;
    render();
    show();
}

void QuickLayerScene::render() {
    control_.polishItems();
    control_.beginFrame();
    control_.sync();
    control_.render();
    control_.endFrame();
}

void QuickLayerScene::show() {
    const QRect changed = changedPart();
    if (changed.isEmpty()) {
        return;
    }
    surface_->show({.bytes = image_.constBits(),
                    .bytesPerLine = image_.bytesPerLine(),
                    .width = image_.width(),
                    .height = image_.height()},
                   {changed.x(), changed.y(), changed.width(), changed.height()});
}

QRect QuickLayerScene::changedPart() {
    const QRect place = lively();
    auto samples = samplesOf(image_);
    QRect changed = image_.rect();
    if (samples == samples_ && shown_.size() == place.size()) {
        changed = differenceTo(shown_, place);
    }
    samples_ = std::move(samples);
    if (!changed.isEmpty()) {
        shown_ = image_.copy(place);
    }
    return changed;
}

QRect QuickLayerScene::differenceTo(const QImage& before, const QRect& place) const {
    const auto length = static_cast<std::size_t>(place.width()) * bytesPerPixel;
    const auto isNew = [&](int line) {
        return std::memcmp(pixelsOf(image_, place.x(), place.y() + line), before.constScanLine(line),
                           length) != 0;
    };
    int first = 0;
    int last = place.height() - 1;
    while (first <= last && !isNew(first)) {
        ++first;
    }
    while (last > first && !isNew(last)) {
        --last;
    }
    return {place.x(), place.y() + first, place.width(), last - first + 1};
}

/// What does not lie there is still, but for a change of its whole look.
QRect QuickLayerScene::lively() const {
    const QRectF part = root_->property("lively").toRectF();
    if (part.isEmpty()) {
        return image_.rect();
    }
    const double scale = image_.devicePixelRatio();
    return QRectF(part.topLeft() * scale, part.size() * scale).toAlignedRect() & image_.rect();
}

void QuickLayerScene::pointer(const LayerPointer& pointer) {
    if (pointer.kind == LayerPointer::Kind::leave) {
        QCoreApplication::postEvent(&window_, new QEvent(QEvent::Leave));
        return;
    }
    if (pointer.kind == LayerPointer::Kind::press) {
        buttons_ = Qt::LeftButton;
    } else if (pointer.kind == LayerPointer::Kind::release) {
        buttons_ = Qt::NoButton;
    }
    const QPointF place(pointer.x, pointer.y);
    const bool isMove = pointer.kind == LayerPointer::Kind::move;
    auto* const event = new QMouseEvent(eventType(pointer.kind), place, place, window_.position() + place,
                                        isMove ? Qt::NoButton : Qt::LeftButton, buttons_, Qt::NoModifier);
    event->setTimestamp(pointer.milliseconds);
    QCoreApplication::postEvent(&window_, event);
}

} // namespace kestrelfen
