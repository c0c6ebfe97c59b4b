#include "Commands.hpp"
#include "ScenarioError.hpp"
#include "Simulation.hpp"
#include "Values.hpp"
#include "ui/TasksView/TaskList.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace kestrelfen {

namespace {

constexpr std::array<std::string_view, 4> storeStates{"broken", "ok", "failing", "working"};

void store(Simulation& simulation, Arguments& arguments) {
    const std::string_view word = takeOneOf(storeStates, arguments);
    if (word == "ok" || word == "working") {
        arguments.end();
        word == "ok" ? simulation.store().setBroken({}) : simulation.store().setFailing({});
        return;
    }
    const std::string text = arguments.empty() ? "failed" : arguments.take("TEXT");
    arguments.end();
    word == "broken" ? simulation.store().setBroken(text) : simulation.store().setFailing(text);
}

/// The task list as if first shown: it has loaded, and is gone when what was done to it has ended.
template <typename Action>
void withTaskList(Simulation& simulation, Action action) {
    SimulatedProgram& program = simulation.program();
    TaskList list(simulation.world().ports(), program.engine(), program.store());
    list.load();
    simulation.settle();
    action(list);
    simulation.settle();
}

void addTask(Simulation& simulation, Arguments& arguments) {
    const std::string title = arguments.take("TITLE");
    arguments.end();
    withTaskList(simulation, [&](TaskList& list) {
        list.setNewTitle(title);
        list.add();
    });
}

using TaskAction = void (*)(TaskList&, const TaskSummary&);

void onFirstTask(Simulation& simulation, const std::string& title, bool onlyOpen, TaskAction action) {
    withTaskList(simulation, [&](TaskList& list) {
        const auto found = std::find_if(list.tasks().begin(), list.tasks().end(),
                                        [&](const TaskSummary& task) { return task.title == title; });
        if (found == list.tasks().end() || (onlyOpen && found->completedAt)) {
            notAvailable();
        } else {
            action(list, TaskSummary(*found));
        }
    });
}

void clearCompletedTasks(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    withTaskList(simulation, [](TaskList& list) {
        if (list.completedCount() == 0) {
            notAvailable();
            return;
        }
        list.setConfirmClearCompleted(true);
        list.confirmClearing();
    });
}

void deleteTask(TaskList& list, const TaskSummary& task) {
    list.setPendingDeletion(task);
    list.confirmDeletion();
}

struct TitledAction {
    std::string_view name;
    bool onlyOpen;
    TaskAction action;
};

using UntitledAction = void (*)(Simulation&, Arguments&);

constexpr std::array<std::pair<std::string_view, UntitledAction>, 2> otherTaskActions{
    {{"add", addTask}, {"clear-completed", clearCompletedTasks}}};

constexpr std::array<TitledAction, 3> titledActions{{
    {"activate", true, [](TaskList& list, const TaskSummary& task) { list.setActive(task); }},
    {"toggle", false, [](TaskList& list, const TaskSummary& task) { list.toggle(task); }},
    {"delete", false, deleteTask},
}};

void task(Simulation& simulation, Arguments& arguments) {
    const std::string word = arguments.take("the action");
    for (const auto& [name, action] : otherTaskActions) {
        if (name == word) {
            action(simulation, arguments);
            return;
        }
    }
    for (const auto& [name, onlyOpen, action] : titledActions) {
        if (name == word) {
            const std::string title = arguments.take("TITLE");
            arguments.end();
            onFirstTask(simulation, title, onlyOpen, action);
            return;
        }
    }
    throw ScenarioError(quoted(word) + " is nothing to do with a task");
}

void exportHistory(Simulation& simulation, Arguments& arguments) {
    const std::string file = arguments.take("FILE");
    arguments.end();
    HistoryDataActions& data = simulation.program().historyData();
    if (data.areAvailable()) {
        data.exportCSV(file);
    } else {
        notAvailable();
    }
}

void deleteAllHistory(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    HistoryDataActions& data = simulation.program().historyData();
    if (data.areAvailable()) {
        data.deleteAllHistory();
    } else {
        notAvailable();
    }
}

FormList taskForms() {
    FormList forms = firstWordForms(otherTaskActions);
    for (const TitledAction& action : titledActions) {
        forms.emplace_back(action.name);
    }
    return forms;
}

constexpr std::array<NamedCommand, 4> commands{{{"store", store, [] { return formsOf(storeStates); }},
                                                {"task", task, taskForms},
                                                {"export", exportHistory},
                                                {"delete-all-history", deleteAllHistory}}};

} // namespace

Commands historyCommands() {
    return commands;
}

} // namespace kestrelfen
