#include "ui/MainWindowView/MainWindowContent.hpp"

#include "core/BreakEngine.hpp"
#include "core/Formatters.hpp"
#include "core/Settings.hpp"

namespace kestrelfen {

namespace {

std::string metaOf(const BreakEngine& engine) {
    switch (engine.state().phase()) {
    case BreakState::Case::working:
    case BreakState::Case::preBreakWarning:
        return "next break " + Formatters::countdown(engine.timeUntilNextBreak());
    case BreakState::Case::onBreak:
        return "on break " + Formatters::countdown(engine.breakRemaining());
    case BreakState::Case::paused:
        return std::string(rawValue(*engine.state().reason()));
    case BreakState::Case::idle:
        return "idle";
    }
    return {};
}

} // namespace

MainWindowContent MainWindowContent::of(const BreakEngine& engine, const Preferences& preferences) {
    return {.showsOnboarding = !Settings::boolean(preferences, "hasCompletedOnboarding", false),
            .meta = metaOf(engine)};
}

std::string_view mainTabLabel(MainTab tab) {
    switch (tab) {
    case MainTab::screenTime:
        return "Screen Time";
    case MainTab::breaks:
        return "Breaks";
    case MainTab::tasks:
        return "Tasks";
    }
    return {};
}

} // namespace kestrelfen
