#pragma once

namespace kestrelfen {

/// Stops the program at a programming fault: says `what` on standard error and aborts.
[[noreturn]] void fault(const char* what);

} // namespace kestrelfen
