#include "shell/desktop/StatusItem.hpp"

#include "ui/MenuBarView/StatusItemContent.hpp"
#include "ui/MenuBarView/StatusItemPicture.hpp"

#include <array>
#include <cmath>

namespace kestrelfen {

namespace {

constexpr std::array pictureSizes{16, 18, 20, 22, 24, 32, 44, 48, 64};

/// As wide as any text of the item.
constexpr char widestText[] = "00:00";

TrayPicture pictureOf(std::string_view symbol, int size, PanelShade shade) {
    const QImage image = statusItemPicture(symbol, size, shade).convertToFormat(QImage::Format_ARGB32);
    TrayPicture picture{size, {}};
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        picture.argb.insert(picture.argb.end(), line, line + image.width());
    }
    return picture;
}

std::vector<TrayPicture> picturesOf(std::string_view symbol, PanelShade shade) {
    std::vector<TrayPicture> pictures;
    pictures.reserve(pictureSizes.size());
    for (const int size : pictureSizes) {
        pictures.push_back(pictureOf(symbol, size, shade));
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
    follower_ = std::make_unique<ChangeFollower>(queue, [this] { refresh(); });
    follower_->keep(engine.observe(follower_->listener()));
    refresh();
}

void StatusItem::refresh() {
    const StatusItemContent content = StatusItemContent::of(*engine_);
    if (symbol_ != content.symbol) {
        symbol_ = content.symbol;
        tray_.show({.pictures = picturesOf(content.symbol, PanelShade::unknown),
                    .title = "Kestrelfen",
                    .tooltip = [engine = engine_] { return StatusItemContent::of(*engine).tooltip; },
                    .onLight = picturesOf(content.symbol, PanelShade::light),
                    .onDark = picturesOf(content.symbol, PanelShade::dark),
                    .label = [engine = engine_] { return StatusItemContent::of(*engine).text; },
                    .labelGuide = widestText});
    }
    if (text_ != content.text) {
        text_ = content.text;
        tray_.labelChanged();
    }
    if (const std::string now = announcement(*engine_); now != announced_) {
        announced_ = now;
        tray_.tooltipChanged();
    }
}

} // namespace kestrelfen
