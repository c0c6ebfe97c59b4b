#include "ui/MainWindowView/MainWindowContent.hpp"

#include "base/Translated.hpp"
#include "core/BreakEngine.hpp"
#include "core/Formatters.hpp"
#include "core/Settings.hpp"

namespace kestrelfen {

namespace {

std::string metaOf(const BreakEngine& engine) {
    switch (engine.state().phase()) {
    case BreakState::Case::working:
    case BreakState::Case::preBreakWarning:
        return translated("next break %1", {Formatters::countdown(engine.timeUntilNextBreak())});
    case BreakState::Case::onBreak:
        return translated("on break %1", {Formatters::countdown(engine.breakRemaining())});
    case BreakState::Case::paused:
        return translated(rawValue(*engine.state().reason()));
    case BreakState::Case::idle:
        return translated("idle");
    }
    return {};
}

} // namespace

MainWindowContent MainWindowContent::of(const BreakEngine& engine, const Preferences& preferences) {
    return {.showsOnboarding = !Settings::boolean(preferences, "hasCompletedOnboarding", false),
            .meta = metaOf(engine)};
}

std::string mainTabLabel(MainTab tab) {
    switch (tab) {
    case MainTab::screenTime:
        return translated("Screen Time");
    case MainTab::breaks:
        return translated("Breaks");
    case MainTab::tasks:
        return translated("Tasks");
    }
    return {};
}

} // namespace kestrelfen
