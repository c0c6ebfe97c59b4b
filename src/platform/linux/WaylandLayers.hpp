#pragma once

#include "platform/linux/WaylandLayerCursor.hpp"
#include "platform/linux/WaylandLayerGlobals.hpp"
#include "platform/linux/WaylandLayerSeat.hpp"
#include "platform/linux/WaylandLayerSurface.hpp"
#include "platform/linux/WaylandOutputs.hpp"
#include "platform/ports/LayerSurfaces.hpp"

#include <functional>
#include <optional>
#include <vector>

namespace kestrelfen {

/// Layers of the desktop, as compositors of the wlroots family and KWin have them. Main thread only; the
/// connection and the outputs outlive it, and it outlives its surfaces. While it shows nothing it hears
/// nothing.
class WaylandLayers final : public LayerSurfaces {
  public:
    WaylandLayers(WaylandConnection& connection, const WaylandOutputs& outputs);
    WaylandLayers(const WaylandLayers&) = delete;
    WaylandLayers& operator=(const WaylandLayers&) = delete;
    ~WaylandLayers() override;

    std::unique_ptr<Surface> cover(const Display& display, Client& client) override;
    std::unique_ptr<Surface> putInCorner(int width, int height, Client& client) override;

    /// From now on the keyboard goes to what covers the displays, and `escape` hears of its presses; or the
    /// keyboard is given back, when that is empty.
    void takeKeyboard(std::function<void()> escape);

    const WaylandLayerGlobals& globals() const { return globals_; }
    const WaylandOutputs& outputs() const { return outputs_; }
    void flush() { connection_.flush(); }
    WaylandLayerCursor& cursor();
    /// Null for a surface that is not of these.
    WaylandLayerSurface* find(const wl_surface* surface) const;
    void forget(const WaylandLayerSurface* surface);

  private:
    std::unique_ptr<Surface> make(const WaylandLayerSurface::Form& form, Client& client);
    void listen();

    WaylandConnection& connection_;
    const WaylandOutputs& outputs_;
    WaylandLayerGlobals globals_;
    std::vector<WaylandLayerSurface*> surfaces_;
    std::optional<WaylandLayerCursor> cursor_;
    std::vector<std::unique_ptr<WaylandLayerSeat>> seats_;
    std::function<void()> escape_;
};

} // namespace kestrelfen
