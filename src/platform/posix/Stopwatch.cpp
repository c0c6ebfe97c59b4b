#include "platform/posix/Stopwatch.hpp"

namespace kestrelfen {

Stopwatch::Stopwatch() : start_(std::chrono::steady_clock::now()) {}

double Stopwatch::seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
}

} // namespace kestrelfen
