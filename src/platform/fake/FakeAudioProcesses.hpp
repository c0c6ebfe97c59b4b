#pragma once

#include "platform/ports/AudioProcesses.hpp"

#include <functional>

namespace kestrelfen {

/// What records and what plays, by hand. At first nothing does, on a system that would tell of it.
class FakeAudioProcesses final : public AudioProcesses {
  public:
    /// Called when a sample begins.
    std::function<void()> onSample;

    /// The bundle identifiers of what records, in this order. Each set keeps the other one.
    void setRecording(std::vector<std::string> bundleIdentifiers) {
        recording_ = std::move(bundleIdentifiers);
    }
    void setPlaying(std::vector<std::string> bundleIdentifiers) { playing_ = std::move(bundleIdentifiers); }

    /// Keeps both sets for when it is supported again.
    void setSupported(bool supported) { supported_ = supported; }

    bool hasProcessList() const override;
    std::optional<std::vector<ObjectID>> processObjects() const override;
    std::optional<std::string> bundleIdentifier(ObjectID object) const override;
    std::optional<bool> isRunningInput(ObjectID object) const override;
    std::optional<bool> isRunningOutput(ObjectID object) const override;

  private:
    /// Object 0 is a process of the system's own that no product stands behind. Those that record follow,
    /// then those that play.
    std::size_t count() const { return 1 + recording_.size() + playing_.size(); }
    bool exists(ObjectID object) const { return supported_ && object < count(); }
    bool records(ObjectID object) const { return object > 0 && object <= recording_.size(); }

    bool supported_ = true;
    std::vector<std::string> recording_;
    std::vector<std::string> playing_;
};

} // namespace kestrelfen
