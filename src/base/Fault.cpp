#include "base/Fault.hpp"

#include <cstdio>
#include <cstdlib>

namespace kestrelfen {

void fault(const char* what) {
    std::fprintf(stderr, "kestrelfen: fault: %s\n", what);
    std::abort();
}

} // namespace kestrelfen
