#include "bench/BenchmarkMachine.hpp"
#include "bench/Benchmarks.hpp"
#include "bench/Measuring.hpp"

#include <string>

namespace kestrelfen {

namespace {

constexpr double secondsPerDay = 86'400;

using Ports = BenchmarkMachine::Ports;

void measureSameDay(benchmark::State& state, Ports ports) {
    BenchmarkMachine machine(ports, BenchmarkMachine::Moment::working);
    const Date now = machine.engine().now();
    measure(state, [&] { benchmark::DoNotOptimize(machine.calendar().startOfDay(now)); });
}

void measureOtherDay(benchmark::State& state, Ports ports) {
    BenchmarkMachine machine(ports, BenchmarkMachine::Moment::working);
    const Date today = machine.engine().now();
    const Date tomorrow = today + secondsPerDay;
    measure(state, [&, isTomorrow = false]() mutable {
        isTomorrow = !isTomorrow;
        benchmark::DoNotOptimize(machine.calendar().startOfDay(isTomorrow ? tomorrow : today));
    });
}

} // namespace

void registerCalendarBenchmarks(RatioReporter& reporter) {
    for (const Ports ports : BenchmarkMachine::allPorts) {
        const std::string name(BenchmarkMachine::name(ports));
        benchmark::RegisterBenchmark(("startOfDay/same/" + name).c_str(), measureSameDay, ports);
        benchmark::RegisterBenchmark(("startOfDay/other/" + name).c_str(), measureOtherDay, ports);
        reporter.compare("startOfDay/other/" + name, "startOfDay/same/" + name);
    }
}

} // namespace kestrelfen
