#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace kestrelfen {

/// Prints times as usual and, at the end, those ratios of one run that hold on any machine.
class RatioReporter final : public benchmark::ConsoleReporter {
  public:
    RatioReporter();

    /// How many times as long as `base` the benchmark `name` takes.
    void compare(std::string name, std::string base) { pairs_.push_back({std::move(name), std::move(base)}); }

    /// Which part of `nanoseconds` the benchmark `name` takes.
    void compareWithLimit(std::string name, double nanoseconds) {
        limits_.push_back({std::move(name), nanoseconds});
    }

    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

  private:
    struct Pair {
        std::string name;
        std::string base;
    };

    struct Limit {
        std::string name;
        double nanoseconds;
    };

    std::vector<Pair> pairs_;
    std::vector<Limit> limits_;
    std::map<std::string, double> nanoseconds_;
};

} // namespace kestrelfen
