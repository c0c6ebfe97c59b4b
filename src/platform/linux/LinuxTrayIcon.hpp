#pragma once

#include "platform/ports/Log.hpp"
#include "platform/ports/TrayIcon.hpp"

#include <QDBusConnection>

#include <memory>

namespace kestrelfen {

/// The icon for any Linux desktop: a StatusNotifierItem where one is shown, else in the X11 system tray.
std::unique_ptr<TrayIcon> makeLinuxTrayIcon(const QDBusConnection& sessionBus, Log& log);

} // namespace kestrelfen
