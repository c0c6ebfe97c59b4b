#pragma once

#include "platform/linux/XConnection.hpp"

#include <QImage>

namespace kestrelfen {

/// Puts `image` at the top left of `window`, which has the same size and a depth of 24 or 32 bits. Main
/// thread only.
void putImage(const XConnection& connection, xcb_window_t window, std::uint8_t depth, const QImage& image);

/// What `window` shows now, or black where it cannot be read. One round trip. Main thread only.
QImage getImage(const XConnection& connection, xcb_window_t window, QSize size);

} // namespace kestrelfen
