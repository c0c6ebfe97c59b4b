#include "bench/BenchmarkMachine.hpp"
#include "bench/Benchmarks.hpp"
#include "bench/Measuring.hpp"
#include "ui/BreakOverlayView/BreakOverlayContent.hpp"
#include "ui/MenuBarView/MenuBarContent.hpp"
#include "ui/MenuBarView/StatusItemContent.hpp"
#include "ui/PreBreakWarningView/PreBreakWarningContent.hpp"

#include <string>

namespace kestrelfen {

namespace {

using Ports = BenchmarkMachine::Ports;
using Moment = BenchmarkMachine::Moment;
using Question = void (*)(BenchmarkMachine&);

void askGates(BenchmarkMachine& machine) {
    const BreakEngine& engine = machine.engine();
    bool isAny = engine.canPostpone();
    isAny |= engine.canSnooze();
    isAny |= engine.canSkipNextBreak();
    isAny |= engine.canSkipCurrentBreak();
    isAny |= engine.canEndBreakEarly();
    benchmark::DoNotOptimize(isAny);
}

void askStatusItem(BenchmarkMachine& machine) {
    benchmark::DoNotOptimize(StatusItemContent::of(machine.engine()));
}

void askMenuBar(BenchmarkMachine& machine) {
    benchmark::DoNotOptimize(MenuBarContent::of(machine.engine(), 3600, std::nullopt));
}

void askWarning(BenchmarkMachine& machine) {
    benchmark::DoNotOptimize(PreBreakWarningContent::of(machine.engine()));
}

void askOverlay(BenchmarkMachine& machine) {
    benchmark::DoNotOptimize(BreakOverlayContent::of(machine.engine(), machine.preferences(), 2));
}

struct Subject {
    const char* name;
    Moment moment;
    Question question;
};

constexpr std::array subjects{
    Subject{"gates/working", Moment::working, askGates},
    Subject{"gates/onBreak", Moment::onBreak, askGates},
    Subject{"content/StatusItem", Moment::working, askStatusItem},
    Subject{"content/MenuBar", Moment::working, askMenuBar},
    Subject{"content/PreBreakWarning", Moment::warning, askWarning},
    Subject{"content/BreakOverlay", Moment::onBreak, askOverlay},
};

void measureQuestion(benchmark::State& state, const Subject& subject, Ports ports) {
    BenchmarkMachine machine(ports, subject.moment);
    measure(state, [&] { subject.question(machine); });
}

} // namespace

void registerContentBenchmarks(RatioReporter& reporter) {
    for (const Subject& subject : subjects) {
        const std::string name = std::string(subject.name) + "/";
        for (const Ports ports : BenchmarkMachine::allPorts) {
            benchmark::RegisterBenchmark((name + std::string(BenchmarkMachine::name(ports))).c_str(),
                                         measureQuestion, subject, ports);
        }
        reporter.compare(name + "real", name + "byHand");
    }
}

} // namespace kestrelfen
