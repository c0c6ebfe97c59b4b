#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// What a window tells of its program. Empty text and an absent number are things it did not tell.
struct WindowClues {
    std::optional<std::int32_t> processIdentifier;
    /// The two parts of WM_CLASS, or the application id of a Wayland window as the class.
    std::string className;
    std::string instanceName;
    std::string gtkApplicationId;

    friend bool operator==(const WindowClues&, const WindowClues&) = default;
};

/// A product, as far as the clues lead to one.
struct Program {
    /// In the way of the built-in lists, or the id of its desktop entry.
    std::optional<std::string> bundleIdentifier;
    /// In the person's language.
    std::optional<std::string> localizedName;

    friend bool operator==(const Program&, const Program&) = default;
};

/// The programs that are installed. Main thread only; answers come from memory or from /proc, never from
/// another program.
class ProgramCatalogue {
  public:
    virtual ~ProgramCatalogue() = default;

    /// Asked once for each window that appears.
    virtual Program identify(const WindowClues& clues) = 0;

    virtual bool isInstalled(std::string_view bundleIdentifier) = 0;

    /// The words to start it with; absent when it is not installed or cannot be started by a command.
    virtual std::optional<std::vector<std::string>> launchCommand(std::string_view bundleIdentifier) = 0;
};

} // namespace kestrelfen
