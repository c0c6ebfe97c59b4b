#include "Commands.hpp"
#include "ScenarioError.hpp"
#include "Simulation.hpp"
#include "Values.hpp"

#include <array>
#include <utility>

namespace kestrelfen {

namespace {

constexpr std::int64_t mostDisplays = 1'000;
constexpr std::array<std::string_view, 3> inputKinds{"active", "away", "age"};
constexpr std::array<std::string_view, 2> focusWords{"active", "inactive"};
constexpr std::array<std::string_view, 3> lockAnswers{"ok", "missing", "failing"};

PreferenceDictionary takeDictionary(Arguments& arguments) {
    PreferenceDictionary dictionary;
    while (!arguments.empty()) {
        const std::string key = arguments.take("KEY");
        dictionary[key] = arguments.take("VALUE");
    }
    return dictionary;
}

PreferenceValue takeStrings(Arguments& arguments) {
    return arguments.takeRest();
}

template <auto valueOf>
PreferenceValue takeSingle(Arguments& arguments) {
    const std::string& word = arguments.take("VALUE");
    arguments.end();
    return valueOf(word);
}

std::string textOf(const std::string& word) {
    return word;
}

using TakePreference = PreferenceValue (*)(Arguments&);

constexpr std::array<std::pair<std::string_view, TakePreference>, 7> preferenceTypes{
    {{"bool", takeSingle<booleanOf>},
     {"int", takeSingle<integerOf>},
     {"double", takeSingle<realOf>},
     {"string", takeSingle<textOf>},
     {"date", takeSingle<dateOf>},
     {"strings", takeStrings},
     {"dict", [](Arguments& arguments) { return PreferenceValue(takeDictionary(arguments)); }}}};

PreferenceValue takePreference(Arguments& arguments) {
    const std::string type = arguments.take("TYPE");
    for (const auto& [name, takeValue] : preferenceTypes) {
        if (name == type) {
            return takeValue(arguments);
        }
    }
    throw ScenarioError(quoted(type) + " is no type of a preference");
}

void pref(Simulation& simulation, Arguments& arguments) {
    const std::string key = arguments.take("KEY");
    simulation.world().preferences.set(key, takePreference(arguments));
}

void unpref(Simulation& simulation, Arguments& arguments) {
    const std::string& key = arguments.take("KEY");
    arguments.end();
    simulation.world().preferences.remove(key);
}

void input(Simulation& simulation, Arguments& arguments) {
    FakeInputIdle& idle = simulation.world().inputIdle;
    const std::string_view kind = takeOneOf(inputKinds, arguments);
    if (kind == "age") {
        const std::string& word = arguments.take("SECONDS");
        const double age = secondsOf(word);
        arguments.end();
        if (age < 0) {
            throw ScenarioError(quoted(word) + " is negative");
        }
        idle.setAge(age);
        return;
    }
    arguments.end();
    kind == "active" ? idle.setActive() : idle.setAway();
}

void displays(Simulation& simulation, Arguments& arguments) {
    const std::string& word = arguments.take("N");
    const std::int64_t count = integerOf(word);
    arguments.end();
    if (count < 0 || count > mostDisplays) {
        throw ScenarioError(quoted(word) + " is no number of displays from 0 to " +
                            std::to_string(mostDisplays));
    }
    simulation.world().displays.setCount(count);
}

void program(Simulation& simulation, Arguments& arguments) {
    const std::string_view word = takeOneOf(focusWords, arguments);
    arguments.end();
    simulation.world().programFocus.setActive(word == "active");
}

void signal(Simulation& simulation, Arguments& arguments) {
    const std::string& name = arguments.take("NAME");
    arguments.end();
    const auto systemSignal = fromRawValue<SystemSignal>(name);
    if (!systemSignal) {
        throw ScenarioError(quoted(name) + " is no signal");
    }
    simulation.world().systemSignals.send(*systemSignal);
}

void lock(Simulation& simulation, Arguments& arguments) {
    using Outcome = SessionLockResult::Outcome;
    const std::string_view word = takeOneOf(lockAnswers, arguments);
    SessionLockResult result{Outcome::started};
    if (word == "failing") {
        result = {Outcome::failed, arguments.take("TEXT")};
    } else if (word == "missing") {
        result = {Outcome::missing};
    }
    arguments.end();
    simulation.world().sessionLock.setResult(result);
}

constexpr std::array<NamedCommand, 7> commands{
    {{"pref", pref, [] { return formsBehind("*", firstWordForms(preferenceTypes)); }},
     {"unpref", unpref},
     {"input", input, [] { return formsOf(inputKinds); }},
     {"displays", displays},
     {"program", program, [] { return formsOf(focusWords); }},
     {"signal", signal, rawValueForms<SystemSignal>},
     {"lock", lock, [] { return formsOf(lockAnswers); }}}};

} // namespace

Commands worldCommands() {
    return commands;
}

} // namespace kestrelfen
