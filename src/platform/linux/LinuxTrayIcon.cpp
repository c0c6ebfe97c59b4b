#include "platform/linux/LinuxTrayIcon.hpp"

#include "platform/linux/StatusNotifierItem.hpp"
#include "platform/linux/TrayIconChooser.hpp"
#include "platform/linux/XembedTrayIcon.hpp"

namespace kestrelfen {

std::unique_ptr<TrayIcon> makeLinuxTrayIcon(const QDBusConnection& sessionBus, Log& log) {
    return std::make_unique<TrayIconChooser>(
        std::make_unique<StatusNotifierItem>(sessionBus), [] { return std::make_unique<XembedTrayIcon>(); },
        log);
}

} // namespace kestrelfen
