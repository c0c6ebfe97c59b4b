#pragma once

#include <QColor>
#include <QImage>

#include <string_view>

namespace kestrelfen {

/// What is known of the panel that shows the status item.
enum class PanelShade { unknown, light, dark };

/// In one colour where the panel's shade is known. Where it is not, the colour tells the state too, and is
/// one that stands out on light and on dark panels alike.
QColor statusItemColor(std::string_view symbol, PanelShade shade);

/// The status item's symbol, by its name, `size` pixels wide and high. A name that the set lacks draws
/// nothing.
QImage statusItemPicture(std::string_view symbol, int size, PanelShade shade);

} // namespace kestrelfen
