#include "ui/GlassComponents/Symbol.hpp"

#include "ui/GlassComponents/SymbolDrawings.hpp"
#include "ui/GlassComponents/SymbolPainting.hpp"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kestrelfen {

namespace {

/// A symbol of size 13 has a box of 16.
constexpr double boxShare = 16.0 / 13.0;

/// On the field of the drawings.
constexpr double regularStroke = 1.5;

/// Thinner strokes turn grey.
constexpr double thinnestStroke = 1.0;

constexpr double regularWeight = 400.0;
constexpr double strokePerWeight = 0.15 / 100.0;

double strokeOf(double box, int weight) {
    const double regular = std::max(regularStroke * box / SymbolDrawing::field, thinnestStroke);
    return regular * (1.0 + strokePerWeight * (weight - regularWeight));
}

} // namespace

Symbol::Symbol(QQuickItem* parent) : PictureItem(parent) {
    lookAnew();
}

void Symbol::setName(const QString& name) {
    name_ = name;
    lookAnew();
}

void Symbol::setPointSize(double size) {
    size_ = size;
    lookAnew();
}

void Symbol::setTint(const QColor& color) {
    tint_ = color;
    lookAnew();
}

void Symbol::setWeight(int weight) {
    weight_ = weight;
    lookAnew();
}

void Symbol::lookAnew() {
    const double box = std::round(size_ * boxShare);
    setImplicitSize(box, box);
    remake();
    emit lookChanged();
}

QImage Symbol::makePicture(const QSizeF& size, double ratio) const {
    QImage image((size * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const double box = std::min(size.width(), size.height());
    QPainter painter(&image);
    painter.scale(ratio, ratio);
    paintSymbol(painter, name_.toStdString(),
                QRectF((size.width() - box) / 2, (size.height() - box) / 2, box, box),
                {tint_, strokeOf(box, weight_)});
    painter.end();
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace kestrelfen
