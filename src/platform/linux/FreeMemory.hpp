#pragma once

namespace kestrelfen {

/// Gives memory that is no longer used back to the system.
void returnFreeMemory();

/// Lets go of the code and the constants that were needed until now and may not be needed again, of this
/// program, its libraries and its fonts. They stay in the system's cache, from where what is needed comes
/// back by itself. Takes about a millisecond.
void releaseCode();

} // namespace kestrelfen
