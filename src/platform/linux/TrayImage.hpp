#pragma once

#include "platform/ports/TrayIcon.hpp"

#include <QImage>
#include <QSize>

#include <optional>
#include <vector>

namespace kestrelfen {

/// The picture that suits a place of `size` best, scaled smoothly to fit, centred on transparency. Colours
/// are multiplied by alpha, as the X server wants them. Any thread.
QImage trayImage(const std::vector<TrayPicture>& pictures, QSize size);

/// Those that suit a panel, of which it may not be known whether it is dark. Any thread.
const std::vector<TrayPicture>& picturesFor(const TrayContent& content, std::optional<bool> isPanelDark);

/// Whether light lines stand out better than dark ones on what `panel` shows. Any thread.
bool isDarkPanel(const QImage& panel);

} // namespace kestrelfen
