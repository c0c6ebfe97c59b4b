#pragma once

#include "EventLog.hpp"
#include "SimulatedProgram.hpp"
#include "platform/fake/FakePlatform.hpp"

#include <memory>

namespace kestrelfen {

/// The machine, the program that may run on it, and what was seen of them. Time moves only when it is told
/// to.
class Simulation {
  public:
    Simulation();

    FakePlatform& world() { return world_; }
    EventLog& events() { return events_; }

    bool isRunning() const { return program_ != nullptr; }
    /// Throws a ScenarioError when none runs.
    SimulatedProgram& program();

    void launch();
    void quit();
    void kill();

    /// Fires the engine's timer, if it runs, and lets everything come to rest.
    void tick();

    /// Runs what is queued until every queue is empty.
    void settle();

  private:
    void listen();

    FakePlatform world_;
    EventLog events_;
    std::unique_ptr<SimulatedProgram> program_;
};

} // namespace kestrelfen
