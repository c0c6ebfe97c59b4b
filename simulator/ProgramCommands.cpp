#include "Commands.hpp"
#include "ScenarioError.hpp"
#include "Simulation.hpp"
#include "Values.hpp"

#include <array>
#include <utility>

namespace kestrelfen {

namespace {

void launch(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    simulation.launch();
}

void quit(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    simulation.quit();
}

void kill(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    simulation.kill();
}

void finishOnboarding(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    simulation.program().delegate().finishOnboarding();
}

constexpr std::array<std::string_view, 2> windowNames{"main", "settings"};

void closeWindow(Simulation& simulation, Arguments& arguments) {
    const std::string_view window = takeOneOf(windowNames, arguments);
    arguments.end();
    simulation.program();
    if (!simulation.scenes().close(window == "main" ? Scene::main : Scene::settings)) {
        notAvailable();
    }
}

void chooseTab(Simulation& simulation, Arguments& arguments) {
    const std::string& name = arguments.take("NAME");
    arguments.end();
    const auto tab = fromRawValue<MainTab>(name);
    if (!tab) {
        throw ScenarioError(quoted(name) + " is no tab");
    }
    simulation.program().delegate().router().setMainTab(*tab);
}

void choosePane(Simulation& simulation, Arguments& arguments) {
    const std::string& name = arguments.take("NAME");
    arguments.end();
    const auto pane = fromRawValue<SettingsPane>(name);
    if (!pane) {
        throw ScenarioError(quoted(name) + " is no pane");
    }
    simulation.program().delegate().router().setSettingsPane(*pane);
}

using Operation = void (*)(BreakEngine&, Date);

constexpr std::array<std::pair<std::string_view, Operation>, 6> operations{{
    {"pause", [](BreakEngine& engine, Date) { engine.pause(PauseReason::manual); }},
    {"resume", [](BreakEngine& engine, Date now) { engine.resume(now); }},
    {"skip-break", [](BreakEngine& engine, Date) { engine.skipCurrentBreak(); }},
    {"skip-next", [](BreakEngine& engine, Date) { engine.skipNextBreak(); }},
    {"dismiss-warning", [](BreakEngine& engine, Date) { engine.dismissPreBreakWarning(); }},
    {"begin-break", [](BreakEngine& engine, Date now) { engine.beginBreak(now); }},
}};

using TimedOperation = void (*)(BreakEngine&, double, Date);

constexpr std::array<std::pair<std::string_view, TimedOperation>, 3> timedOperations{{
    {"pause-for", [](BreakEngine& engine, double seconds, Date now) { engine.pauseFor(seconds, now); }},
    {"snooze", [](BreakEngine& engine, double seconds, Date now) { engine.snooze(seconds, now); }},
    {"postpone",
     [](BreakEngine& engine, double seconds, Date now) { engine.postponeNextBreak(seconds, now); }},
}};

void perform(Simulation& simulation, Arguments& arguments) {
    const std::string name = arguments.take("the operation");
    const Date now = simulation.world().clock.now();
    for (const auto& [known, operation] : operations) {
        if (known == name) {
            arguments.end();
            operation(simulation.program().engine(), now);
            return;
        }
    }
    for (const auto& [known, operation] : timedOperations) {
        if (known == name) {
            const double seconds = secondsOf(arguments.take("SECONDS"));
            arguments.end();
            operation(simulation.program().engine(), seconds, now);
            return;
        }
    }
    throw ScenarioError(quoted(name) + " is no operation");
}

FormList operationForms() {
    return joined({firstWordForms(operations), firstWordForms(timedOperations)});
}

constexpr std::array<NamedCommand, 8> commands{{{"launch", launch},
                                                {"quit", quit},
                                                {"kill", kill},
                                                {"finish-onboarding", finishOnboarding},
                                                {"close", closeWindow, [] { return formsOf(windowNames); }},
                                                {"tab", chooseTab, rawValueForms<MainTab>},
                                                {"pane", choosePane, rawValueForms<SettingsPane>},
                                                {"do", perform, operationForms}}};

} // namespace

Commands programCommands() {
    return commands;
}

} // namespace kestrelfen
