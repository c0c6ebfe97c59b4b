#include "ui/BreakOverlayView/BreakOverlayActions.hpp"

#include "core/BreakEngine.hpp"
#include "core/DoubleEscapeAction.hpp"
#include "platform/ports/Clock.hpp"

namespace kestrelfen {

namespace {

constexpr double doublePressWithin = 1.0;

} // namespace

void BreakOverlayActions::snooze(SnoozeOption option) {
    engine_.snooze(seconds(option), platform_.clock.now());
}

void BreakOverlayActions::endBreak() {
    const Date date = platform_.clock.now();
    if (engine_.canEndBreakEarly()) {
        engine_.logTransition("break ended early");
        engine_.completeBreak(date);
    }
}

void BreakOverlayActions::skip() {
    engine_.skipCurrentBreak();
}

void BreakOverlayActions::escape() {
    const DoubleEscapeAction action = current<DoubleEscapeAction>(platform_.preferences);
    if (action == DoubleEscapeAction::nothing) {
        return;
    }
    const Date now = platform_.clock.now();
    const bool isSecond = lastEscapePress_ && now - *lastEscapePress_ < doublePressWithin;
    // Set before the action, which may take this overlay away: a third press soon after acts once more.
    lastEscapePress_ = now;
    if (!isSecond) {
        return;
    }
    if (action == DoubleEscapeAction::skip) {
        engine_.skipCurrentBreak();
    } else {
        engine_.snooze(chosenSnoozeSeconds(platform_.preferences), platform_.clock.now());
    }
}

} // namespace kestrelfen
