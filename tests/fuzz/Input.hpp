#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Takes one input, and stops the program where a promise about it is broken.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace kestrelfen {

inline std::string_view textOf(const std::uint8_t* bytes, std::size_t size) {
    return {reinterpret_cast<const char*>(bytes), size};
}

/// A promise about what was read.
inline void demand(bool holds) {
    if (!holds) {
        __builtin_trap();
    }
}

} // namespace kestrelfen
