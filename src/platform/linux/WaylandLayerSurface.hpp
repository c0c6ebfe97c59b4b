#pragma once

#include "platform/linux/WaylandLayerBuffers.hpp"
#include "platform/linux/WaylandLayerGlobals.hpp"
#include "platform/ports/LayerSurfaces.hpp"

namespace kestrelfen {

class WaylandLayers;

/// One layer of the desktop. Main thread only.
class WaylandLayerSurface final : public LayerSurfaces::Surface {
  public:
    struct Form {
        /// Null leaves the choice to the compositor.
        wl_output* output = nullptr;
        std::uint32_t anchor = 0;
        std::int32_t exclusiveZone = 0;
        /// 0 is as large as the display.
        int width = 0;
        int height = 0;
        bool isOpaque = false;
        /// Whether it is there for the keyboard where that is wanted.
        bool mayHaveKeyboard = false;
    };

    WaylandLayerSurface(WaylandLayers& owner, const Form& form, LayerSurfaces::Client& client);
    WaylandLayerSurface(const WaylandLayerSurface&) = delete;
    WaylandLayerSurface& operator=(const WaylandLayerSurface&) = delete;
    ~WaylandLayerSurface() override;

    bool isReady() const override { return isConfigured_ && !frame_; }
    void show(const LayerPicture& picture, const ScreenRect& changed) override;
    void setMargins(int top, int right) override;

    const wl_surface* raw() const { return surface_.get(); }
    LayerSurfaces::Client& client() const { return client_; }
    /// The next whole one, for what is made in whole scales only.
    int wholeScale() const;
    /// While it is shown, all keys go to it.
    void setKeyboard(bool wanted);

  private:
    static const wl_surface_listener surfaceListener;
    static const zwlr_layer_surface_v1_listener layerListener;
    static const wp_fractional_scale_v1_listener scaleListener;
    static const wl_callback_listener frameListener;

    void follow();
    void configure(std::uint32_t serial, int width, int height);
    void enter(wl_output* output);
    void close();
    void finishFrame();
    void resize(LayerExtent extent);
    void commit();

    WaylandLayers& owner_;
    const Form form_;
    LayerSurfaces::Client& client_;
    WaylandLayerBuffers buffers_;
    WaylandPointer<wl_surface> surface_;
    WaylandPointer<wp_viewport> viewport_;
    WaylandPointer<wp_fractional_scale_v1> fractionalScale_;
    WaylandPointer<zwlr_layer_surface_v1> layer_;
    WaylandPointer<wl_callback> frame_;
    LayerExtent extent_;
    bool isConfigured_ = false;
};

} // namespace kestrelfen
