#include "Commands.hpp"
#include "Json.hpp"
#include "Output.hpp"
#include "ScenarioError.hpp"
#include "Simulation.hpp"
#include "Values.hpp"
#include "platform/posix/Stopwatch.hpp"

#include <array>
#include <limits>

namespace kestrelfen {

namespace {

constexpr std::int64_t oneSecond = 1'000'000;

void moveClock(Simulation& simulation, std::int64_t microseconds) {
    FakeClock& clock = simulation.world().clock;
    if (microseconds > std::numeric_limits<std::int64_t>::max() - clock.now().microseconds()) {
        throw ScenarioError("the clock cannot go that far");
    }
    clock.advanceMicroseconds(microseconds);
}

void runTicks(Simulation& simulation, std::int64_t count, std::int64_t step) {
    for (std::int64_t index = 0; index < count; ++index) {
        moveClock(simulation, step);
        simulation.tick();
    }
}

std::int64_t takeLength(Arguments& arguments) {
    const std::string& word = arguments.take("SECONDS");
    const std::int64_t length = microsecondsOf(word);
    if (length < 0) {
        throw ScenarioError(quoted(word) + " is negative");
    }
    return length;
}

void zone(Simulation& simulation, Arguments& arguments) {
    const std::string& name = arguments.take("NAME");
    arguments.end();
    if (!FakeCalendar::isKnownZone(name)) {
        throw ScenarioError(quoted(name) + " is no time zone");
    }
    simulation.world().calendar.setZone(name);
}

void clock(Simulation& simulation, Arguments& arguments) {
    const Date date = dateOf(arguments.take("DATE"));
    arguments.end();
    simulation.world().clock.set(date);
}

void sleep(Simulation& simulation, Arguments& arguments) {
    const std::int64_t length = takeLength(arguments);
    arguments.end();
    moveClock(simulation, length);
}

void run(Simulation& simulation, Arguments& arguments) {
    const std::int64_t length = takeLength(arguments);
    std::int64_t step = oneSecond;
    if (!arguments.empty()) {
        const std::string& word = arguments.take("STEP");
        step = microsecondsOf(word);
        if (step <= 0) {
            throw ScenarioError("the step " + quoted(word) + " is not above 0");
        }
    }
    arguments.end();
    runTicks(simulation, length / step, step);
}

void tick(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    simulation.tick();
}

void bench(Simulation& simulation, Arguments& arguments) {
    const std::string& word = arguments.take("N");
    const std::int64_t count = integerOf(word);
    arguments.end();
    if (count < 0) {
        throw ScenarioError(quoted(word) + " is negative");
    }
    const Stopwatch stopwatch;
    runTicks(simulation, count, oneSecond);
    const double seconds = stopwatch.seconds();
    Output::line(lineOf({{"bench", "ticks"}, {"ticks", count}, {"seconds", seconds}}));
}

constexpr std::array<NamedCommand, 6> commands{
    {{"zone", zone}, {"clock", clock}, {"sleep", sleep}, {"run", run}, {"tick", tick}, {"bench", bench}}};

} // namespace

Commands timeCommands() {
    return commands;
}

} // namespace kestrelfen
