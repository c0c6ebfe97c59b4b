#include "Scenario.hpp"

#include "Commands.hpp"
#include "Output.hpp"
#include "Readings.hpp"
#include "ScenarioError.hpp"
#include "Values.hpp"
#include "Words.hpp"
#include "platform/ports/Utf8.hpp"

#include <cstdio>

namespace kestrelfen {

Scenario::Result Scenario::run(std::istream& lines) {
    std::string line;
    while (std::getline(lines, line)) {
        ++lineNumber_;
        try {
            runLine(line);
        } catch (const ScenarioError& error) {
            Output::flush();
            say(error.what());
            return Result::malformed;
        }
        Output::flush();
    }
    if (lines.bad()) {
        say("the scenario cannot be read further");
        return Result::malformed;
    }
    return failed_ ? Result::expectationFailed : Result::allHeld;
}

void Scenario::runLine(const std::string& line) {
    if (!isWellFormedUtf8(line)) {
        throw ScenarioError("the line is not UTF-8");
    }
    Arguments arguments(splitWords(line));
    if (arguments.empty()) {
        return;
    }
    const std::string command = arguments.take("the command");
    runCommand(command, arguments);
    simulation_.settle();
}

void Scenario::runCommand(const std::string& name, Arguments& arguments) {
    for (const auto find :
         {timeCommand, worldCommand, senseCommand, historyCommand, programCommand, pressCommand,
          popoverCommand, mainWindowCommand, settingsCommand, chooseCommand, onboardingCommand}) {
        if (const Command command = find(name)) {
            command(simulation_, arguments);
            return;
        }
    }
    if (name == "show") {
        show(arguments);
    } else if (name == "expect") {
        expect(arguments);
    } else if (name == "expect-event") {
        expectEvent(arguments);
    } else if (name == "events") {
        setEvents(arguments);
    } else if (name == "forget-events") {
        arguments.end();
        simulation_.events().forget();
    } else {
        throw ScenarioError(quoted(name) + " is no command");
    }
}

void Scenario::show(Arguments& arguments) {
    const std::string what = arguments.take("WHAT");
    Output::line(lineOf(reading(simulation_, what, arguments)));
}

void Scenario::expect(Arguments& arguments) {
    const std::string what = arguments.take("WHAT");
    std::string key;
    std::string value;
    arguments.takeLastTwo(key, value);
    const Json json = reading(simulation_, what, arguments);
    compare(what + " " + key, valueAt(json, key), value);
}

void Scenario::expectEvent(Arguments& arguments) {
    const std::string kind = arguments.take("KIND");
    const std::string key = arguments.take("KEY");
    const std::string value = arguments.take("VALUE");
    arguments.end();
    if (!EventLog::isKind(kind)) {
        throw ScenarioError(quoted(kind) + " is no kind of event");
    }
    compare("event " + kind + " " + key, valueAt(simulation_.events().latest(kind), key), value);
}

void Scenario::setEvents(Arguments& arguments) {
    const std::string& word = arguments.take("on or off");
    arguments.end();
    if (word != "on" && word != "off") {
        throw ScenarioError(quoted(word) + " is not on or off");
    }
    simulation_.events().setPrinting(word == "on");
}

void Scenario::compare(const std::string& subject, const Json& actual, const std::string& expected) {
    if (!matches(actual, expected)) {
        failed_ = true;
        Output::flush();
        say("expected " + subject + " " + expected + ", got " + wordOf(actual));
    }
}

void Scenario::say(const std::string& message) const {
    std::fprintf(stderr, "%s:%d: %s\n", name_.c_str(), lineNumber_, message.c_str());
}

} // namespace kestrelfen
