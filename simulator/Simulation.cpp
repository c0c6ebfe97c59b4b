#include "Simulation.hpp"

#include "ScenarioError.hpp"

namespace kestrelfen {

Simulation::Simulation() {
    listen();
}

void Simulation::listen() {
    const auto tell = [this](const char* kind, const Json& details) {
        events_.add(kind, world_.clock.now(), details);
    };
    world_.log.onLine = [tell](const FakeLog::Line& line) {
        tell("log", {{"level", rawValue(line.level)}, {"category", line.category}, {"text", line.text}});
    };
    world_.standardOutput.onPrint = [tell](const std::string& line) { tell("stdout", {{"text", line}}); };
    world_.notifier.onPost = [tell](const Notification& notification) {
        tell("notification",
             {{"title", notification.title}, {"body", notification.body}, {"sound", notification.sound}});
    };
    world_.sessionLock.onLock = [tell] { tell("lock", Json::object()); };
}

SimulatedProgram& Simulation::program() {
    if (!program_) {
        throw ScenarioError("no program is launched");
    }
    return *program_;
}

void Simulation::launch() {
    if (program_) {
        throw ScenarioError("the program is launched already");
    }
    program_ = std::make_unique<SimulatedProgram>(world_.ports(), [this](std::string_view call) {
        events_.add("windows", world_.clock.now(), {{"call", call}, {"count", program_->breakWindowCount()}});
    });
    program_->delegate().applicationDidFinishLaunching();
}

void Simulation::quit() {
    bool mayEnd = false;
    program().delegate().applicationShouldTerminate([&mayEnd] { mayEnd = true; });
    settle();
    if (mayEnd) {
        program().delegate().applicationWillTerminate();
        settle();
        program_.reset();
    }
}

void Simulation::kill() {
    program();
    program_.reset();
    world_.mainQueue.clear();
}

void Simulation::tick() {
    world_.ticker.fire();
    settle();
}

void Simulation::settle() {
    world_.mainQueue.drain();
}

} // namespace kestrelfen
