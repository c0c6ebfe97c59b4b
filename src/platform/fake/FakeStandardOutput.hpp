#pragma once

#include "platform/ports/StandardOutput.hpp"

#include <functional>
#include <string>

namespace kestrelfen {

/// Hands each printed line to a listener.
class FakeStandardOutput final : public StandardOutput {
  public:
    std::function<void(const std::string&)> onPrint;

    void print(std::string_view line) override {
        if (onPrint) {
            onPrint(std::string(line));
        }
    }
};

} // namespace kestrelfen
