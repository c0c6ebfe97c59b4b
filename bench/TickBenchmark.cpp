#include "bench/BenchmarkMachine.hpp"
#include "bench/Benchmarks.hpp"
#include "bench/Measuring.hpp"

#include <string>

namespace kestrelfen {

namespace {

constexpr double mostNanosecondsPerTick = 1000;

using Ports = BenchmarkMachine::Ports;
using Moment = BenchmarkMachine::Moment;

std::string benchmarkName(Moment moment, Ports ports) {
    return "tick/" + std::string(BenchmarkMachine::name(moment)) + "/" +
           std::string(BenchmarkMachine::name(ports));
}

void measureTick(benchmark::State& state, Moment moment, Ports ports) {
    BenchmarkMachine machine(ports, moment);
    const std::uint64_t allocations = measure(state, [&machine] { machine.tick(); });
    if (!machine.isAtMoment()) {
        fail(state, "something came due");
    } else if (allocations != 0) {
        fail(state, "a tick with nothing due takes memory");
    }
}

} // namespace

void registerTickBenchmarks(RatioReporter& reporter) {
    for (const Moment moment : BenchmarkMachine::allMoments) {
        for (const Ports ports : BenchmarkMachine::allPorts) {
            const std::string name = benchmarkName(moment, ports);
            benchmark::RegisterBenchmark(name.c_str(), measureTick, moment, ports);
            reporter.compareWithLimit(name, mostNanosecondsPerTick);
        }
        reporter.compare(benchmarkName(moment, Ports::real), benchmarkName(moment, Ports::byHand));
    }
}

} // namespace kestrelfen
