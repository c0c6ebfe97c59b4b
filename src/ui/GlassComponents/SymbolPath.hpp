#pragma once

#include <QPainterPath>

#include <string_view>

namespace kestrelfen {

/// The path that `data` tells in the path language of SVG: lines, cubic curves and arcs of circles. What it
/// cannot read ends the path. Any thread.
QPainterPath symbolPath(std::string_view data);

} // namespace kestrelfen
