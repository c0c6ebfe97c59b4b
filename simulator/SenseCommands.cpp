#include "Commands.hpp"
#include "ScenarioError.hpp"
#include "Simulation.hpp"
#include "Values.hpp"

#include <array>
#include <limits>

namespace kestrelfen {

namespace {

void display(Simulation& simulation, Arguments& arguments) {
    const std::string& word = arguments.take("asleep or awake");
    arguments.end();
    if (word != "asleep" && word != "awake") {
        throw ScenarioError(quoted(word) + " is not asleep or awake");
    }
    simulation.world().displayPower.setAsleep(word == "asleep");
}

std::int32_t processOf(const std::string& word) {
    const std::int64_t number = integerOf(word);
    if (number < 1 || number > std::numeric_limits<std::int32_t>::max()) {
        throw ScenarioError(quoted(word) + " is no process");
    }
    return static_cast<std::int32_t>(number);
}

std::int32_t knownProcess(Simulation& simulation, const std::string& word) {
    const std::int32_t process = processOf(word);
    if (!simulation.world().applications.has(process)) {
        throw ScenarioError("no application runs as " + quoted(word));
    }
    return process;
}

/// A hyphen stands for none.
std::optional<std::string> nameOf(const std::string& word) {
    return word == "-" ? std::nullopt : std::optional(word);
}

void startApplication(Simulation& simulation, Arguments& arguments) {
    RunningApplication application;
    application.bundleIdentifier = nameOf(arguments.take("BUNDLE"));
    application.localizedName = nameOf(arguments.take("NAME"));
    const std::string process = arguments.take("PID");
    application.processIdentifier = processOf(process);
    const std::int64_t display = arguments.empty() ? 0 : displayNumberOf(arguments.take("DISPLAY"));
    arguments.end();
    if (simulation.world().applications.has(application.processIdentifier)) {
        throw ScenarioError("an application runs as " + quoted(process) + " already");
    }
    simulation.world().applications.start(std::move(application), display);
}

void moveApplication(Simulation& simulation, Arguments& arguments) {
    const std::string process = arguments.take("PID");
    const std::int64_t display = displayNumberOf(arguments.take("DISPLAY"));
    arguments.end();
    simulation.world().applications.move(knownProcess(simulation, process), display);
}

void stopApplication(Simulation& simulation, Arguments& arguments) {
    const std::string& process = arguments.take("PID");
    arguments.end();
    simulation.world().applications.stop(knownProcess(simulation, process));
}

void app(Simulation& simulation, Arguments& arguments) {
    const std::string& action = arguments.take("start, move or stop");
    if (action == "start") {
        startApplication(simulation, arguments);
    } else if (action == "move") {
        moveApplication(simulation, arguments);
    } else if (action == "stop") {
        stopApplication(simulation, arguments);
    } else {
        throw ScenarioError(quoted(action) + " is not start, move or stop");
    }
}

void front(Simulation& simulation, Arguments& arguments) {
    const std::string& word = arguments.take("PID or none");
    arguments.end();
    simulation.world().applications.setFrontmost(
        word == "none" ? std::nullopt : std::optional(knownProcess(simulation, word)));
}

void audio(Simulation& simulation, Arguments& arguments) {
    FakeAudioProcesses& processes = simulation.world().audioProcesses;
    const std::string& word = arguments.take("unsupported, in or out");
    if (word == "in") {
        processes.setRecording(arguments.takeRest());
    } else if (word == "out") {
        processes.setPlaying(arguments.takeRest());
    } else if (word != "unsupported") {
        throw ScenarioError(quoted(word) + " is not unsupported, in or out");
    }
    arguments.end();
    processes.setSupported(word != "unsupported");
}

void setPermission(Simulation& simulation, Browser browser, const std::string& word) {
    const auto permission = fromRawValue<FakeBrowserPermission>(word);
    if (!permission) {
        throw ScenarioError(quoted(word) + " is no permission");
    }
    simulation.world().browserAccess.setPermission(std::string(bundleID(browser)), *permission);
}

void setAddress(Simulation& simulation, Browser browser, const std::string& text) {
    using Answer = BrowserAccess::ScriptResult;
    simulation.world().browserAccess.setAnswer(
        std::string(bundleID(browser)),
        text == "error" ? Answer(BrowserAccess::ScriptFailure{"failed"}) : Answer(std::optional(text)));
}

void browser(Simulation& simulation, Arguments& arguments) {
    const std::string& kind = arguments.take("KIND");
    const auto browser = fromRawValue<Browser>(kind);
    if (!browser) {
        throw ScenarioError(quoted(kind) + " is no browser");
    }
    const std::string& word = arguments.take("permission or url");
    if (word != "permission" && word != "url") {
        throw ScenarioError(quoted(word) + " is not permission or url");
    }
    const std::string& value = arguments.take(word == "url" ? "TEXT" : "VALUE");
    arguments.end();
    if (word == "url") {
        setAddress(simulation, *browser, value);
    } else {
        setPermission(simulation, *browser, value);
    }
}

void loginItem(Simulation& simulation, Arguments& arguments) {
    const std::string& word = arguments.take("ok or failing");
    if (word != "ok" && word != "failing") {
        throw ScenarioError(quoted(word) + " is not ok or failing");
    }
    std::optional<std::string> failure;
    if (word == "failing") {
        failure = arguments.take("TEXT");
    }
    arguments.end();
    simulation.world().loginItem.setFailure(std::move(failure));
}

constexpr std::array<NamedCommand, 6> commands{{{"display", display},
                                                {"app", app},
                                                {"front", front},
                                                {"audio", audio},
                                                {"browser", browser},
                                                {"login-item", loginItem}}};

} // namespace

Command senseCommand(std::string_view name) {
    return commandNamed(commands, name);
}

} // namespace kestrelfen
