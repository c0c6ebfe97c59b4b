#pragma once

#include "platform/linux/WaylandPointer.hpp"
#include "platform/ports/LayerSurfaces.hpp"

#include <cstddef>
#include <wayland-client.h>

namespace kestrelfen {

/// Pixels that this program and the compositor share. Main thread only.
class WaylandLayerBuffer {
  public:
    /// Without memory it is null, and shows nothing.
    WaylandLayerBuffer(wl_shm* sharedMemory, int width, int height);
    WaylandLayerBuffer(const WaylandLayerBuffer&) = delete;
    WaylandLayerBuffer& operator=(const WaylandLayerBuffer&) = delete;
    ~WaylandLayerBuffer();

    bool isNull() const { return buffer_ == nullptr; }
    bool fits(const LayerPicture& picture) const {
        return picture.width == width_ && picture.height == height_;
    }
    /// Whether the compositor still reads it.
    bool isInUse() const { return isInUse_; }

    /// That part of the picture has changed and is not here yet.
    void outdate(const ScreenRect& changed);
    /// Takes over what is not here yet and gives it to the compositor.
    void attachTo(wl_surface* surface, const LayerPicture& picture);

  private:
    static const wl_buffer_listener listener;

    void share(wl_shm* sharedMemory);
    void copy(const LayerPicture& picture, const ScreenRect& part);

    int width_;
    int height_;
    std::size_t size_;
    unsigned char* bytes_ = nullptr;
    WaylandPointer<wl_buffer> buffer_;
    ScreenRect outdated_;
    bool isInUse_ = false;
};

} // namespace kestrelfen
