#pragma once

namespace kestrelfen {

/// Stands for the end of the program at a programming fault, which a scenario may well ask for.
struct FaultReached {};

} // namespace kestrelfen
