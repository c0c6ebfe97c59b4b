#include "platform/linux/XPicture.hpp"

#include <cstring>

namespace kestrelfen {

namespace {

constexpr std::uint32_t allPlanes = 0xffffffff;
constexpr int bytesPerPixel = 4;

} // namespace

void putImage(const XConnection& connection, xcb_window_t window, std::uint8_t depth, const QImage& image) {
    xcb_connection_t* const raw = connection.raw();
    const xcb_gcontext_t context = xcb_generate_id(raw);
    xcb_create_gc(raw, context, window, 0, nullptr);
    xcb_put_image(raw, XCB_IMAGE_FORMAT_Z_PIXMAP, window, context, static_cast<std::uint16_t>(image.width()),
                  static_cast<std::uint16_t>(image.height()), 0, 0, 0, depth,
                  static_cast<std::uint32_t>(image.sizeInBytes()), image.constBits());
    xcb_free_gc(raw, context);
}

QImage getImage(const XConnection& connection, xcb_window_t window, QSize size) {
    xcb_connection_t* const raw = connection.raw();
    const auto cookie =
        xcb_get_image(raw, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0, static_cast<std::uint16_t>(size.width()),
                      static_cast<std::uint16_t>(size.height()), allPlanes);
    const XPointer<xcb_get_image_reply_t> reply(xcb_get_image_reply(raw, cookie, nullptr));
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    const int expected = size.width() * size.height() * bytesPerPixel;
    if (reply && xcb_get_image_data_length(reply.get()) >= expected) {
        std::memcpy(image.bits(), xcb_get_image_data(reply.get()), static_cast<std::size_t>(expected));
    }
    return image;
}

} // namespace kestrelfen
