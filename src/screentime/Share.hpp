#pragma once

#include <cstdint>

namespace kestrelfen {

/// What `part` is of `whole`; 0 where there is no whole.
constexpr double shareOf(std::int64_t part, std::int64_t whole) {
    return whole == 0 ? 0.0 : static_cast<double>(part) / static_cast<double>(whole);
}

} // namespace kestrelfen
