#include "ui/SettingsWindowView/DesktopAnswers.hpp"

#include "platform/ports/Applications.hpp"
#include "platform/ports/AudioProcesses.hpp"
#include "platform/ports/BrowserAccess.hpp"
#include "platform/ports/InputIdle.hpp"
#include "platform/ports/Notifier.hpp"
#include "platform/ports/Platform.hpp"
#include "platform/ports/SessionLock.hpp"
#include "platform/ports/StatusBarButton.hpp"

namespace kestrelfen {

DesktopAnswers DesktopAnswers::of(const Platform& platform, OverlayReach overlays) {
    return {.hasTray = platform.statusBarButton.exists(),
            .hasNotifications = platform.notifier.isAvailable(),
            .overlays = overlays,
            .tellsInput = platform.inputIdle.secondsSinceLastInput().has_value(),
            .machine = platform.systemSignals.capabilities(),
            .canLock = platform.sessionLock.isAvailable(),
            .tellsApplications = platform.applications.isAvailable(),
            .missesSomeApplications = platform.applications.missesSome(),
            .tellsAudio = platform.audioProcesses.hasProcessList(),
            .hasBrowserAccess = platform.browserAccess.isAvailable()};
}

} // namespace kestrelfen
