#include "shell/desktop/QuickBreakWindow.hpp"

#include "shell/desktop/QuickOverlayWindows.hpp"

#include <QGuiApplication>
#include <QScreen>

namespace kestrelfen {

namespace {

QScreen* screenAt(const QRect& frame) {
    for (QScreen* const screen : QGuiApplication::screens()) {
        if (screen->geometry() == frame) {
            return screen;
        }
    }
    return QGuiApplication::primaryScreen();
}

} // namespace

QuickBreakWindow::QuickBreakWindow(QuickOverlayWindows& owner, BreakEngine& engine, const Platform& platform,
                                   QuickViews& views, const Display& display)
    : owner_(owner), model_(engine, platform) {
    view_ = views.make(QStringLiteral("BreakOverlayView.qml"),
                       {{QStringLiteral("model"), QVariant::fromValue(&model_)}});
    view_->setFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus);
    view_->setTitle(QStringLiteral("Kestrelfen break"));
    view_->setResizeMode(QQuickView::SizeRootObjectToView);
    const QRect frame(display.frame.x, display.frame.y, display.frame.width, display.frame.height);
    view_->setScreen(screenAt(frame));
    view_->setGeometry(frame);
    view_->show();
    view_->raise();
    owner_.add(model_);
}

QuickBreakWindow::~QuickBreakWindow() {
    view_.reset();
    owner_.forget(model_);
}

} // namespace kestrelfen
