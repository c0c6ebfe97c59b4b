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

constexpr std::array<std::string_view, 3> overlayControls{"snooze", "end", "skip"};
constexpr std::array<std::string_view, 3> warningControls{"snooze", "dismiss", "start"};

std::string takeControl(std::span<const std::string_view> known, const char* view, Arguments& arguments) {
    const std::string& name = arguments.take("the control");
    if (std::find(known.begin(), known.end(), name) == known.end()) {
        throw ScenarioError(quoted(name) + " is no control of the " + view);
    }
    return name;
}

FormList formsOfControls(std::span<const std::string_view> controls) {
    FormList forms;
    for (const std::string_view control : controls) {
        forms.emplace_back(control);
    }
    for (const SnoozeOption option : snoozeOptions) {
        forms.push_back("snooze " + std::to_string(minutes(option)));
    }
    return forms;
}

void pressOverlay(Simulation& simulation, Arguments& arguments) {
    using Kind = BreakOverlayControl::Kind;
    const std::string name = takeControl(overlayControls, "overlay", arguments);
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
    const std::string name = takeControl(warningControls, "warning", arguments);
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

FormList threeButtons() {
    return {"1", "2", "3"};
}

constexpr std::array<NamedCommand, 5> views{
    {{"overlay", pressOverlay, [] { return formsOfControls(overlayControls); }},
     {"warning", pressWarning, [] { return formsOfControls(warningControls); }},
     {"popover", pressPopover, threeButtons},
     {"dashboard", pressDashboard, threeButtons},
     {"onboarding", pressOnboarding, onboardingControlForms}}};

void press(Simulation& simulation, Arguments& arguments) {
    const std::string view = arguments.take("the view");
    for (const auto& [name, pressIt, forms] : views) {
        if (name == view) {
            pressIt(simulation, arguments);
            return;
        }
    }
    throw ScenarioError(quoted(view) + " has no controls");
}

void escape(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    if (SimulatedBreakWindow* const overlay = simulation.program().firstOverlay()) {
        overlay->actions().escape();
    } else {
        notAvailable();
    }
}

constexpr std::array<NamedCommand, 2> commands{
    {{"press", press, [] { return formsOfAll(views); }}, {"escape", escape}}};

} // namespace

void notAvailable() {
    Output::line(lineOf({{"note", "not available"}}));
}

Commands pressCommands() {
    return commands;
}

} // namespace kestrelfen
