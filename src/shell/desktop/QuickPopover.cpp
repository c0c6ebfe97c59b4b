#include "shell/desktop/QuickPopover.hpp"

#include "shell/desktop/QuickViews.hpp"

#include <QCursor>
#include <QGuiApplication>
#include <QQuickItem>
#include <QScreen>

#include <algorithm>
#include <tuple>

namespace kestrelfen {

namespace {

constexpr int margin = 6;

/// The logical position of a physical point, and the screen that it lies on.
std::pair<QScreen*, QPoint> logicalPlace(TrayPoint place) {
    for (QScreen* const screen : QGuiApplication::screens()) {
        const double ratio = screen->devicePixelRatio();
        const QPoint origin = screen->geometry().topLeft();
        const QRect physical(origin, (QSizeF(screen->geometry().size()) * ratio).toSize());
        if (physical.contains(place.x, place.y)) {
            const QPointF offset(place.x - origin.x(), place.y - origin.y());
            return {screen, origin + (offset / ratio).toPoint()};
        }
    }
    return {QGuiApplication::primaryScreen(), QPoint(place.x, place.y)};
}

int within(int low, int value, int high) {
    return std::max(low, std::min(value, high));
}

} // namespace

QuickPopover::QuickPopover(BreakEngine& engine, const Platform& platform, QuickViews& views,
                           const Compositor& compositor, std::function<void()> quit)
    : engine_(engine), platform_(platform), views_(views), compositor_(compositor), quit_(std::move(quit)) {}

void QuickPopover::toggle(std::optional<TrayPoint> place) {
    if (view_) {
        close();
    } else {
        open(place);
    }
}

void QuickPopover::open(std::optional<TrayPoint> place) {
    if (view_) {
        view_->raise();
        view_->requestActivate();
        return;
    }
    const bool blended = compositor_.isBlending();
    model_ = std::make_unique<MenuBarModel>(engine_, platform_, quit_);
    view_ = views_.make(
        QStringLiteral("MenuBarView.qml"),
        {{QStringLiteral("model"), QVariant::fromValue(model_.get())}, {QStringLiteral("blended"), blended}});
    view_->setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    view_->setTitle(QStringLiteral("Kestrelfen"));
    view_->setColor(Qt::transparent);
    view_->setResizeMode(QQuickView::SizeViewToRootObject);
    if (!blended) {
        QuickViews::cutToCard(*view_);
    }
    connect(view_->rootObject(), SIGNAL(dismissed()), this, SLOT(close()), Qt::QueuedConnection);
    connect(view_.get(), SIGNAL(activeChanged()), this, SLOT(focusMoved()), Qt::QueuedConnection);
    view_->setPosition(positionFor(place));
    view_->show();
    view_->requestActivate();
}

QPoint QuickPopover::positionFor(std::optional<TrayPoint> place) const {
    const QScreen* const pointed = QGuiApplication::screenAt(QCursor::pos());
    const QScreen* screen = pointed ? pointed : QGuiApplication::primaryScreen();
    QPoint point = screen->availableGeometry().topRight();
    if (place) {
        std::tie(screen, point) = logicalPlace(*place);
    }
    const QRect area = screen->availableGeometry();
    const bool below = point.y() < area.center().y();
    const int y = below ? point.y() + margin : point.y() - view_->height() - margin;
    return {
        within(area.left() + margin, point.x() - view_->width() / 2, area.right() - view_->width() - margin),
        within(area.top() + margin, y, area.bottom() - view_->height() - margin)};
}

void QuickPopover::close() {
    view_.reset();
    model_.reset();
}

void QuickPopover::focusMoved() {
    if (view_ && !view_->isActive()) {
        close();
    }
}

} // namespace kestrelfen
