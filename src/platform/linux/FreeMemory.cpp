#include "platform/linux/FreeMemory.hpp"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace kestrelfen {

void returnFreeMemory() {
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

} // namespace kestrelfen
