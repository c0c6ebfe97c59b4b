#include "bench/Benchmarks.hpp"
#include "bench/Measuring.hpp"

#include <iostream>

int main(int count, char** arguments) {
    benchmark::Initialize(&count, arguments);
    if (benchmark::ReportUnrecognizedArguments(count, arguments)) {
        return 2;
    }
#ifndef NDEBUG
    std::cerr << "Not an optimised build: the times tell nothing.\n";
#endif
    kestrelfen::RatioReporter reporter;
    kestrelfen::registerTickBenchmarks(reporter);
    kestrelfen::registerCalendarBenchmarks(reporter);
    kestrelfen::registerContentBenchmarks(reporter);
    kestrelfen::registerStoreBenchmarks(reporter);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return kestrelfen::hasFailed() ? 1 : 0;
}
