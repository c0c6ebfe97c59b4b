#pragma once

#include "platform/fake/ZoneRule.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// The offsets of one zone, read from its file in the system's zone database (TZif, version 2 and later).
/// Immutable; any thread.
class ZoneFile {
  public:
    /// Absent when there is no such file, or it is no zone.
    static std::optional<ZoneFile> read(const std::string& path);

    /// Seconds ahead of UTC at `second` (since 1970). A look-up in memory.
    std::int64_t offsetAt(std::int64_t second) const;

  private:
    static std::optional<ZoneFile> parse(std::string_view bytes);

    /// The seconds at which an offset begins, in order, and those offsets.
    std::vector<std::int64_t> changes_;
    std::vector<std::int64_t> offsets_;
    std::int64_t firstOffset_ = 0;
    std::optional<ZoneRule> rule_;
};

} // namespace kestrelfen
