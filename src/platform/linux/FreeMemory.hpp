#pragma once

namespace kestrelfen {

/// Gives memory that is no longer used back to the system.
void returnFreeMemory();

/// Lets go of the code that was needed until now and may not be needed again, of this program and of its
/// libraries. It stays in the system's cache, from where what is needed comes back by itself. Takes about a
/// millisecond.
void releaseCode();

} // namespace kestrelfen
