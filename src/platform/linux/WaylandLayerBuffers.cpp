#include "platform/linux/WaylandLayerBuffers.hpp"

#include <algorithm>

namespace kestrelfen {

bool WaylandLayerBuffers::attach(wl_surface* surface, const LayerPicture& picture,
                                 const ScreenRect& changed) {
    std::erase_if(buffers_, [&](const auto& each) { return !each->fits(picture) && !each->isInUse(); });
    for (const auto& buffer : buffers_) {
        buffer->outdate(changed);
    }
    WaylandLayerBuffer* const buffer = unused(picture);
    if (!buffer) {
        return false;
    }
    buffer->attachTo(surface, picture);
    return true;
}

WaylandLayerBuffer* WaylandLayerBuffers::unused(const LayerPicture& picture) {
    const auto found = std::find_if(buffers_.begin(), buffers_.end(), [&](const auto& each) {
        return each->fits(picture) && !each->isInUse();
    });
    if (found != buffers_.end()) {
        return found->get();
    }
    auto made = std::make_unique<WaylandLayerBuffer>(sharedMemory_, picture.width, picture.height);
    if (made->isNull()) {
        return nullptr;
    }
    buffers_.push_back(std::move(made));
    return buffers_.back().get();
}

} // namespace kestrelfen
