#include "platform/linux/FreeMemory.hpp"

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <optional>
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

namespace {

struct Mapping {
    void* begin = nullptr;
    void* end = nullptr;
    /// Private, of a file, and never to be written. What is compiled while the program runs lies in no file.
    bool isFixedPartOfFile = false;

    std::size_t length() const {
        return static_cast<std::size_t>(static_cast<char*>(end) - static_cast<char*>(begin));
    }
};

std::optional<Mapping> mappingOf(const std::string& line) {
    Mapping mapping;
    char access[5] = "";
    if (std::sscanf(line.c_str(), "%p-%p %4s", &mapping.begin, &mapping.end, access) != 3) {
        return std::nullopt;
    }
    mapping.isFixedPartOfFile =
        access[1] == '-' && access[3] == 'p' && line.find(" /") != std::string::npos &&
        line.find("memfd:") == std::string::npos && line.find("(deleted)") == std::string::npos;
    return mapping;
}

bool isNothing(const std::string& line) {
    return line.find(" 0 kB") != std::string::npos;
}

} // namespace

void releaseCode() {
    std::ifstream maps("/proc/self/smaps");
    Mapping mapping;
    bool wasWritten = false;
    for (std::string line; std::getline(maps, line);) {
        if (const auto next = mappingOf(line)) {
            mapping = *next;
            wasWritten = false;
        } else if (line.starts_with("Private_Dirty:") || line.starts_with("Anonymous:")) {
            wasWritten = wasWritten || !isNothing(line);
        } else if (line.starts_with("Swap:") && mapping.isFixedPartOfFile && !wasWritten && isNothing(line)) {
            // Nothing was ever written there, be it in memory or swapped out, so that nothing can be lost.
            ::madvise(mapping.begin, mapping.length(), MADV_DONTNEED);
        }
    }
}

} // namespace kestrelfen
