#pragma once

#include "platform/ports/AudioProcesses.hpp"

namespace kestrelfen {

/// The audio of a system that does not tell of it by process.
class AbsentAudioProcesses final : public AudioProcesses {
  public:
    bool hasProcessList() const override { return false; }
    std::optional<std::vector<ObjectID>> processObjects() const override { return std::nullopt; }
    std::optional<std::string> bundleIdentifier(ObjectID /*object*/) const override { return std::nullopt; }
    std::optional<bool> isRunningInput(ObjectID /*object*/) const override { return std::nullopt; }
    std::optional<bool> isRunningOutput(ObjectID /*object*/) const override { return std::nullopt; }
};

} // namespace kestrelfen
