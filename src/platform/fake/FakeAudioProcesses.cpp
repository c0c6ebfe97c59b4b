#include "platform/fake/FakeAudioProcesses.hpp"

#include <numeric>

namespace kestrelfen {

bool FakeAudioProcesses::hasProcessList() const {
    if (onSample) {
        onSample();
    }
    return supported_;
}

std::optional<std::vector<AudioProcesses::ObjectID>> FakeAudioProcesses::processObjects() const {
    if (!supported_) {
        return std::nullopt;
    }
    std::vector<ObjectID> objects(count());
    std::iota(objects.begin(), objects.end(), ObjectID{0});
    return objects;
}

std::optional<std::string> FakeAudioProcesses::bundleIdentifier(ObjectID object) const {
    if (!exists(object) || object == 0) {
        return std::nullopt;
    }
    return records(object) ? recording_[object - 1] : playing_[object - 1 - recording_.size()];
}

std::optional<bool> FakeAudioProcesses::isRunningInput(ObjectID object) const {
    return exists(object) ? std::optional(records(object)) : std::nullopt;
}

std::optional<bool> FakeAudioProcesses::isRunningOutput(ObjectID object) const {
    return exists(object) ? std::optional(object > recording_.size()) : std::nullopt;
}

} // namespace kestrelfen
