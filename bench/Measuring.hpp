#pragma once

#include "base/AllocationCounter.hpp"

#include <benchmark/benchmark.h>

#include <cstdint>

namespace kestrelfen {

/// Whether any benchmark found what must not be.
bool hasFailed();

/// Ends the benchmark with an error, and with it the program's success.
void fail(benchmark::State& state, const char* why);

/// Times `work` and counts how often it takes memory; answers that count.
template <typename Work>
std::uint64_t measure(benchmark::State& state, Work work) {
    work();
    std::uint64_t allocations = 0;
    for (auto iteration : state) {
        static_cast<void>(iteration);
        const std::uint64_t before = allocationCount();
        work();
        allocations += allocationCount() - before;
    }
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(allocations), benchmark::Counter::kAvgIterations);
    return allocations;
}

} // namespace kestrelfen
