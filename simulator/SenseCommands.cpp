#include "Commands.hpp"
#include "ScenarioError.hpp"
#include "Simulation.hpp"
#include "Values.hpp"

#include <array>
#include <limits>

namespace kestrelfen {

namespace {

constexpr std::array<std::string_view, 2> powers{"asleep", "awake"};
constexpr std::array<std::string_view, 3> sounds{"unsupported", "in", "out"};
constexpr std::array<std::string_view, 2> browserFacts{"permission", "url"};
constexpr std::array<std::string_view, 2> loginItemAnswers{"ok", "failing"};

void display(Simulation& simulation, Arguments& arguments) {
    const std::string_view word = takeOneOf(powers, arguments);
    arguments.end();
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

constexpr std::array<std::string_view, 3> appActions{"start", "move", "stop"};

void app(Simulation& simulation, Arguments& arguments) {
    const std::string_view action = takeOneOf(appActions, arguments);
    if (action == "start") {
        startApplication(simulation, arguments);
    } else if (action == "move") {
        moveApplication(simulation, arguments);
    } else {
        stopApplication(simulation, arguments);
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
    const std::string_view word = takeOneOf(sounds, arguments);
    if (word == "in") {
        processes.setRecording(arguments.takeRest());
    } else if (word == "out") {
        processes.setPlaying(arguments.takeRest());
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
    const std::string_view word = takeOneOf(browserFacts, arguments);
    const std::string& value = arguments.take(word == "url" ? "TEXT" : "VALUE");
    arguments.end();
    if (word == "url") {
        setAddress(simulation, *browser, value);
    } else {
        setPermission(simulation, *browser, value);
    }
}

void loginItem(Simulation& simulation, Arguments& arguments) {
    const std::string_view word = takeOneOf(loginItemAnswers, arguments);
    std::optional<std::string> failure;
    if (word == "failing") {
        failure = arguments.take("TEXT");
    }
    arguments.end();
    simulation.world().loginItem.setFailure(std::move(failure));
}

FormList browserForms() {
    return joined({formsBehind("* permission", rawValueForms<FakeBrowserPermission>()),
                   {"* url *", "* url error", "* url \"\""},
                   rawValueForms<Browser>()});
}

constexpr std::array<NamedCommand, 6> commands{
    {{"display", display, [] { return formsOf(powers); }},
     {"app", app, [] { return formsOf(appActions); }},
     {"front", front,
      [] {
          return FormList{"*", "none"};
      }},
     {"audio", audio, [] { return formsOf(sounds); }},
     {"browser", browser, browserForms},
     {"login-item", loginItem, [] { return formsOf(loginItemAnswers); }}}};

} // namespace

Commands senseCommands() {
    return commands;
}

} // namespace kestrelfen
