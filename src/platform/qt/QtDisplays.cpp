#include "platform/qt/QtDisplays.hpp"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace kestrelfen {

namespace {

class Observing final : public Displays::Observation {
  public:
    explicit Observing(Subscription subscription) : subscription_(std::move(subscription)) {}

  private:
    Subscription subscription_;
};

ScreenRect rectOf(const QRect& rect) {
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

/// Without any monitor Qt keeps a stand-in that shows nothing.
bool isReal(const QScreen* screen) {
    return !screen->geometry().isEmpty() && !screen->name().isEmpty();
}

Display displayOf(const QScreen* screen, std::int64_t number) {
    return {number, screen->name().toStdString(), rectOf(screen->geometry()),
            rectOf(screen->availableGeometry())};
}

} // namespace

QtDisplays::QtDisplays() {
    for (QScreen* const screen : QGuiApplication::screens()) {
        watch(screen);
    }
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &context_, [this](QScreen* screen) {
        watch(screen);
        tellSoon();
    });
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, &context_, [this] { tellSoon(); });
    QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, &context_, [this] { tellSoon(); });
}

std::vector<Display> QtDisplays::all() const {
    std::vector<Display> displays;
    for (const QScreen* const screen : QGuiApplication::screens()) {
        if (isReal(screen)) {
            displays.push_back(displayOf(screen, static_cast<std::int64_t>(displays.size()) + 1));
        }
    }
    return displays;
}

std::int64_t QtDisplays::count() const {
    const auto screens = QGuiApplication::screens();
    return std::count_if(screens.begin(), screens.end(), isReal);
}

std::optional<Display> QtDisplays::main() const {
    const QScreen* const underPointer = QGuiApplication::screenAt(QCursor::pos());
    const QScreen* const chosen = underPointer ? underPointer : QGuiApplication::primaryScreen();
    const auto displays = all();
    const auto found = std::find_if(displays.begin(), displays.end(), [chosen](const Display& display) {
        return chosen && display.name == chosen->name().toStdString();
    });
    if (found != displays.end()) {
        return *found;
    }
    return displays.empty() ? std::nullopt : std::optional(displays.front());
}

std::unique_ptr<Displays::Observation> QtDisplays::observe(std::function<void()> changed) {
    return std::make_unique<Observing>(observers_.add(std::move(changed)));
}

QScreen* QtDisplays::screen(const Display& display) {
    const auto screens = QGuiApplication::screens();
    const auto found = std::find_if(screens.begin(), screens.end(), [&display](const QScreen* screen) {
        return screen->name().toStdString() == display.name && rectOf(screen->geometry()) == display.frame;
    });
    return found == screens.end() ? nullptr : *found;
}

void QtDisplays::watch(QScreen* screen) {
    QObject::connect(screen, &QScreen::geometryChanged, &context_, [this] { tellSoon(); });
    QObject::connect(screen, &QScreen::availableGeometryChanged, &context_, [this] { tellSoon(); });
}

/// One plug moves several screens; they are told of as one change.
void QtDisplays::tellSoon() {
    if (telling_) {
        return;
    }
    telling_ = true;
    QMetaObject::invokeMethod(
        &context_,
        [this] {
            telling_ = false;
            observers_.notify();
        },
        Qt::QueuedConnection);
}

} // namespace kestrelfen
