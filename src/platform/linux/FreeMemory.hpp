#pragma once

namespace kestrelfen {

/// Gives memory that is no longer used back to the system.
void returnFreeMemory();

} // namespace kestrelfen
