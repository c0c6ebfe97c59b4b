#include "shell/desktop/QuickPopover.hpp"

#include "core/BreakEngine.hpp"
#include "shell/desktop/PopoverPlacement.hpp"
#include "shell/desktop/QuickViews.hpp"

#include <QGuiApplication>
#include <QQuickItem>

namespace kestrelfen {

QuickPopover::QuickPopover(const MenuBarSources& sources, const Platform& platform, QuickViews& views,
                           const Desktop& desktop)
    : sources_(sources), platform_(platform), views_(views), desktop_(desktop),
      activeTask_(platform, sources.engine, sources.store) {}

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
    item_ = place ? std::optional(QPoint(place->x, place->y)) : std::nullopt;
    isBlended_ = desktop_.compositor.isBlending();
    activeTask_.load();
    activeTask_.followBreaks();
    model_ = std::make_unique<MenuBarModel>(sources_, platform_, activeTask_);
    view_ = views_.make(QStringLiteral("MenuBarView.qml"),
                        {{QStringLiteral("model"), QVariant::fromValue(model_.get())},
                         {QStringLiteral("blended"), isBlended_}});
    follow();
    show(sources_.engine.state().is(BreakState::Case::onBreak));
}

void QuickPopover::follow() {
    connect(view_->rootObject(), SIGNAL(dismissed()), this, SLOT(close()), Qt::QueuedConnection);
    connect(model_.get(), &MenuBarModel::left, this, &QuickPopover::close, Qt::QueuedConnection);
    connect(view_.get(), SIGNAL(activeChanged()), this, SLOT(focusMoved()), Qt::QueuedConnection);
    connect(view_.get(), &QWindow::heightChanged, this, &QuickPopover::settle);
    qGuiApp->installEventFilter(this);
    const bool beganInBreak = sources_.engine.state().is(BreakState::Case::onBreak);
    state_ = sources_.engine.observeState([this, beganInBreak] {
        if (!beganInBreak && sources_.engine.state().is(BreakState::Case::onBreak)) {
            QMetaObject::invokeMethod(this, &QuickPopover::close, Qt::QueuedConnection);
        }
    });
}

/// No window manager puts a window of its own above the overlays.
void QuickPopover::show(bool isAboveOverlays) {
    Qt::WindowFlags flags = Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;
    flags.setFlag(Qt::BypassWindowManagerHint, isAboveOverlays);
    view_->setFlags(flags);
    view_->setTitle(QStringLiteral("Kestrelfen popover"));
    view_->setColor(Qt::transparent);
    view_->setResizeMode(QQuickView::SizeViewToRootObject);
    settle();
    view_->show();
    view_->raise();
    view_->requestActivate();
}

void QuickPopover::settle() {
    if (!isBlended_) {
        QuickViews::cutToCard(*view_);
    }
    view_->setPosition(positionOfWindow());
}

QPoint QuickPopover::positionOfWindow() const {
    const auto room = [root = view_->rootObject()](const char* side) { return root->property(side).toInt(); };
    const QSize around(2 * room("sideRoom"), room("topRoom") + room("bottomRoom"));
    const auto surroundings = PopoverSurroundings::about(item_, desktop_.panels.strips());
    return popoverPosition(view_->size() - around, surroundings) - QPoint(room("sideRoom"), room("topRoom"));
}

bool QuickPopover::eventFilter(QObject* object, QEvent* event) {
    const bool isPressElsewhere =
        event->type() == QEvent::MouseButtonPress && object->isWindowType() && object != view_.get();
    if (isPressElsewhere) {
        QMetaObject::invokeMethod(this, &QuickPopover::close, Qt::QueuedConnection);
    }
    return QObject::eventFilter(object, event);
}

void QuickPopover::close() {
    qGuiApp->removeEventFilter(this);
    state_.cancel();
    activeTask_.unfollowBreaks();
    view_.reset();
    model_.reset();
}

void QuickPopover::focusMoved() {
    if (view_ && !view_->isActive()) {
        close();
    }
}

} // namespace kestrelfen
