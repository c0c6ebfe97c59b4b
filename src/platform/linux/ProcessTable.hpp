#pragma once

#include "platform/linux/ProcessUnit.hpp"

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace kestrelfen {

/// What the system tells of a process. Empty text is what it does not tell.
struct ProcessFacts {
    /// The name of the process, cut off after fifteen letters.
    std::string command;
    std::int32_t parent = 0;
    std::uint64_t startTime = 0;
    std::filesystem::path executable;
    std::string flatpakId;
    std::optional<ProcessUnit> unit;
    /// The file of the desktop entry by which this very process was started.
    std::filesystem::path launchedEntry;
};

/// The processes of this computer, as /proc shows them. Remembers what it read of each, so that asking again
/// costs one small file. Main thread only.
class ProcessTable {
  public:
    /// `root` is where /proc is.
    explicit ProcessTable(std::filesystem::path root);

    /// Absent when there is no such process. Valid until the next call.
    const ProcessFacts* find(std::int32_t process);

  private:
    std::optional<ProcessFacts> readStatus(const std::filesystem::path& folder) const;
    void readTraces(const std::filesystem::path& folder, std::int32_t process, ProcessFacts& facts) const;

    const std::filesystem::path root_;
    std::map<std::int32_t, ProcessFacts> known_;
};

} // namespace kestrelfen
