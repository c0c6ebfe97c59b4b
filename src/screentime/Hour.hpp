#pragma once

namespace kestrelfen {

constexpr double secondsPerHour = 3'600.0;

} // namespace kestrelfen
