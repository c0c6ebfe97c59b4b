#include "ui/MenuBarView/StatusItemContent.hpp"

#include "base/Translated.hpp"
#include "core/BreakEngine.hpp"

namespace kestrelfen {

namespace {

std::string_view symbolOf(BreakState::Case phase) {
    switch (phase) {
    case BreakState::Case::working:
        return "eye";
    case BreakState::Case::preBreakWarning:
        return "eye.trianglebadge.exclamationmark";
    case BreakState::Case::onBreak:
        return "eye.slash";
    case BreakState::Case::paused:
        return "pause.circle";
    case BreakState::Case::idle:
        return "eye";
    }
    return "eye";
}

std::string tooltipOf(BreakState::Case phase, const std::string& text) {
    switch (phase) {
    case BreakState::Case::working:
    case BreakState::Case::preBreakWarning:
        return translated("Next break in %1", {text});
    case BreakState::Case::onBreak:
        return translated("Break ends in %1", {text});
    case BreakState::Case::paused:
        return translated("Paused, %1 left", {text});
    case BreakState::Case::idle:
        break;
    }
    return translated("Not running");
}

} // namespace

StatusItemContent StatusItemContent::of(const BreakEngine& engine) {
    const std::string text = engine.menuBarText();
    const BreakState::Case phase = engine.state().phase();
    return {symbolOf(phase), text, tooltipOf(phase, text)};
}

} // namespace kestrelfen
