#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kestrelfen {

/// Where programs and what is told of them are found, and the language in which to tell it.
struct ProgramPlaces {
    std::filesystem::path processes;
    /// The folders of desktop entries; an earlier one goes before a later one.
    std::vector<std::filesystem::path> entries;
    /// Like "de_AT.UTF-8@euro"; empty for none.
    std::string locale;

    static ProgramPlaces ofThisSession();
};

} // namespace kestrelfen
