#pragma once

#include <cstdint>

namespace kestrelfen {

/// Seconds as whole ones. They must be finite and fit 64 bits; anything else is a programming fault.
struct WholeSeconds {
    static std::int64_t nearest(double seconds);
    static std::int64_t roundedUp(double seconds);
};

} // namespace kestrelfen
