#pragma once

#include "platform/linux/WaylandLayerBuffer.hpp"

#include <memory>
#include <vector>

namespace kestrelfen {

/// The buffers of one surface, no more of them than the compositor holds at once. Main thread only.
class WaylandLayerBuffers {
  public:
    explicit WaylandLayerBuffers(wl_shm* sharedMemory) : sharedMemory_(sharedMemory) {}

    /// Whether the picture could be given; it holds from the surface's next commit on.
    bool attach(wl_surface* surface, const LayerPicture& picture, const ScreenRect& changed);

  private:
    WaylandLayerBuffer* unused(const LayerPicture& picture);

    wl_shm* sharedMemory_;
    std::vector<std::unique_ptr<WaylandLayerBuffer>> buffers_;
};

} // namespace kestrelfen
