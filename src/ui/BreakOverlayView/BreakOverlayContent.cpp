#include "ui/BreakOverlayView/BreakOverlayContent.hpp"

#include "core/BreakEngine.hpp"
#include "core/DoubleEscapeAction.hpp"
#include "core/EnforcementLevel.hpp"
#include "core/Formatters.hpp"
#include "core/Settings.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

using Control = BreakOverlayControl;

void addSnoozes(std::vector<Control>& controls) {
    for (const SnoozeOption option : snoozeOptions) {
        controls.push_back({Control::Kind::snooze, "+" + pickerLabel(option), spokenLabel(option), option});
    }
}

void addSkip(std::vector<Control>& controls, const BreakEngine& engine, double delay) {
    if (engine.canSkipCurrentBreak()) {
        controls.push_back({Control::Kind::skip, "Skip This Break", "Skip This Break"});
        return;
    }
    const double left = std::max(delay - engine.elapsedInCurrentBreak(), 0.0);
    const std::string text = "Skip in " + Formatters::wholeSeconds(left);
    controls.push_back({Control::Kind::skipWait, text, text});
}

std::vector<Control> overlayControls(const BreakEngine& engine, const Preferences& preferences) {
    std::vector<Control> result;
    if (engine.canSnooze()) {
        addSnoozes(result);
    }
    if (engine.canEndBreakEarly()) {
        result.push_back({Control::Kind::endBreak, "End Break", "End Break"});
    }
    const auto delay = skipDelay(current<EnforcementLevel>(preferences));
    if (delay && Settings::boolean(preferences, "showSkipButton", true)) {
        addSkip(result, engine, *delay);
    }
    return result;
}

std::string noteOfCoverage(const Preferences& preferences, std::int64_t displayCount) {
    const std::string displays = displayCount == 1 ? "1 display" : std::to_string(displayCount) + " displays";
    const std::string note = "covering " + displays + " · ";
    const DoubleEscapeAction action = current<DoubleEscapeAction>(preferences);
    return action == DoubleEscapeAction::nothing ? note + "esc does nothing"
                                                 : note + "esc twice to " + std::string(rawValue(action));
}

void fillLong(BreakOverlayContent& content, const BreakEngine& engine, const Preferences& preferences) {
    const std::int64_t every = engine.config().longBreakEvery;
    content.eyebrow = "Long break · every 4th cycle";
    content.title = "Stand up and walk";
    content.body = "Five minutes. Get water, look out a window, let your eyes refocus.";
    content.cadenceDots = every;
    content.cadenceText = std::to_string(every) + " work intervals since the last long break";
    content.cadenceSkip =
        Settings::boolean(preferences, "showSkipButton", true) && engine.canSkipCurrentBreak();
}

} // namespace

BreakOverlayContent BreakOverlayContent::of(const BreakEngine& engine, const Preferences& preferences,
                                            std::int64_t displayCount) {
    BreakOverlayContent content;
    const double total = engine.currentPhaseTotal();
    content.isLong = engine.currentBreakIsLong();
    content.ringRemaining = total > 0 ? engine.breakRemaining() / total : 0.0;
    content.ringLabel = Formatters::countdown(engine.breakRemaining());
    content.controls = overlayControls(engine, preferences);
    if (content.isLong) {
        fillLong(content, engine, preferences);
        return content;
    }
    content.title = "Look 20 feet away";
    content.body = "Blink slowly. Roll your shoulders. Nothing is being counted as screen time.";
    content.coverageNote = noteOfCoverage(preferences, displayCount);
    return content;
}

} // namespace kestrelfen
