#include "ui/MenuBarView/MenuBarActions.hpp"

#include "core/BreakEngine.hpp"
#include "core/SnoozeOption.hpp"
#include "platform/ports/Clock.hpp"

namespace kestrelfen {

void MenuBarActions::pauseOrResume() {
    if (engine_.state().is(BreakState::Case::paused)) {
        engine_.resume(platform_.clock.now());
    } else {
        engine_.pause(PauseReason::manual);
    }
}

void MenuBarActions::snoozeOrSkip() {
    if (engine_.canSnooze()) {
        engine_.snooze(chosenSnoozeSeconds(platform_.preferences), platform_.clock.now());
    } else {
        engine_.skipNextBreak();
    }
}

void MenuBarActions::breakNowOrEnd() {
    if (engine_.state().is(BreakState::Case::onBreak)) {
        engine_.skipCurrentBreak();
    } else {
        engine_.beginBreak(platform_.clock.now());
    }
}

} // namespace kestrelfen
