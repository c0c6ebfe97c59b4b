#include "bench/RatioReporter.hpp"

#include <iomanip>

namespace kestrelfen {

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Iteration && run.iterations > 0) {
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
            out << limit.name << ": " << found->second / limit.nanoseconds << " of " << limit.nanoseconds
                << " ns\n";
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
