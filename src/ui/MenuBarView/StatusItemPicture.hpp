#pragma once

#include <QImage>

#include <string_view>

namespace kestrelfen {

/// Draws the status item's symbol, by its name, `size` pixels wide and high. A name that is not known draws
/// nothing.
QImage statusItemPicture(std::string_view symbol, int size);

} // namespace kestrelfen
