#include "sensing/AudioActivity.hpp"

#include "platform/ports/AudioProcesses.hpp"
#include "platform/ports/Log.hpp"

#include <algorithm>
#include <optional>

namespace kestrelfen {

namespace {

using ObjectID = AudioProcesses::ObjectID;

/// The audio object of every process. An empty list is no usable list.
std::optional<std::vector<ObjectID>> processObjectIDs(const AudioProcesses& processes, Log& log) {
    if (!processes.hasProcessList()) {
        Logger(log, "AudioActivity").debug("per-process audio objects are unavailable on this system");
        return std::nullopt;
    }
    auto objects = processes.processObjects();
    if (!objects || objects->empty()) {
        return std::nullopt;
    }
    return objects;
}

void addOnce(std::vector<std::string>& identifiers, const std::string& identifier) {
    if (std::find(identifiers.begin(), identifiers.end(), identifier) == identifiers.end()) {
        identifiers.push_back(identifier);
    }
}

/// A process that fails to answer one question is left out of that answer's set only.
void add(AudioActivity& activity, const AudioProcesses& processes, ObjectID object) {
    const auto identifier = processes.bundleIdentifier(object);
    if (!identifier || identifier->empty()) {
        return;
    }
    if (processes.isRunningInput(object).value_or(false)) {
        addOnce(activity.usingInput, *identifier);
    }
    if (processes.isRunningOutput(object).value_or(false)) {
        addOnce(activity.usingOutput, *identifier);
    }
}

} // namespace

constinit const AudioActivity AudioActivity::unsupported{};

AudioActivity AudioActivity::current(const AudioProcesses& processes, Log& log) {
    const auto objects = processObjectIDs(processes, log);
    if (!objects) {
        return unsupported;
    }
    AudioActivity activity;
    activity.isSupported = true;
    for (const ObjectID object : *objects) {
        add(activity, processes, object);
    }
    return activity;
}

} // namespace kestrelfen
