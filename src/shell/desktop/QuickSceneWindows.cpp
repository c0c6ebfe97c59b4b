#include "shell/desktop/QuickSceneWindows.hpp"

#include "shell/desktop/QuickViews.hpp"

#include <QGuiApplication>
#include <QScreen>

namespace kestrelfen {

namespace {

/// No larger than the desktop leaves room for, but never below what the view needs.
QSize fittingSize(const QSize& wished, const QSize& minimum) {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen ? wished.boundedTo(screen->availableSize()).expandedTo(minimum) : wished;
}

} // namespace

QuickSceneWindows::QuickSceneWindows(QuickViews& views, Desktop desktop)
    : views_(views), desktop_(std::move(desktop)) {}

QuickSceneWindows::~QuickSceneWindows() {
    windows_.clear();
}

std::vector<std::string> QuickSceneWindows::identifiers() const {
    std::vector<std::string> result;
    for (const Window& window : windows_) {
        result.emplace_back(rawValue(window.scene));
    }
    return result;
}

void QuickSceneWindows::bringToFront(std::size_t index) {
    QQuickView& view = *std::next(windows_.begin(), static_cast<std::ptrdiff_t>(index))->view;
    if (view.windowStates().testFlag(Qt::WindowMinimized)) {
        view.showNormal();
    }
    desktop_.raise(view);
}

void QuickSceneWindows::open(Scene scene) {
    const Face& face = faces_.at(scene);
    auto model = face.makeModel();
    auto view =
        views_.make(face.view, {{QStringLiteral("model"), QVariant::fromValue<QObject*>(model.get())}});
    view->setTitle(face.title);
    view->setResizeMode(QQuickView::SizeRootObjectToView);
    view->setMinimumSize(face.minimumSize);
    view->resize(fittingSize(face.size, face.minimumSize));
    // Queued: the event that closes it is to be dealt with first.
    connect(view.get(), SIGNAL(closing(QQuickCloseEvent*)), this, SLOT(forgetClosed()), Qt::QueuedConnection);
    view->show();
    desktop_.raise(*view);
    windows_.push_back({scene, std::move(model), std::move(view)});
}

void QuickSceneWindows::forgetClosed() {
    std::erase_if(windows_, [](const Window& window) { return !window.view->isVisible(); });
    desktop_.hasClosed();
}

} // namespace kestrelfen
