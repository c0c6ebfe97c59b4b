#include "face/TextFit.hpp"

#include "ui/GlassComponents/ModalLayer.hpp"

#include <QRectF>

#include <algorithm>

namespace kestrelfen {

namespace {

/// Half a pixel for rounding at each side.
constexpr double tolerance = 1.0;

/// A text that is shown, where its letters are in the window, and what can be seen of them.
struct Shown {
    QQuickItem* item;
    QString text;
    QRectF letters;
    QRectF seen;
};

double number(const QQuickItem* item, const char* property) {
    return item->property(property).toDouble();
}

/// By its alignment at the left or the right or in the middle; its lines are centred in their height.
QRectF lettersOf(const QQuickItem* text) {
    const double width = number(text, "contentWidth");
    const double height = number(text, "contentHeight");
    const int alignment = text->property("effectiveHorizontalAlignment").toInt();
    const double spare = text->width() - width;
    const double left = alignment == Qt::AlignRight ? spare : alignment == Qt::AlignHCenter ? spare / 2 : 0;
    return text->mapRectToScene(QRectF(left, (text->height() - height) / 2, width, height));
}

QRectF placeOf(const QQuickItem* item) {
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

/// What is left of it by all that cuts it off.
QRectF seenOf(const QQuickItem* text, QRectF letters) {
    for (const QQuickItem* each = text->parentItem(); each; each = each->parentItem()) {
        letters = each->clip() ? letters & placeOf(each) : letters;
    }
    return letters;
}

void collect(QQuickItem* item, std::vector<Shown>& texts) {
    if (!item->isVisible() || item->opacity() == 0) {
        return;
    }
    const QString text = item->property("text").toString();
    if (item->inherits("QQuickText") && !text.isEmpty()) {
        const QRectF letters = lettersOf(item);
        texts.push_back({item, text, letters, seenOf(item, letters)});
    }
    for (QQuickItem* const child : item->childItems()) {
        collect(child, texts);
    }
}

QQuickItem* topmostLayer(QQuickItem* item) {
    QQuickItem* found = nullptr;
    for (QQuickItem* const child : item->childItems()) {
        const auto* const layer = qobject_cast<ModalLayer*>(child);
        found = layer && layer->isOpen() ? child : found;
        QQuickItem* const within = topmostLayer(child);
        found = within ? within : found;
    }
    return found;
}

bool isLarger(const QQuickItem* text) {
    const double scale = text->scale();
    return number(text, "contentWidth") * scale > text->width() * scale + tolerance ||
           number(text, "contentHeight") * scale > text->height() * scale + tolerance;
}

/// Whether an item is the ground of what it holds, or cuts it off.
bool holds(const QQuickItem* item) {
    return item->clip() || item->inherits("QQuickRectangle") || !item->parentItem();
}

/// What scrolls holds its content between its sides only.
bool isScrolled(const QQuickItem* item) {
    return item->clip();
}

bool isOutside(const QRectF& letters, const QQuickItem* ground) {
    const QRectF place = placeOf(ground);
    const bool isBeside =
        letters.left() < place.left() - tolerance || letters.right() > place.right() + tolerance;
    const bool isOverOrUnder =
        letters.top() < place.top() - tolerance || letters.bottom() > place.bottom() + tolerance;
    return isBeside || (isOverOrUnder && !isScrolled(ground));
}

/// The nearest that holds it and does not reach around it.
const QQuickItem* overstepped(const Shown& shown) {
    for (const QQuickItem* each = shown.item->parentItem(); each; each = each->parentItem()) {
        if (holds(each) && isOutside(shown.letters, each)) {
            return each;
        }
        if (each->clip()) {
            return nullptr;
        }
    }
    return nullptr;
}

QString told(const Shown& shown) {
    const QRectF& at = shown.letters;
    return QStringLiteral("\"%1\" (%2, %3, %4 × %5)")
        .arg(shown.text)
        .arg(at.x(), 0, 'f', 0)
        .arg(at.y(), 0, 'f', 0)
        .arg(at.width(), 0, 'f', 0)
        .arg(at.height(), 0, 'f', 0);
}

QString faultOf(const Shown& shown, const QStringList& elidable) {
    const bool mayBeCut = std::any_of(elidable.begin(), elidable.end(),
                                      [&shown](const QString& part) { return shown.text.contains(part); });
    if (shown.item->property("truncated").toBool()) {
        return mayBeCut ? QString() : QStringLiteral(" is cut short");
    }
    if (isLarger(shown.item)) {
        return QStringLiteral(" is larger than its place");
    }
    const QQuickItem* const ground = overstepped(shown);
    return ground ? QStringLiteral(" is outside of its ") + ground->metaObject()->className() : QString();
}

bool overlap(const Shown& one, const Shown& other) {
    const QRectF both = one.seen & other.seen;
    return both.width() > 2 * tolerance && both.height() > 4 * tolerance;
}

} // namespace

QStringList misfits(QQuickItem* root, const QStringList& elidable) {
    QQuickItem* const layer = topmostLayer(root);
    std::vector<Shown> texts;
    collect(layer ? layer : root, texts);
    QStringList found;
    for (std::size_t index = 0; index < texts.size(); ++index) {
        const QString fault = faultOf(texts[index], elidable);
        if (!fault.isEmpty()) {
            found.append(told(texts[index]) + fault);
        }
        for (std::size_t earlier = 0; earlier < index; ++earlier) {
            if (overlap(texts[earlier], texts[index])) {
                found.append(told(texts[index]) + QStringLiteral(" lies over ") + told(texts[earlier]));
            }
        }
    }
    return found;
}

} // namespace kestrelfen
