#pragma once

#include <string_view>

namespace kestrelfen {

/// Where the program prints when it is asked to tell what it does.
class StandardOutput {
  public:
    virtual ~StandardOutput() = default;

    /// Prints `line` and a line feed.
    virtual void print(std::string_view line) = 0;
};

} // namespace kestrelfen
