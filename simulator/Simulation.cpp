#include "Simulation.hpp"

#include "ScenarioError.hpp"

namespace kestrelfen {

Simulation::Simulation(std::optional<std::filesystem::path> storeFile) : store_(std::move(storeFile)) {
    listenToOutput();
    listenToServices();
    scenes_.onClosed = [this](Scene scene) {
        if (scene == Scene::main && program_) {
            program_->onboarding().startOver();
        }
    };
}

void Simulation::tell(const char* kind, const Json& details) {
    events_.add(kind, world_.clock.now(), details);
}

void Simulation::listenToOutput() {
    world_.log.onLine = [this](const FakeLog::Line& line) {
        tell("log", {{"level", rawValue(line.level)}, {"category", line.category}, {"text", line.text}});
    };
    world_.standardOutput.onPrint = [this](const std::string& line) { tell("stdout", {{"text", line}}); };
    world_.notifier.onPost = [this](const Notification& notification) {
        tell("notification",
             {{"title", notification.title}, {"body", notification.body}, {"sound", notification.sound}});
    };
}

void Simulation::listenToServices() {
    world_.notificationAuthorization.onRequest = [this] { tell("authorization"); };
    world_.sessionLock.onLock = [this] { tell("lock"); };
    world_.audioProcesses.onSample = [this] { tell("audio"); };
    world_.browserAccess.onScript = [this](const std::string& bundleIdentifier) {
        if (const auto browser = matchingBrowser(bundleIdentifier)) {
            tell("script", {{"browser", rawValue(*browser)}});
        }
    };
    world_.loginItem.onSet = [this](bool enabled) { tell("login-item", {{"enabled", enabled}}); };
    world_.activationPolicy.onSet = [this](ActivationPolicyKind policy) {
        tell("dock", {{"policy", rawValue(policy)}});
    };
}

void Simulation::listenToProgram() {
    program_->screenTime().onFlushed = [this](std::size_t buckets, std::size_t sites) {
        tell("flush", {{"buckets", buckets}, {"sites", sites}});
    };
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
    resetDockPresence();
    program_ = std::make_unique<SimulatedProgram>(
        world_.ports(), store_.configuration(), [this](std::string_view call) {
            tell("windows", {{"call", call}, {"count", program_->breakWindowCount()}});
        });
    listenToProgram();
    program_->delegate().applicationDidFinishLaunching();
    if (program_->delegate().needsOnboarding()) {
        scenes_.open(Scene::main);
    }
}

/// A new process has no window yet, and no place among the tasks.
void Simulation::resetDockPresence() {
    const auto onSet = std::exchange(world_.activationPolicy.onSet, nullptr);
    scenes_.forgetAll();
    world_.activationPolicy.set(ActivationPolicyKind::accessory);
    world_.activationPolicy.onSet = onSet;
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
    world_.storeExecutor.clear();
}

void Simulation::tick() {
    world_.ticker.fire();
    settle();
}

void Simulation::settle() {
    while (world_.mainQueue.drain() || world_.storeExecutor.drain()) {
    }
}

} // namespace kestrelfen
