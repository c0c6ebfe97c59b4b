#pragma once

#include "core/SmartPauseKind.hpp"

#include <string>

namespace kestrelfen {

/// What the settings call the kinds of smart pause.
struct SmartPauseWords {
    std::string title;
    /// Over its list of applications.
    std::string sentence;
    /// How it is detected.
    std::string detection;

    static SmartPauseWords of(SmartPauseKind kind);
};

} // namespace kestrelfen
