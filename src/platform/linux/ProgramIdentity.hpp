#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace kestrelfen {

/// What a service tells of a program that uses it. Empty text and an absent number are things it did not
/// tell.
struct ProgramClues {
    /// As the service sees it. For a sandboxed program it may be a number of the sandbox's own, and for a
    /// part of a larger program the number of a child of its main process.
    std::optional<std::int32_t> processIdentifier;
    /// The executable's name without its folder.
    std::string binary;
    /// The name that the program or its sandbox gives the product, in most cases that of its desktop entry.
    std::string applicationId;
    std::string iconName;

    friend bool operator==(const ProgramClues&, const ProgramClues&) = default;
};

/// Finds the product behind a program. Main thread only.
class ProgramIdentity {
  public:
    virtual ~ProgramIdentity() = default;

    /// Named in the way of the built-in lists; absent when no clue leads to a product. Asked once for each
    /// program that appears, and again only while it has found none; it does not wait for other programs.
    virtual std::optional<std::string> bundleIdentifier(const ProgramClues& clues) = 0;
};

} // namespace kestrelfen
