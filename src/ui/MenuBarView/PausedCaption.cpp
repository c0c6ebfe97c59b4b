#include "ui/MenuBarView/PausedCaption.hpp"

namespace kestrelfen {

std::string pausedCaption(PauseReason reason) {
    switch (reason) {
    case PauseReason::manual:
        return "Paused by you. Resume when ready.";
    case PauseReason::systemSleep:
        return "The Mac slept. Resumes on wake.";
    case PauseReason::screenLocked:
        return "Screen locked. Resumes on unlock.";
    case PauseReason::displaySleep:
        return "Display asleep. Resumes on wake.";
    case PauseReason::userIdle:
        return "You stepped away. Resumes on input.";
    case PauseReason::meeting:
        return "You're on a call. Resumes when it ends.";
    case PauseReason::videoPlayback:
        return "Something is playing. Resumes when it stops.";
    case PauseReason::screenSharing:
        return "Capturing the screen. Resumes when you stop.";
    case PauseReason::focusApp:
        return "Deep focus app in front. Resumes when you leave.";
    }
    return {};
}

} // namespace kestrelfen
