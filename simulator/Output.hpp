#pragma once

#include <string>

namespace kestrelfen {

/// The simulator's standard output.
struct Output {
    static void line(const std::string& text);

    /// Everything printed so far is out when it returns.
    static void flush();
};

} // namespace kestrelfen
