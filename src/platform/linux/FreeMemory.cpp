#include "platform/linux/FreeMemory.hpp"

#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <sys/mman.h>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace kestrelfen {

void returnFreeMemory() {
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

void releaseCode() {
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        std::uintptr_t begin = 0;
        std::uintptr_t end = 0;
        char access[5] = "";
        const bool isRead =
            std::sscanf(line.c_str(), "%" SCNxPTR "-%" SCNxPTR " %4s", &begin, &end, access) == 3;
        // Code of a file is never written, so that nothing can be lost with it.
        if (isRead && std::strcmp(access, "r-xp") == 0 && line.find('/') != std::string::npos) {
            ::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_DONTNEED);
        }
    }
}

} // namespace kestrelfen
