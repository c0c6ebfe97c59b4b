#include "shell/QuickWarningPanel.hpp"

#include "shell/QuickViews.hpp"

#include <QCursor>
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
    connect(view_->rootObject(), SIGNAL(dragBegan()), this, SLOT(beginDrag()));
    connect(view_->rootObject(), SIGNAL(dragged()), this, SLOT(drag()));
}

void QuickWarningPanel::show() {
    view_->show();
    view_->raise();
}

void QuickWarningPanel::beginDrag() {
    grip_ = QCursor::pos() - view_->position();
}

void QuickWarningPanel::drag() {
    view_->setPosition(QCursor::pos() - grip_);
}

} // namespace kestrelfen
