#include "Commands.hpp"
#include "ScenarioError.hpp"
#include "Simulation.hpp"
#include "Values.hpp"

#include <array>

namespace kestrelfen {

namespace {

constexpr std::int64_t mostDisplays = 1'000;

PreferenceDictionary takeDictionary(Arguments& arguments) {
    PreferenceDictionary dictionary;
    while (!arguments.empty()) {
        const std::string key = arguments.take("KEY");
        dictionary[key] = arguments.take("VALUE");
    }
    return dictionary;
}

PreferenceValue takePreference(Arguments& arguments) {
    const std::string type = arguments.take("TYPE");
    if (type == "strings") {
        return arguments.takeRest();
    }
    if (type == "dict") {
        return takeDictionary(arguments);
    }
    if (type != "bool" && type != "int" && type != "double" && type != "string" && type != "date") {
        throw ScenarioError(quoted(type) + " is no type of a preference");
    }
    const std::string& word = arguments.take("VALUE");
    arguments.end();
    if (type == "bool") {
        return booleanOf(word);
    }
    if (type == "int") {
        return integerOf(word);
    }
    if (type == "double") {
        return realOf(word);
    }
    return type == "date" ? PreferenceValue(dateOf(word)) : PreferenceValue(word);
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
    const std::string& kind = arguments.take("active, away or age");
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
    if (kind == "active") {
        idle.setActive();
    } else if (kind == "away") {
        idle.setAway();
    } else {
        throw ScenarioError(quoted(kind) + " is not active, away or age");
    }
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
    const std::string& word = arguments.take("active or inactive");
    arguments.end();
    if (word != "active" && word != "inactive") {
        throw ScenarioError(quoted(word) + " is not active or inactive");
    }
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
    const std::string& word = arguments.take("ok, missing or failing");
    SessionLockResult result{Outcome::started};
    if (word == "failing") {
        result = {Outcome::failed, arguments.take("TEXT")};
    } else if (word == "missing") {
        result = {Outcome::missing};
    } else if (word != "ok") {
        throw ScenarioError(quoted(word) + " is not ok, missing or failing");
    }
    arguments.end();
    simulation.world().sessionLock.setResult(result);
}

constexpr std::array<NamedCommand, 7> commands{{{"pref", pref},
                                                {"unpref", unpref},
                                                {"input", input},
                                                {"displays", displays},
                                                {"program", program},
                                                {"signal", signal},
                                                {"lock", lock}}};

} // namespace

Command worldCommand(std::string_view name) {
    return commandNamed(commands, name);
}

} // namespace kestrelfen
