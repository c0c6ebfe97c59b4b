#include "core/PauseReason.hpp"

#include "core/IdleMode.hpp"
#include "core/Settings.hpp"

namespace kestrelfen {

bool isEnabledInSettings(PauseReason reason, const Preferences& preferences) {
    switch (reason) {
    case PauseReason::manual:
        return true;
    case PauseReason::systemSleep:
        return Settings::boolean(preferences, "pauseOnSystemSleep", true);
    case PauseReason::screenLocked:
        return Settings::boolean(preferences, "pauseOnScreenLock", true);
    case PauseReason::displaySleep:
        return Settings::boolean(preferences, "pauseOnDisplaySleep", true);
    case PauseReason::userIdle:
        return current<IdleMode>(preferences) != IdleMode::off;
    case PauseReason::meeting:
        return Settings::boolean(preferences, "smartPauseMeetings", true);
    case PauseReason::videoPlayback:
        return Settings::boolean(preferences, "smartPauseVideo", true);
    case PauseReason::screenSharing:
        return Settings::boolean(preferences, "smartPauseScreenSharing", true);
    case PauseReason::focusApp:
        return Settings::boolean(preferences, "smartPauseFocusApps", false);
    }
    return false;
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
