#include "shell/desktop/QuickWarningPanel.hpp"

#include "shell/desktop/QuickViews.hpp"

#include <QMouseEvent>
#include <QQuickItem>

namespace kestrelfen {

QuickWarningPanel::QuickWarningPanel(BreakEngine& engine, const Platform& platform, QuickViews& views,
                                     bool blended)
    : model_(engine, platform) {
    view_ = views.make(
        QStringLiteral("PreBreakWarningView.qml"),
        {{QStringLiteral("model"), QVariant::fromValue(&model_)}, {QStringLiteral("blended"), blended}});
    view_->setFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus);
    view_->setTitle(QStringLiteral("Kestrelfen warning"));
    view_->setColor(Qt::transparent);
    view_->setResizeMode(QQuickView::SizeViewToRootObject);
    if (!blended) {
        QuickViews::cutToCard(*view_);
    }
    view_->installEventFilter(this);
    connect(view_->rootObject(), SIGNAL(dragBegan()), this, SLOT(beginDrag()));
    connect(view_->rootObject(), SIGNAL(dragged()), this, SLOT(drag()));
}

void QuickWarningPanel::show() {
    view_->show();
    view_->raise();
}

bool QuickWarningPanel::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove) {
        pointer_ = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
    }
    return QObject::eventFilter(object, event);
}

void QuickWarningPanel::beginDrag() {
    grip_ = pointer_ - view_->position();
}

void QuickWarningPanel::drag() {
    view_->setPosition(pointer_ - grip_);
}

} // namespace kestrelfen
