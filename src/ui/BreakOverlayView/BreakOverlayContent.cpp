#include "ui/BreakOverlayView/BreakOverlayContent.hpp"

#include "base/Translated.hpp"
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
        controls.push_back(
            {Control::Kind::skip, translated("Skip This Break"), translated("Skip This Break")});
        return;
    }
    const double left = std::max(delay - engine.elapsedInCurrentBreak(), 0.0);
    const std::string text = translated("Skip in %1", {Formatters::wholeSeconds(left)});
    controls.push_back({Control::Kind::skipWait, text, text});
}

std::vector<Control> overlayControls(const BreakEngine& engine, const Preferences& preferences) {
    std::vector<Control> result;
    if (engine.canSnooze()) {
        addSnoozes(result);
    }
    if (engine.canEndBreakEarly()) {
        result.push_back({Control::Kind::endBreak, translated("End Break"), translated("End Break")});
    }
    const auto delay = skipDelay(current<EnforcementLevel>(preferences));
    if (delay && Settings::boolean(preferences, "showSkipButton", true)) {
        addSkip(result, engine, *delay);
    }
    return result;
}

std::string noteOfEscape(DoubleEscapeAction action) {
    switch (action) {
    case DoubleEscapeAction::nothing:
        return translated("esc does nothing");
    case DoubleEscapeAction::snooze:
        return translated("esc twice to snooze");
    case DoubleEscapeAction::skip:
        return translated("esc twice to skip");
    }
    return {};
}

std::string noteOfCoverage(const Preferences& preferences, std::int64_t displayCount) {
    return translatedCount(displayCount, "covering %1 display", "covering %1 displays") + " · " +
           noteOfEscape(current<DoubleEscapeAction>(preferences));
}

void fillLong(BreakOverlayContent& content, const BreakEngine& engine, const Preferences& preferences) {
    const std::int64_t every = engine.config().longBreakEvery;
    content.eyebrow = translated("Long break · every 4th cycle");
    content.title = translated("Stand up and walk");
    content.body = translated("Five minutes. Get water, look out a window, let your eyes refocus.");
    content.cadenceDots = every;
    content.cadenceText = translated("%1 work intervals since the last long break", {std::to_string(every)});
    content.cadenceSkip =
        Settings::boolean(preferences, "showSkipButton", true) && engine.canSkipCurrentBreak();
    content.cadenceSkipText = translated("Skip");
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
    content.title = translated("Look 20 feet away");
    content.body = translated("Blink slowly. Roll your shoulders. Nothing is being counted as screen time.");
    content.coverageNote = noteOfCoverage(preferences, displayCount);
    return content;
}

} // namespace kestrelfen
