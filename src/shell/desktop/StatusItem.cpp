#include "shell/desktop/StatusItem.hpp"

#include "ui/MenuBarView/StatusItemContent.hpp"
#include "ui/MenuBarView/StatusItemPicture.hpp"

#include <array>
#include <cmath>

namespace kestrelfen {

namespace {

constexpr std::array<int, 4> pictureSizes{16, 22, 24, 48};

TrayPicture pictureOf(std::string_view symbol, int size) {
    const QImage image = statusItemPicture(symbol, size).convertToFormat(QImage::Format_ARGB32);
    TrayPicture picture{size, {}};
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        picture.argb.insert(picture.argb.end(), line, line + image.width());
    }
    return picture;
}

std::vector<TrayPicture> picturesOf(std::string_view symbol) {
    std::vector<TrayPicture> pictures;
    pictures.reserve(pictureSizes.size());
    for (const int size : pictureSizes) {
        pictures.push_back(pictureOf(symbol, size));
    }
    return pictures;
}

/// What a host that keeps a copy of the tooltip is told anew of: the state and the minute.
std::string announcement(const BreakEngine& engine) {
    const double left =
        engine.state().is(BreakState::Case::onBreak) ? engine.breakRemaining() : engine.timeUntilNextBreak();
    return std::string(rawValue(engine.state().phase())) + std::to_string(std::ceil(left / 60.0));
}

} // namespace

StatusItem::StatusItem(TrayIcon& tray) : tray_(tray) {
    tray_.onActivate([this](std::optional<TrayPoint> place) {
        if (onActivate) {
            onActivate(place);
        }
    });
}

void StatusItem::follow(BreakEngine& engine, MainQueue& queue) {
    engine_ = &engine;
    follower_ = std::make_unique<EngineFollower>(queue, [this] { refresh(); });
    follower_->keep(engine.observe(follower_->listener()));
    refresh();
}

void StatusItem::refresh() {
    const StatusItemContent content = StatusItemContent::of(*engine_);
    if (symbol_ != content.symbol) {
        symbol_ = content.symbol;
        tray_.show({picturesOf(content.symbol), "Kestrelfen",
                    [engine = engine_] { return StatusItemContent::of(*engine).tooltip; }});
    }
    if (const std::string now = announcement(*engine_); now != announced_) {
        announced_ = now;
        tray_.tooltipChanged();
    }
}

} // namespace kestrelfen
