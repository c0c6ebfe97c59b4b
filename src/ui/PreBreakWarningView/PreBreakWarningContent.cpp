#include "ui/PreBreakWarningView/PreBreakWarningContent.hpp"

#include "base/Translated.hpp"
#include "core/BreakEngine.hpp"
#include "core/WholeSeconds.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

using Control = PreBreakWarningControl;

std::vector<Control> warningControls(bool canSnooze) {
    std::vector<Control> result{{Control::Kind::dismiss, translated("Dismiss"), translated("Dismiss")}};
    if (canSnooze) {
        for (const SnoozeOption option : snoozeOptions) {
            result.push_back(
                {Control::Kind::snooze, "+" + std::to_string(minutes(option)), spokenLabel(option), option});
        }
    }
    result.push_back({Control::Kind::startNow, translated("Start Now"), translated("Start Now")});
    return result;
}

} // namespace

PreBreakWarningContent PreBreakWarningContent::of(const BreakEngine& engine) {
    const double left = engine.timeUntilNextBreak();
    const double lead = engine.config().preBreakWarningLead;
    const bool canSnooze = engine.canSnooze();
    PreBreakWarningContent content;
    content.counter = WholeSeconds::roundedUp(left);
    content.title = translated("Break in %1 seconds", {std::to_string(content.counter)});
    content.caption = translated("Find a stopping point. Dismissing keeps the break.");
    content.fraction = lead > 0 ? std::clamp(1.0 - left / lead, 0.0, 1.0) : 1.0;
    content.controls = warningControls(canSnooze);
    if (canSnooze) {
        content.hint = translated("Snooze: +1, +3 or +5 minutes");
    }
    return content;
}

} // namespace kestrelfen
