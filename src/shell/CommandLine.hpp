#pragma once

#include <optional>
#include <span>
#include <string>

namespace kestrelfen {

struct ProgramVersion {
    std::string number;
    std::string build;
};

/// What the program tells in place of starting, whole lines for standard output; absent when it is to start.
/// `arguments` begin after the program's own name; those it does not know are left to the toolkit.
std::optional<std::string> answerInPlaceOfStarting(std::span<const char* const> arguments,
                                                   const ProgramVersion& version);

} // namespace kestrelfen
