#include "platform/linux/WaylandLayerBuffer.hpp"

#include <algorithm>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

namespace kestrelfen {

namespace {

constexpr int bytesPerPixel = 4;

ScreenRect united(const ScreenRect& one, const ScreenRect& other) {
    if (one.width == 0) {
        return other;
    }
    const int left = std::min(one.x, other.x);
    const int top = std::min(one.y, other.y);
    return {left, top, std::max(one.x + one.width, other.x + other.width) - left,
            std::max(one.y + one.height, other.y + other.height) - top};
}

/// Memory without a name in any folder, that ends with those who hold it.
int makeMemory(std::size_t size) {
    const int file = ::memfd_create("kestrelfen", MFD_CLOEXEC);
    if (file >= 0 && ::ftruncate(file, static_cast<off_t>(size)) != 0) {
        ::close(file);
        return -1;
    }
    return file;
}

} // namespace

const wl_buffer_listener WaylandLayerBuffer::listener{
    .release = [](void* self, wl_buffer*) { static_cast<WaylandLayerBuffer*>(self)->isInUse_ = false; },
};

WaylandLayerBuffer::WaylandLayerBuffer(wl_shm* sharedMemory, int width, int height)
    : width_(width), height_(height),
      size_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * bytesPerPixel), outdated_{
                                                                                                     0, 0,
                                                                                                     width,
                                                                                                     height} {
    if (size_ > 0) {
        share(sharedMemory);
    }
}

WaylandLayerBuffer::~WaylandLayerBuffer() {
    if (bytes_) {
        ::munmap(bytes_, size_);
    }
}

void WaylandLayerBuffer::share(wl_shm* sharedMemory) {
    const int file = makeMemory(size_);
    if (file < 0) {
        return;
    }
    void* const place = ::mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (place != MAP_FAILED) {
        bytes_ = static_cast<unsigned char*>(place);
        wl_shm_pool* const pool = wl_shm_create_pool(sharedMemory, file, static_cast<int>(size_));
        buffer_.reset(wl_shm_pool_create_buffer(pool, 0, width_, height_, width_ * bytesPerPixel,
                                                WL_SHM_FORMAT_ARGB8888));
        wl_shm_pool_destroy(pool);
        wl_buffer_add_listener(buffer_.get(), &listener, this);
    }
    ::close(file);
}

void WaylandLayerBuffer::outdate(const ScreenRect& changed) {
    outdated_ = united(outdated_, changed);
}

void WaylandLayerBuffer::attachTo(wl_surface* surface, const LayerPicture& picture) {
    copy(picture, outdated_);
    outdated_ = {};
    isInUse_ = true;
    wl_surface_attach(surface, buffer_.get(), 0, 0);
}

void WaylandLayerBuffer::copy(const LayerPicture& picture, const ScreenRect& part) {
    const std::ptrdiff_t bytesPerLine = std::ptrdiff_t{width_} * bytesPerPixel;
    const std::ptrdiff_t indent = std::ptrdiff_t{part.x} * bytesPerPixel;
    const std::size_t length = static_cast<std::size_t>(part.width) * bytesPerPixel;
    for (std::ptrdiff_t line = part.y; line < part.y + part.height; ++line) {
        std::memcpy(bytes_ + line * bytesPerLine + indent,
                    picture.bytes + line * picture.bytesPerLine + indent, length);
    }
}

} // namespace kestrelfen
