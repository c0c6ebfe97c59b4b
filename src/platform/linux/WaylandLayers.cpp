#include "platform/linux/WaylandLayers.hpp"

#include <algorithm>
#include <cassert>

namespace kestrelfen {

namespace {

constexpr std::uint32_t everyEdge = ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM |
                                    ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT | ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT;
constexpr std::uint32_t topRight = ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT;

/// Over panels, or clear of them.
constexpr std::int32_t overAll = -1;
constexpr std::int32_t besidePanels = 0;

} // namespace

WaylandLayers::WaylandLayers(WaylandConnection& connection, const WaylandOutputs& outputs)
    : connection_(connection), outputs_(outputs), globals_(connection) {}

WaylandLayers::~WaylandLayers() {
    assert(surfaces_.empty());
}

std::unique_ptr<LayerSurfaces::Surface> WaylandLayers::cover(const Display& display, Client& client) {
    wl_output* const output = outputs_.find(display);
    if (!output || connection_.isBroken()) {
        return nullptr;
    }
    return make({.output = output,
                 .anchor = everyEdge,
                 .exclusiveZone = overAll,
                 .width = 0,
                 .height = 0,
                 .isOpaque = true,
                 .mayHaveKeyboard = true},
                client);
}

std::unique_ptr<LayerSurfaces::Surface> WaylandLayers::putInCorner(int width, int height, Client& client) {
    if (connection_.isBroken()) {
        return nullptr;
    }
    return make({.output = nullptr,
                 .anchor = topRight,
                 .exclusiveZone = besidePanels,
                 .width = width,
                 .height = height,
                 .isOpaque = false,
                 .mayHaveKeyboard = false},
                client);
}

std::unique_ptr<LayerSurfaces::Surface> WaylandLayers::make(const WaylandLayerSurface::Form& form,
                                                            Client& client) {
    auto surface = std::make_unique<WaylandLayerSurface>(*this, form, client);
    surfaces_.push_back(surface.get());
    if (seats_.empty()) {
        listen();
    }
    // Either is a commit, which is what the compositor waits for.
    if (form.mayHaveKeyboard) {
        surface->setKeyboard(escape_ != nullptr);
    } else {
        surface->setMargins(0, 0);
    }
    return surface;
}

void WaylandLayers::listen() {
    for (const auto& global : connection_.globals()) {
        if (global.interface == wl_seat_interface.name) {
            seats_.push_back(std::make_unique<WaylandLayerSeat>(
                *this,
                connection_.bind<wl_seat>(global, wl_seat_interface, WaylandLayerSeat::newestVersion)));
            seats_.back()->hearEscape(escape_);
        }
    }
}

void WaylandLayers::takeKeyboard(std::function<void()> escape) {
    escape_ = std::move(escape);
    for (const auto& seat : seats_) {
        seat->hearEscape(escape_);
    }
    for (WaylandLayerSurface* const surface : surfaces_) {
        surface->setKeyboard(escape_ != nullptr);
    }
}

WaylandLayerCursor& WaylandLayers::cursor() {
    if (!cursor_) {
        cursor_.emplace(globals_);
    }
    return *cursor_;
}

WaylandLayerSurface* WaylandLayers::find(const wl_surface* surface) const {
    const auto found = std::find_if(surfaces_.begin(), surfaces_.end(),
                                    [surface](const auto* each) { return each->raw() == surface; });
    return found == surfaces_.end() ? nullptr : *found;
}

void WaylandLayers::forget(const WaylandLayerSurface* surface) {
    for (const auto& seat : seats_) {
        seat->forget(surface);
    }
    std::erase(surfaces_, surface);
    if (surfaces_.empty()) {
        seats_.clear();
        cursor_.reset();
    }
}

} // namespace kestrelfen
