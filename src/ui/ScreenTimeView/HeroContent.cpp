#include "ui/ScreenTimeView/HeroContent.hpp"

#include "base/Translated.hpp"
#include "core/BreakEngine.hpp"
#include "core/Formatters.hpp"
#include "platform/ports/TimeFormat.hpp"
#include "ui/MenuBarView/PausedCaption.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

using Phase = BreakState::Case;

std::string nextBreakHeadline(const BreakEngine& engine, const TimeFormat& timeFormat) {
    const auto due = engine.nextBreakAt();
    if (!due) {
        return translated("Next break scheduled");
    }
    const std::string time = timeFormat.shortTime(*due);
    return engine.isNextBreakLong() ? translated("Long break at %1", {time})
                                    : translated("Short break at %1", {time});
}

std::string nextBreakSubhead(const BreakEngine& engine) {
    return translated("%1 seconds, look 20 feet away. Held back during calls, video and idle time.",
                      {Formatters::wholeSeconds(engine.config().breakDuration)});
}

/// No caption is the one word that would make a pause without an end wait for the person.
std::string pausedSubhead(const BreakEngine& engine, const TimeFormat& timeFormat,
                          const std::string& caption) {
    if (const auto until = engine.pausedUntil()) {
        return translated("Resumes at %1", {timeFormat.shortTime(*until)});
    }
    return caption == translated("Paused") ? translated("Resume when you are ready.")
                                           : translated("Resumes on its own.");
}

void fillTexts(HeroContent& content, const BreakEngine& engine, const TimeFormat& timeFormat) {
    switch (engine.state().phase()) {
    case Phase::working:
    case Phase::preBreakWarning:
        content.ringCaption = translated("to next break");
        content.headline = nextBreakHeadline(engine, timeFormat);
        content.subhead = nextBreakSubhead(engine);
        return;
    case Phase::onBreak:
        content.ringCaption = translated("of this break");
        content.headline = engine.currentBreakIsLong() ? translated("Long break in progress")
                                                       : translated("Break in progress");
        content.subhead = translated("Look about twenty feet away until the ring runs out.");
        return;
    case Phase::paused:
        content.ringCaption = translated("paused");
        content.headline = pausedCaption(*engine.state().reason());
        content.subhead = pausedSubhead(engine, timeFormat, content.headline);
        return;
    case Phase::idle:
        content.ringCaption = translated("not running");
        content.headline = translated("Timer is not running");
        content.subhead = translated("Start the timer from the menu bar.");
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
    return {{{engine.state().is(Phase::onBreak) ? translated("End Break") : translated("Break Now"), true},
             {translated("Postpone 5m"), engine.canPostpone()},
             {engine.state().is(Phase::paused) ? translated("Resume") : translated("Pause 1h"), true}}};
}

std::array<HeroContent::Stat, 5> statsOf(const BreakEngine& engine, const HeroContent::Facts& facts) {
    return {{{Formatters::activeTime(currentStretch(engine)), translated("current stretch")},
             {Formatters::activeTime(facts.longestStretch), translated("longest today")},
             {Formatters::activeTime(facts.activeSeconds), translated("screen time")},
             {Formatters::activeTime(facts.pausedSeconds), translated("paused away")},
             {translatedCount(facts.streak, "%1 day", "%1 days"), translated("streak"),
              facts.streak >= 1 ? "accent" : "ink"}}};
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
