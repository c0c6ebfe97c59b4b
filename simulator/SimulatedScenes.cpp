#include "SimulatedScenes.hpp"

#include <algorithm>

namespace kestrelfen {

std::vector<std::string> SimulatedScenes::identifiers() const {
    std::vector<std::string> result;
    for (const Scene scene : open_) {
        result.emplace_back(rawValue(scene));
    }
    return result;
}

void SimulatedScenes::bringToFront(std::size_t /*index*/) {
    policy_.send(ProgramWindowEvent::didBecomeKey);
}

void SimulatedScenes::open(Scene scene) {
    open_.push_back(scene);
    tellPolicy();
    policy_.send(ProgramWindowEvent::didBecomeKey);
}

bool SimulatedScenes::isOpen(Scene scene) const {
    return std::find(open_.begin(), open_.end(), scene) != open_.end();
}

bool SimulatedScenes::close(Scene scene) {
    const auto window = std::find(open_.begin(), open_.end(), scene);
    if (window == open_.end()) {
        return false;
    }
    policy_.send(ProgramWindowEvent::willClose);
    open_.erase(window);
    tellPolicy();
    if (onClosed) {
        onClosed(scene);
    }
    return true;
}

void SimulatedScenes::forgetAll() {
    open_.clear();
    tellPolicy();
}

void SimulatedScenes::tellPolicy() {
    policy_.setWindows(std::vector<ProgramWindow>(open_.size(), {.isVisible = true, .isTitled = true}));
}

} // namespace kestrelfen
