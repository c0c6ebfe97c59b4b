#include "ui/MenuBarView/MenuBarContent.hpp"

#include "core/BreakEngine.hpp"
#include "core/Formatters.hpp"
#include "ui/MenuBarView/PausedCaption.hpp"

namespace kestrelfen {

namespace {

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

void fillToday(MenuBarContent& content, const BreakEngine& engine, double activeSeconds) {
    const std::int64_t completed = engine.breaksCompletedToday();
    const std::int64_t due = completed + engine.breaksSkippedToday();
    content.breaks = std::to_string(completed) + " / " + std::to_string(due);
    content.completionRate = due < 1 ? 0.0 : static_cast<double>(completed) / static_cast<double>(due);
    content.screenTime = Formatters::activeTime(activeSeconds);
    content.skipped = engine.breaksSkippedToday();
}

MenuBarContent::ActiveTaskRow rowOf(const TaskSummary& task) {
    return {task.title, task.completedBreaks, "×" + std::to_string(task.completedBreaks)};
}

} // namespace

MenuBarContent MenuBarContent::of(const BreakEngine& engine, double activeSeconds,
                                  const std::optional<TaskSummary>& activeTask) {
    const double left =
        engine.state().is(BreakState::Case::onBreak) ? engine.breakRemaining() : engine.timeUntilNextBreak();
    const double total = engine.currentPhaseTotal();
    MenuBarContent content;
    fillHeader(content, engine);
    content.cycleText = cycleTextOf(engine);
    content.ringRemaining = total > 0 ? left / total : 0.0;
    content.ringLabel = Formatters::countdown(left);
    content.buttons = buttonsOf(engine);
    fillToday(content, engine, activeSeconds);
    if (activeTask) {
        content.activeTask = rowOf(*activeTask);
    }
    return content;
}

} // namespace kestrelfen
