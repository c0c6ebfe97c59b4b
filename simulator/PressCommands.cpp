#include "Commands.hpp"
#include "Json.hpp"
#include "Output.hpp"
#include "ScenarioError.hpp"
#include "Simulation.hpp"
#include "Values.hpp"
#include "ui/BreakOverlayView/BreakOverlayContent.hpp"
#include "ui/PreBreakWarningView/PreBreakWarningActions.hpp"
#include "ui/PreBreakWarningView/PreBreakWarningContent.hpp"

#include <algorithm>
#include <array>

namespace kestrelfen {

namespace {

SnoozeOption takeSnooze(Arguments& arguments) {
    const std::string& word = arguments.take("1, 3 or 5");
    const auto option = snoozeOption(integerOf(word));
    if (!option) {
        throw ScenarioError(quoted(word) + " is not 1, 3 or 5");
    }
    return *option;
}

template <typename Controls, typename Kind>
bool offers(const Controls& controls, Kind kind) {
    return std::any_of(controls.begin(), controls.end(),
                       [kind](const auto& control) { return control.kind == kind; });
}

void pressOverlay(Simulation& simulation, Arguments& arguments) {
    using Kind = BreakOverlayControl::Kind;
    const std::string name = arguments.take("the control");
    if (name != "snooze" && name != "end" && name != "skip") {
        throw ScenarioError(quoted(name) + " is no control of the overlay");
    }
    const auto option = name == "snooze" ? std::optional(takeSnooze(arguments)) : std::nullopt;
    arguments.end();
    SimulatedProgram& program = simulation.program();
    SimulatedBreakWindow* const overlay = program.firstOverlay();
    if (!overlay) {
        notAvailable();
        return;
    }
    const auto content = BreakOverlayContent::of(program.engine(), simulation.world().preferences,
                                                 simulation.world().displays.count());
    const Kind kind = option ? Kind::snooze : name == "end" ? Kind::endBreak : Kind::skip;
    if (!offers(content.controls, kind)) {
        notAvailable();
    } else if (option) {
        overlay->actions().snooze(*option);
    } else if (kind == Kind::endBreak) {
        overlay->actions().endBreak();
    } else {
        overlay->actions().skip();
    }
}

void pressWarning(Simulation& simulation, Arguments& arguments) {
    using Kind = PreBreakWarningControl::Kind;
    const std::string name = arguments.take("the control");
    if (name != "snooze" && name != "dismiss" && name != "start") {
        throw ScenarioError(quoted(name) + " is no control of the warning");
    }
    const auto option = name == "snooze" ? std::optional(takeSnooze(arguments)) : std::nullopt;
    arguments.end();
    SimulatedProgram& program = simulation.program();
    const Kind kind = option ? Kind::snooze : name == "dismiss" ? Kind::dismiss : Kind::startNow;
    if (!program.isWarningShown() || !offers(PreBreakWarningContent::of(program.engine()).controls, kind)) {
        notAvailable();
        return;
    }
    PreBreakWarningActions actions(program.engine(), simulation.world().ports());
    if (option) {
        actions.snooze(*option);
    } else if (kind == Kind::dismiss) {
        actions.dismiss();
    } else {
        actions.startNow();
    }
}

void press(Simulation& simulation, Arguments& arguments) {
    const std::string view = arguments.take("the view");
    if (view == "overlay") {
        pressOverlay(simulation, arguments);
    } else if (view == "warning") {
        pressWarning(simulation, arguments);
    } else if (view == "popover") {
        pressPopover(simulation, arguments);
    } else if (view == "dashboard") {
        pressDashboard(simulation, arguments);
    } else if (view == "onboarding") {
        pressOnboarding(simulation, arguments);
    } else {
        throw ScenarioError(quoted(view) + " has no controls");
    }
}

void escape(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    if (SimulatedBreakWindow* const overlay = simulation.program().firstOverlay()) {
        overlay->actions().escape();
    } else {
        notAvailable();
    }
}

constexpr std::array<NamedCommand, 2> commands{{{"press", press}, {"escape", escape}}};

} // namespace

void notAvailable() {
    Output::line(lineOf({{"note", "not available"}}));
}

Command pressCommand(std::string_view name) {
    return commandNamed(commands, name);
}

} // namespace kestrelfen
