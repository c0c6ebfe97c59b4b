#include "platform/linux/FreeMemory.hpp"

#include <cinttypes>
#include <cstdio>
#include <cstdlib>
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
    std::ifstream maps("/proc/self/smaps");
    std::uintptr_t begin = 0;
    std::uintptr_t end = 0;
    bool isFixedPartOfFile = false;
    for (std::string line; std::getline(maps, line);) {
        std::uintptr_t from = 0;
        std::uintptr_t to = 0;
        char access[5] = "";
        if (std::sscanf(line.c_str(), "%" SCNxPTR "-%" SCNxPTR " %4s", &from, &to, access) == 3) {
            begin = from;
            end = to;
            // Private and never to be written. What is compiled while the program runs lies in no file.
            isFixedPartOfFile =
                access[1] == '-' && access[3] == 'p' && line.find(" /") != std::string::npos &&
                line.find("memfd:") == std::string::npos && line.find("(deleted)") == std::string::npos;
        } else if (isFixedPartOfFile && line.starts_with("Private_Dirty:") &&
                   line.find(" 0 kB") != std::string::npos) {
            // Nothing was ever written there, so that nothing can be lost.
            ::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_DONTNEED);
        }
    }
}

} // namespace kestrelfen
