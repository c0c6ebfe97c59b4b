#include "core/PauseReason.hpp"

#include "core/IdleMode.hpp"
#include "core/Settings.hpp"

namespace kestrelfen {

std::string_view enableKey(PauseReason reason) {
    switch (reason) {
    case PauseReason::manual:
    case PauseReason::userIdle:
        return {};
    case PauseReason::systemSleep:
        return "pauseOnSystemSleep";
    case PauseReason::screenLocked:
        return "pauseOnScreenLock";
    case PauseReason::displaySleep:
        return "pauseOnDisplaySleep";
    case PauseReason::meeting:
        return "smartPauseMeetings";
    case PauseReason::videoPlayback:
        return "smartPauseVideo";
    case PauseReason::screenSharing:
        return "smartPauseScreenSharing";
    case PauseReason::focusApp:
        return "smartPauseFocusApps";
    }
    return {};
}

bool isEnabledInSettings(PauseReason reason, const Preferences& preferences) {
    if (reason == PauseReason::manual) {
        return true;
    }
    if (reason == PauseReason::userIdle) {
        return current<IdleMode>(preferences) != IdleMode::off;
    }
    const bool isOnByDefault = reason != PauseReason::focusApp;
    return Settings::boolean(preferences, enableKey(reason), isOnByDefault);
}

PauseKind pauseKind(PauseReason reason) {
    switch (reason) {
    case PauseReason::manual:
        return PauseKind::manual;
    case PauseReason::systemSleep:
        return PauseKind::systemSleep;
    case PauseReason::screenLocked:
        return PauseKind::screenLocked;
    case PauseReason::displaySleep:
        return PauseKind::displaySleep;
    case PauseReason::userIdle:
        return PauseKind::userIdle;
    case PauseReason::meeting:
        return PauseKind::meeting;
    case PauseReason::videoPlayback:
        return PauseKind::videoPlayback;
    case PauseReason::screenSharing:
        return PauseKind::screenSharing;
    case PauseReason::focusApp:
        return PauseKind::focusApp;
    }
    return PauseKind::manual;
}

} // namespace kestrelfen
