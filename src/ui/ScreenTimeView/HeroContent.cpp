#include "ui/ScreenTimeView/HeroContent.hpp"

#include "core/BreakEngine.hpp"
#include "core/Formatters.hpp"
#include "platform/ports/TimeFormat.hpp"
#include "ui/MenuBarView/PausedCaption.hpp"
#include "ui/Plural.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

using Phase = BreakState::Case;

std::string nextBreakHeadline(const BreakEngine& engine, const TimeFormat& timeFormat) {
    const auto due = engine.nextBreakAt();
    if (!due) {
        return "Next break scheduled";
    }
    return (engine.isNextBreakLong() ? "Long break at " : "Short break at ") + timeFormat.shortTime(*due);
}

std::string nextBreakSubhead(const BreakEngine& engine) {
    return Formatters::wholeSeconds(engine.config().breakDuration) +
           " seconds, look 20 feet away. Held back during calls, video and idle time.";
}

/// No caption is the one word that would make a pause without an end wait for the person.
std::string pausedSubhead(const BreakEngine& engine, const TimeFormat& timeFormat,
                          const std::string& caption) {
    if (const auto until = engine.pausedUntil()) {
        return "Resumes at " + timeFormat.shortTime(*until);
    }
    return caption == "Paused" ? "Resume when you are ready." : "Resumes on its own.";
}

void fillTexts(HeroContent& content, const BreakEngine& engine, const TimeFormat& timeFormat) {
    switch (engine.state().phase()) {
    case Phase::working:
    case Phase::preBreakWarning:
        content.ringCaption = "to next break";
        content.headline = nextBreakHeadline(engine, timeFormat);
        content.subhead = nextBreakSubhead(engine);
        return;
    case Phase::onBreak:
        content.ringCaption = "of this break";
        content.headline = engine.currentBreakIsLong() ? "Long break in progress" : "Break in progress";
        content.subhead = "Look about twenty feet away until the ring runs out.";
        return;
    case Phase::paused:
        content.ringCaption = "paused";
        content.headline = pausedCaption(*engine.state().reason());
        content.subhead = pausedSubhead(engine, timeFormat, content.headline);
        return;
    case Phase::idle:
        content.ringCaption = "not running";
        content.headline = "Timer is not running";
        content.subhead = "Start the timer from the menu bar.";
        return;
    }
}

bool stands(const BreakEngine& engine) {
    return engine.state().is(Phase::paused) || engine.state().is(Phase::idle);
}

double currentStretch(const BreakEngine& engine) {
    if (stands(engine) || engine.state().is(Phase::onBreak)) {
        return 0;
    }
    return std::max(engine.config().workInterval - engine.timeUntilNextBreak(), 0.0);
}

std::array<HeroContent::Button, 3> buttonsOf(const BreakEngine& engine) {
    return {{{engine.state().is(Phase::onBreak) ? "End Break" : "Break Now", true},
             {"Postpone 5m", engine.canPostpone()},
             {engine.state().is(Phase::paused) ? "Resume" : "Pause 1h", true}}};
}

std::array<HeroContent::Stat, 5> statsOf(const BreakEngine& engine, const HeroContent::Facts& facts) {
    return {{{Formatters::activeTime(currentStretch(engine)), "current stretch"},
             {Formatters::activeTime(facts.longestStretch), "longest today"},
             {Formatters::activeTime(facts.activeSeconds), "screen time"},
             {Formatters::activeTime(facts.pausedSeconds), "paused away"},
             {counted(facts.streak, "day"), "streak", facts.streak >= 1 ? "accent" : "ink"}}};
}

} // namespace

HeroContent HeroContent::of(const BreakEngine& engine, const TimeFormat& timeFormat, const Facts& facts) {
    HeroContent content;
    content.ringRemaining = stands(engine) ? 1.0 : 1.0 - engine.phaseProgress();
    content.ringLabel = Formatters::countdown(
        engine.state().is(Phase::onBreak) ? engine.breakRemaining() : engine.timeUntilNextBreak());
    fillTexts(content, engine, timeFormat);
    content.buttons = buttonsOf(engine);
    content.stats = statsOf(engine, facts);
    return content;
}

} // namespace kestrelfen
