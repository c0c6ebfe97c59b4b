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

namespace {

constexpr std::array families{timeCommands,     worldCommands,  senseCommands,     historyCommands,
                              programCommands,  pressCommands,  popoverCommands,   mainWindowCommands,
                              settingsCommands, chooseCommands, onboardingCommands};

constexpr std::array<std::string_view, 2> switchWords{"on", "off"};

} // namespace

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
    for (const auto commands : families) {
        for (const auto& [known, command, forms] : commands()) {
            if (known == name) {
                command(simulation_, arguments);
                return;
            }
        }
    }
    for (const auto& [known, order, forms] : orders()) {
        if (known == name) {
            (this->*order)(arguments);
            return;
        }
    }
    throw ScenarioError(quoted(name) + " is no command");
}

std::span<const Scenario::NamedOrder> Scenario::orders() {
    static constexpr std::array<NamedOrder, 5> all{
        {{"show", &Scenario::show, readingForms},
         {"expect", &Scenario::expect, readingForms},
         {"expect-event", &Scenario::expectEvent, EventLog::kindForms},
         {"events", &Scenario::setEvents, [] { return formsOf(switchWords); }},
         {"forget-events", &Scenario::forgetEvents}}};
    return all;
}

FormList Scenario::forms() {
    std::vector<FormList> lists;
    lists.reserve(std::size(families) + 1);
    for (const auto commands : families) {
        lists.push_back(formsOfAll(commands()));
    }
    lists.push_back(formsOfAll(orders()));
    return joined(std::move(lists));
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
    const std::string_view word = takeOneOf(switchWords, arguments);
    arguments.end();
    simulation_.events().setPrinting(word == "on");
}

void Scenario::forgetEvents(Arguments& arguments) {
    arguments.end();
    simulation_.events().forget();
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
