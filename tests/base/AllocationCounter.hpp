#pragma once

#include <cstdint>

namespace kestrelfen {

/// How often this process has taken memory with `new` so far. One thread only.
std::uint64_t allocationCount();

} // namespace kestrelfen
