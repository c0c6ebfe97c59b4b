#include "platform/linux/WaylandOutput.hpp"

#include <utility>

namespace kestrelfen {

namespace {

WaylandOutput& of(void* self) {
    return *static_cast<WaylandOutput*>(self);
}

bool swapsSides(int transform) {
    switch (transform) {
    case WL_OUTPUT_TRANSFORM_90:
    case WL_OUTPUT_TRANSFORM_270:
    case WL_OUTPUT_TRANSFORM_FLIPPED_90:
    case WL_OUTPUT_TRANSFORM_FLIPPED_270:
        return true;
    default:
        return false;
    }
}

} // namespace

const wl_output_listener WaylandOutput::outputListener{
    .geometry = [](void* self, wl_output*, int x, int y, int, int, int, const char*, const char*,
                   int transform) { of(self).setPlace(x, y, transform); },
    .mode = [](void* self, wl_output*, std::uint32_t flags, int width, int height,
               int) { of(self).setMode(flags, width, height); },
    .done = [](void* self, wl_output*) { of(self).told_(); },
    .scale = [](void* self, wl_output*, int scale) { of(self).scale_ = scale; },
    .name = [](void* self, wl_output*, const char* name) { of(self).name_ = name; },
    .description = [](void*, wl_output*, const char*) {},
};

const zxdg_output_v1_listener WaylandOutput::logicalListener{
    .logical_position =
        [](void* self, zxdg_output_v1*, int x, int y) {
            of(self).logical_.x = x;
            of(self).logical_.y = y;
        },
    .logical_size =
        [](void* self, zxdg_output_v1*, int width, int height) {
            of(self).logical_.width = width;
            of(self).logical_.height = height;
        },
    .done = [](void*, zxdg_output_v1*) {},
    .name = [](void*, zxdg_output_v1*, const char*) {},
    .description = [](void*, zxdg_output_v1*, const char*) {},
};

WaylandOutput::WaylandOutput(wl_output* output, zxdg_output_manager_v1* manager, std::function<void()> told)
    : output_(output), told_(std::move(told)) {
    wl_output_add_listener(output, &outputListener, this);
    if (manager) {
        logicalOutput_.reset(zxdg_output_manager_v1_get_xdg_output(manager, output));
        zxdg_output_v1_add_listener(logicalOutput_.get(), &logicalListener, this);
    }
}

std::optional<ScreenRect> WaylandOutput::frame() const {
    if (logical_.width > 0 && logical_.height > 0) {
        return logical_;
    }
    if (physical_.width <= 0 || physical_.height <= 0 || scale_ <= 0) {
        return std::nullopt;
    }
    ScreenRect frame = physical_;
    if (isTurned_) {
        std::swap(frame.width, frame.height);
    }
    frame.width /= scale_;
    frame.height /= scale_;
    return frame;
}

void WaylandOutput::setPlace(int x, int y, int transform) {
    physical_.x = x;
    physical_.y = y;
    isTurned_ = swapsSides(transform);
}

void WaylandOutput::setMode(std::uint32_t flags, int width, int height) {
    if ((flags & WL_OUTPUT_MODE_CURRENT) != 0) {
        physical_.width = width;
        physical_.height = height;
    }
}

} // namespace kestrelfen
