#include "ui/PreBreakWarningView/PreBreakWarningActions.hpp"

#include "core/BreakEngine.hpp"
#include "platform/ports/Clock.hpp"

namespace kestrelfen {

void PreBreakWarningActions::dismiss() {
    engine_.dismissPreBreakWarning();
}

void PreBreakWarningActions::snooze(SnoozeOption option) {
    engine_.snooze(seconds(option), platform_.clock.now());
}

void PreBreakWarningActions::startNow() {
    engine_.beginBreak(platform_.clock.now());
}

} // namespace kestrelfen
