#include "Output.hpp"

#include <cstdio>

namespace kestrelfen {

void Output::line(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fputc('\n', stdout);
}

void Output::flush() {
    std::fflush(stdout);
}

} // namespace kestrelfen
