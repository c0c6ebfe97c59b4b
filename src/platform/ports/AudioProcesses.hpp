#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kestrelfen {

/// Which processes record and which play, object by object. Main thread only. Answers are reads of memory;
/// each operation is asked at most every few seconds.
class AudioProcesses {
  public:
    using ObjectID = std::uint32_t;

    virtual ~AudioProcesses() = default;

    /// Whether this system tells of audio by process at all.
    virtual bool hasProcessList() const = 0;

    /// The processes that the sound system knows, in its order; absent when asking fails.
    virtual std::optional<std::vector<ObjectID>> processObjects() const = 0;

    /// The product behind a process, named as in Applications. Absent when asking fails or nothing tells it.
    virtual std::optional<std::string> bundleIdentifier(ObjectID object) const = 0;

    /// Absent when asking fails.
    virtual std::optional<bool> isRunningInput(ObjectID object) const = 0;
    virtual std::optional<bool> isRunningOutput(ObjectID object) const = 0;
};

} // namespace kestrelfen
