#include "ui/MenuBarView/PausedCaption.hpp"

#include "base/Translated.hpp"

namespace kestrelfen {

std::string pausedCaption(PauseReason reason) {
    switch (reason) {
    case PauseReason::manual:
        return translated("Paused by you. Resume when ready.");
    case PauseReason::systemSleep:
        return translated("The Mac slept. Resumes on wake.");
    case PauseReason::screenLocked:
        return translated("Screen locked. Resumes on unlock.");
    case PauseReason::displaySleep:
        return translated("Display asleep. Resumes on wake.");
    case PauseReason::userIdle:
        return translated("You stepped away. Resumes on input.");
    case PauseReason::meeting:
        return translated("You're on a call. Resumes when it ends.");
    case PauseReason::videoPlayback:
        return translated("Something is playing. Resumes when it stops.");
    case PauseReason::screenSharing:
        return translated("Capturing the screen. Resumes when you stop.");
    case PauseReason::focusApp:
        return translated("Deep focus app in front. Resumes when you leave.");
    }
    return {};
}

} // namespace kestrelfen
