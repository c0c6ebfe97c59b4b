#include "ui/MenuBarView/MenuBarContent.hpp"

#include "base/Translated.hpp"
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
        content.eyebrow = translated("Next break in");
        content.value = Formatters::spelled(engine.timeUntilNextBreak());
        content.caption = translated("Then %1 away from the screen.",
                                     {Formatters::duration(engine.isNextBreakLong() ? config.longBreakDuration
                                                                                    : config.breakDuration)});
        return;
    case BreakState::Case::onBreak:
        content.eyebrow = translated("Break ends in");
        content.value = Formatters::spelled(engine.breakRemaining());
        content.caption = engine.currentBreakIsLong() ? translated("Stand up and walk it off.")
                                                      : translated("Look 20 feet away.");
        return;
    case BreakState::Case::paused:
        content.eyebrow = translated("Paused");
        content.value = Formatters::spelled(engine.timeUntilNextBreak());
        content.caption = pausedCaption(*engine.state().reason());
        return;
    case BreakState::Case::idle:
        content.eyebrow = translated("Not running");
        content.value = translated("Not counting");
        content.caption = translated("The timer is stopped.");
        return;
    }
}

std::string cycleTextOf(const BreakEngine& engine) {
    const std::string position = std::to_string(engine.cyclePosition());
    const std::string length = std::to_string(engine.config().longBreakEvery);
    return engine.isNextBreakLong() ? translated("Cycle %1 of %2 · long break next", {position, length})
                                    : translated("Cycle %1 of %2", {position, length});
}

std::array<MenuBarContent::Button, 3> buttonsOf(const BreakEngine& engine) {
    const bool paused = engine.state().is(BreakState::Case::paused);
    const bool canSnooze = engine.canSnooze();
    return {
        {{paused ? translated("Resume") : translated("Pause"), true},
         {canSnooze ? translated("Snooze") : translated("Skip"),
          !paused && (canSnooze || engine.canSkipNextBreak())},
         {engine.state().is(BreakState::Case::onBreak) ? translated("End Break") : translated("Break Now"),
          true}}};
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
