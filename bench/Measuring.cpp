#include "bench/Measuring.hpp"

namespace kestrelfen {

namespace {

bool failed = false;

} // namespace

bool hasFailed() {
    return failed;
}

void fail(benchmark::State& state, const char* why) {
    failed = true;
    state.SkipWithError(why);
}

} // namespace kestrelfen
