#include "Commands.hpp"
#include "Readers.hpp"
#include "ScenarioError.hpp"
#include "Simulation.hpp"
#include "Values.hpp"
#include "ui/MenuBarView/ActiveTask.hpp"
#include "ui/MenuBarView/MenuBarActions.hpp"
#include "ui/MenuBarView/MenuBarContent.hpp"
#include "ui/MenuBarView/MenuBarFooter.hpp"

namespace kestrelfen {

namespace {

/// The popover as if first shown: it has loaded, and is gone when what was done in it has ended.
template <typename Action>
void withPopover(Simulation& simulation, Action action) {
    SimulatedProgram& program = simulation.program();
    ActiveTask task(simulation.world().ports(), program.engine(), program.store());
    task.load();
    simulation.settle();
    action(MenuBarContent::of(program.engine(), program.screenTime().todayActiveSeconds(), task.task()));
    simulation.settle();
}

Json buttonsOf(const MenuBarContent& content) {
    Json buttons = Json::array();
    for (const auto& button : content.buttons) {
        buttons.push_back(Json{{"label", button.label}, {"enabled", button.enabled}});
    }
    return buttons;
}

Json objectOf(const MenuBarContent& content) {
    const auto& task = content.activeTask;
    return {{"eyebrow", content.eyebrow},
            {"value", content.value},
            {"caption", content.caption},
            {"cycleText", content.cycleText},
            {"ringRemaining", content.ringRemaining},
            {"ringLabel", content.ringLabel},
            {"buttons", buttonsOf(content)},
            {"breaks", content.breaks},
            {"completionRate", content.completionRate},
            {"screenTime", content.screenTime},
            {"skipped", content.skipped},
            {"activeTask", task ? Json(task->title) : Json(nullptr)},
            {"credits", task ? Json(task->credits) : Json(nullptr)}};
}

Json popoverReading(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    Json json;
    withPopover(simulation, [&json](const MenuBarContent& content) { json = objectOf(content); });
    return json;
}

void go(Simulation& simulation, Arguments& arguments) {
    const std::string& name = arguments.take("ITEM");
    arguments.end();
    const auto item = fromRawValue<FooterItem>(name);
    if (!item) {
        throw ScenarioError(quoted(name) + " is no item of the popover");
    }
    bool quits = false;
    withPopover(simulation, [&](const MenuBarContent&) {
        MenuBarFooter(simulation.program().delegate().router(), simulation.scenes(), [&quits] {
            quits = true;
        }).perform(*item);
    });
    if (quits) {
        simulation.quit();
    }
}

using Click = void (MenuBarActions::*)();

constexpr std::array<Click, 3> clicks{&MenuBarActions::pauseOrResume, &MenuBarActions::snoozeOrSkip,
                                      &MenuBarActions::breakNowOrEnd};

constexpr std::array<NamedCommand, 1> commands{{{"go", go, rawValueForms<FooterItem>}}};
constexpr std::array<NamedReader, 1> readers{{{"popover", popoverReading}}};

} // namespace

void pressPopover(Simulation& simulation, Arguments& arguments) {
    const std::string& word = arguments.take("1, 2 or 3");
    arguments.end();
    const std::int64_t number = integerOf(word);
    if (number < 1 || number > 3) {
        throw ScenarioError(quoted(word) + " is not 1, 2 or 3");
    }
    const auto index = static_cast<std::size_t>(number - 1);
    withPopover(simulation, [&](const MenuBarContent& content) {
        if (content.buttons.at(index).enabled) {
            MenuBarActions actions(simulation.program().engine(), simulation.world().ports());
            (actions.*clicks.at(index))();
        } else {
            notAvailable();
        }
    });
}

Commands popoverCommands() {
    return commands;
}

Readers popoverReaders() {
    return readers;
}

} // namespace kestrelfen
