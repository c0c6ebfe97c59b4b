#pragma once

#include <cstdint>
#include <string>

namespace kestrelfen {

/// "1 day", "2 days".
inline std::string counted(std::int64_t count, const char* noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

} // namespace kestrelfen
