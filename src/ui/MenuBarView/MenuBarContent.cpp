#include "ui/MenuBarView/MenuBarContent.hpp"

#include "core/BreakEngine.hpp"
#include "core/Formatters.hpp"

namespace kestrelfen {

namespace {

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

void fillHeader(MenuBarContent& content, const BreakEngine& engine) {
    const auto& config = engine.config();
    switch (engine.state().phase()) {
    case BreakState::Case::working:
    case BreakState::Case::preBreakWarning:
        content.eyebrow = "Next break in";
        content.value = Formatters::spelled(engine.timeUntilNextBreak());
        content.caption =
            "Then " +
            Formatters::duration(engine.isNextBreakLong() ? config.longBreakDuration : config.breakDuration) +
            " away from the screen.";
        return;
    case BreakState::Case::onBreak:
        content.eyebrow = "Break ends in";
        content.value = Formatters::spelled(engine.breakRemaining());
        content.caption = engine.currentBreakIsLong() ? "Stand up and walk it off." : "Look 20 feet away.";
        return;
    case BreakState::Case::paused:
        content.eyebrow = "Paused";
        content.value = Formatters::spelled(engine.timeUntilNextBreak());
        content.caption = pausedCaption(*engine.state().reason());
        return;
    case BreakState::Case::idle:
        content.eyebrow = "Not running";
        content.value = "Not counting";
        content.caption = "The timer is stopped.";
        return;
    }
}

std::string cycleTextOf(const BreakEngine& engine) {
    const std::string text = "Cycle " + std::to_string(engine.cyclePosition()) + " of " +
                             std::to_string(engine.config().longBreakEvery);
    return engine.isNextBreakLong() ? text + " · long break next" : text;
}

std::array<MenuBarContent::Button, 3> buttonsOf(const BreakEngine& engine) {
    const bool paused = engine.state().is(BreakState::Case::paused);
    const bool canSnooze = engine.canSnooze();
    return {{{paused ? "Resume" : "Pause", true},
             {canSnooze ? "Snooze" : "Skip", !paused && (canSnooze || engine.canSkipNextBreak())},
             {engine.state().is(BreakState::Case::onBreak) ? "End Break" : "Break Now", true}}};
}

} // namespace

MenuBarContent MenuBarContent::of(const BreakEngine& engine) {
    const double left =
        engine.state().is(BreakState::Case::onBreak) ? engine.breakRemaining() : engine.timeUntilNextBreak();
    const double total = engine.currentPhaseTotal();
    MenuBarContent content;
    fillHeader(content, engine);
    content.cycleText = cycleTextOf(engine);
    content.ringRemaining = total > 0 ? left / total : 0.0;
    content.ringLabel = Formatters::countdown(left);
    content.buttons = buttonsOf(engine);
    return content;
}

} // namespace kestrelfen
