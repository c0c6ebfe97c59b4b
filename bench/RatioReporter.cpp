#include "bench/RatioReporter.hpp"

#include <iomanip>
#include <unistd.h>

namespace kestrelfen {

RatioReporter::RatioReporter() : ConsoleReporter(isatty(STDOUT_FILENO) ? OO_ColorTabular : OO_Tabular) {}

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Iteration && run.cpu_accumulated_time > 0) {
            nanoseconds_[run.run_name.str()] =
                run.cpu_accumulated_time * 1e9 / static_cast<double>(run.iterations);
        }
    }
}

void RatioReporter::Finalize() {
    std::ostream& out = GetOutputStream();
    out << std::fixed << std::setprecision(2) << '\n';
    for (const Limit& limit : limits_) {
        const auto found = nanoseconds_.find(limit.name);
        if (found != nanoseconds_.end()) {
            out << limit.name << ": " << found->second / limit.nanoseconds << " times the "
                << limit.nanoseconds << " ns that it may take\n";
        }
    }
    for (const Pair& pair : pairs_) {
        const auto found = nanoseconds_.find(pair.name);
        const auto base = nanoseconds_.find(pair.base);
        if (found != nanoseconds_.end() && base != nanoseconds_.end()) {
            out << pair.name << ": " << found->second / base->second << " times " << pair.base << '\n';
        }
    }
}

} // namespace kestrelfen
