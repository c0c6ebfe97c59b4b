#include "platform/qt/QtActivationPolicy.hpp"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

namespace kestrelfen {

namespace {

class QtObservation final : public ActivationPolicy::Observation {
  public:
    explicit QtObservation(Subscription subscription) : subscription_(std::move(subscription)) {}

  private:
    Subscription subscription_;
};

bool isTitled(const QWindow& window) {
    return !window.flags().testAnyFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
}

bool isPanel(const QWindow& window) {
    return window.type() != Qt::Window && window.type() != Qt::Dialog;
}

} // namespace

QtActivationPolicy::QtActivationPolicy() {
    qGuiApp->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* window) {
        if (window) {
            didBecomeKey_.notify();
        }
    });
}

std::vector<ProgramWindow> QtActivationPolicy::windows() const {
    std::vector<ProgramWindow> windows;
    for (const QWindow* const window : QGuiApplication::topLevelWindows()) {
        windows.push_back(
            {.isVisible = window->isVisible(), .isTitled = isTitled(*window), .isPanel = isPanel(*window)});
    }
    return windows;
}

void QtActivationPolicy::activate() {
    if (foremost_ && foremost_->isVisible()) {
        foremost_->requestActivate();
        return;
    }
    for (QWindow* const window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible() && isTitled(*window) && !isPanel(*window)) {
            window->requestActivate();
            return;
        }
    }
}

void QtActivationPolicy::bringForward(QWindow& window) {
    foremost_ = &window;
    window.raise();
    window.requestActivate();
}

std::unique_ptr<ActivationPolicy::Observation> QtActivationPolicy::observe(ProgramWindowEvent event,
                                                                           std::function<void()> deliver) {
    Observers& observers = event == ProgramWindowEvent::willClose ? willClose_ : didBecomeKey_;
    return std::make_unique<QtObservation>(observers.add(std::move(deliver)));
}

bool QtActivationPolicy::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Close && object->isWindowType()) {
        willClose_.notify();
    }
    return QObject::eventFilter(object, event);
}

} // namespace kestrelfen
