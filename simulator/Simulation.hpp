#pragma once

#include "EventLog.hpp"
#include "SimulatedProgram.hpp"
#include "SimulatedScenes.hpp"
#include "SimulatedStore.hpp"
#include "platform/fake/FakePlatform.hpp"

#include <memory>

namespace kestrelfen {

/// The machine, the program that may run on it, and what was seen of them. Time moves only when it is told
/// to.
class Simulation {
  public:
    /// Without a file for the store, it has one of its own.
    explicit Simulation(std::optional<std::filesystem::path> storeFile = {});

    FakePlatform& world() { return world_; }
    SimulatedStore& store() { return store_; }
    EventLog& events() { return events_; }
    SimulatedScenes& scenes() { return scenes_; }

    bool isRunning() const { return program_ != nullptr; }
    /// Throws a ScenarioError when none runs.
    SimulatedProgram& program();

    void launch();
    void quit();
    void kill();

    /// Fires the engine's timer, if it runs, and lets everything come to rest.
    void tick();

    /// Runs what is queued until every queue is empty: the main queue's tasks, then the store's jobs, and
    /// again.
    void settle();

  private:
    void tell(const char* kind, const Json& details = Json::object());
    void listenToOutput();
    void listenToServices();
    void listenToProgram();
    void resetDockPresence();

    FakePlatform world_;
    SimulatedStore store_;
    EventLog events_;
    SimulatedScenes scenes_{world_.activationPolicy};
    std::unique_ptr<SimulatedProgram> program_;
};

} // namespace kestrelfen
