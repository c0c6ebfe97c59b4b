#pragma once

#include "platform/ports/StandardOutput.hpp"

#include <cstdio>

namespace kestrelfen {

/// Prints to a stream, each line at once. Main thread only.
class StreamOutput final : public StandardOutput {
  public:
    explicit StreamOutput(std::FILE* stream) : stream_(stream) {}

    void print(std::string_view line) override;

  private:
    std::FILE* stream_;
};

} // namespace kestrelfen
