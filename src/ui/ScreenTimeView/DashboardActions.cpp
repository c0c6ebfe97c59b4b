#include "ui/ScreenTimeView/DashboardActions.hpp"

#include "core/BreakEngine.hpp"
#include "platform/ports/Clock.hpp"

namespace kestrelfen {

void DashboardActions::breakNowOrEnd() {
    if (engine_.state().is(BreakState::Case::onBreak)) {
        engine_.skipCurrentBreak();
    } else {
        engine_.beginBreak(platform_.clock.now());
    }
}

void DashboardActions::postpone() {
    engine_.postponeNextBreak(postponeSeconds, platform_.clock.now());
}

void DashboardActions::pauseOrResume() {
    if (engine_.state().is(BreakState::Case::paused)) {
        engine_.resume(platform_.clock.now());
    } else {
        engine_.pauseFor(pauseSeconds, platform_.clock.now());
    }
}

} // namespace kestrelfen
