#pragma once

#include "platform/ports/TrayIcon.hpp"

#include <QImage>
#include <QSize>

#include <vector>

namespace kestrelfen {

/// The picture that suits a place of `size` best, scaled smoothly to fit, centred on transparency. Colours
/// are multiplied by alpha, as the X server wants them. Any thread.
QImage trayImage(const std::vector<TrayPicture>& pictures, QSize size);

} // namespace kestrelfen
