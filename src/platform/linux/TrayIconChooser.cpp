#include "platform/linux/TrayIconChooser.hpp"

#include <chrono>
#include <utility>

namespace kestrelfen {

namespace {

/// Long enough for a tray to answer at the start, and for a restarting one to come back.
constexpr std::chrono::milliseconds fallbackDelay{500};

/// A desktop may start its tray after its programs.
constexpr std::chrono::seconds trayPatience{3};

} // namespace

TrayIconChooser::TrayIconChooser(std::unique_ptr<TrayIcon> preferred, Maker makeFallback, Log& log)
    : preferred_(std::move(preferred)), makeFallback_(std::move(makeFallback)), log_(log, "Tray") {
    fallbackWait_.setSingleShot(true);
    patience_.setSingleShot(true);
    QObject::connect(&fallbackWait_, &QTimer::timeout, &fallbackWait_, [this] { startFallback(); });
    QObject::connect(&patience_, &QTimer::timeout, &patience_, [this] { tellIfThereIsNone(); });
    preferredShown_ = preferred_->observeShown([this] { choose(); });
    preferred_->onActivate([this](std::optional<TrayPoint> point) { activate(point); });
}

void TrayIconChooser::show(TrayContent content) {
    content_ = std::move(content);
    preferred_->show(content_);
    if (fallback_) {
        fallback_->show(content_);
    }
    if (!std::exchange(isStarted_, true)) {
        patience_.start(trayPatience);
        choose();
    }
}

void TrayIconChooser::tooltipChanged() {
    (fallback_ ? fallback_ : preferred_)->tooltipChanged();
}

void TrayIconChooser::labelChanged() {
    (fallback_ ? fallback_ : preferred_)->labelChanged();
}

bool TrayIconChooser::isShown() const {
    return preferred_->isShown() || (fallback_ && fallback_->isShown());
}

void TrayIconChooser::choose() {
    if (preferred_->isShown()) {
        fallbackWait_.stop();
        fallbackShown_.cancel();
        fallback_.reset();
    } else if (!fallback_) {
        fallbackWait_.start(fallbackDelay);
    }
    notifyIfChanged();
}

void TrayIconChooser::startFallback() {
    fallback_ = makeFallback_();
    fallbackShown_ = fallback_->observeShown([this] { notifyIfChanged(); });
    fallback_->onActivate([this](std::optional<TrayPoint> point) { activate(point); });
    fallback_->show(content_);
}

void TrayIconChooser::tellIfThereIsNone() {
    if (!isShown()) {
        log_.error("No tray here: start Kestrelfen again to see its window.");
    }
}

void TrayIconChooser::notifyIfChanged() {
    const bool isShownNow = isShown();
    if (std::exchange(wasShown_, isShownNow) != isShownNow) {
        notifyShown();
    }
}

} // namespace kestrelfen
