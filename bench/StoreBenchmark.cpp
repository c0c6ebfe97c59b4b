#include "bench/Benchmarks.hpp"
#include "bench/GeneratedStore.hpp"
#include "bench/Measuring.hpp"
#include "bench/ResidentSize.hpp"
#include "store/HistoryCSV.hpp"
#include "store/HistoryDatabase.hpp"

#include <chrono>
#include <ctime>
#include <functional>
#include <string>

namespace kestrelfen {

namespace {

constexpr double milliseconds = 1e6;
constexpr std::int64_t rowsOfACsv = 100'000;
constexpr double largestCsvGrowth = 64.0 * 1024 * 1024;

using Work = std::function<void(HistoryDatabase&, const GeneratedStore&)>;

void loadDashboard(HistoryDatabase& database, const GeneratedStore& store) {
    benchmark::DoNotOptimize(database.summaries(store.daysAgo(59)));
    benchmark::DoNotOptimize(database.appUsage(store.today(), 20));
    benchmark::DoNotOptimize(database.websiteUsage(store.today(), 20));
    benchmark::DoNotOptimize(database.longestStretch(store.today(), store.today() + 64'800));
}

struct Reading {
    const char* name;
    double limit;
    Work work;
};

const std::vector<Reading>& readings() {
    static const std::vector<Reading> all{
        {"dashboard", 10 * milliseconds, loadDashboard},
        {"history-30-days", 10 * milliseconds,
         [](auto& database, auto& store) {
             benchmark::DoNotOptimize(database.history(store.daysAgo(29), 500));
         }},
        {"app-totals-30-days", 10 * milliseconds,
         [](auto& database, auto& store) {
             benchmark::DoNotOptimize(database.appTotals(store.daysAgo(29)));
         }},
        {"website-totals-30-days", 10 * milliseconds,
         [](auto& database, auto& store) {
             benchmark::DoNotOptimize(database.websiteTotals(store.daysAgo(29)));
         }},
        {"app-totals-all", 400 * milliseconds,
         [](auto& database, auto& store) {
             benchmark::DoNotOptimize(database.appTotals(store.daysAgo(GeneratedStore::daysOfTenYears)));
         }},
        {"website-totals-all", 400 * milliseconds,
         [](auto& database, auto& store) {
             benchmark::DoNotOptimize(database.websiteTotals(store.daysAgo(GeneratedStore::daysOfTenYears)));
         }},
    };
    return all;
}

void measureReading(benchmark::State& state, const Work& work, int days) {
    const GeneratedStore& store = GeneratedStore::ofDays(days);
    HistoryDatabase database(store.configuration());
    measure(state, [&] { work(database, store); });
}

void measureOpening(benchmark::State& state, int days) {
    const StoreConfiguration configuration = GeneratedStore::ofDays(days).configuration();
    measure(state, [&] { HistoryDatabase database(configuration); });
}

void measureCsv(benchmark::State& state, int days) {
    const GeneratedStore& store = GeneratedStore::ofDays(days);
    HistoryDatabase database(store.configuration());
    double growth = 0;
    for (auto iteration : state) {
        static_cast<void>(iteration);
        const ResidentSize before;
        HistoryCSV csv;
        database.visitHistory(store.daysAgo(GeneratedStore::daysOfTenYears), rowsOfACsv,
                              [&csv](const HistoryEntry& entry) { csv.add(entry); });
        growth = std::max(growth, before.growthAtPeak());
    }
    state.counters["MiB above"] = growth / 1024 / 1024;
    if (growth > largestCsvGrowth) {
        fail(state, "the text takes too much memory");
    }
}

/// Each iteration has a fresh copy of the store; only the work counts.
void measureSpoiling(benchmark::State& state, const Work& work, int days) {
    const GeneratedStore& store = GeneratedStore::ofDays(days);
    for (auto iteration : state) {
        static_cast<void>(iteration);
        const TemporaryFolder folder;
        HistoryDatabase database(store.copyIn(folder));
        const auto start = std::chrono::steady_clock::now();
        work(database, store);
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}

double threadSeconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// In processor time: how long the disk takes is the disk's.
void measureAddingActiveTime(benchmark::State& state, int days) {
    const GeneratedStore& store = GeneratedStore::ofDays(days);
    const TemporaryFolder folder;
    HistoryDatabase database(store.copyIn(folder));
    const ActiveTimeEntry entry{.seconds = 1,
                                .bundleIdentifier = "org.example.application30",
                                .displayName = "Application 30",
                                .displayID = 1,
                                .dayStart = store.today()};
    for (auto iteration : state) {
        static_cast<void>(iteration);
        const double start = threadSeconds();
        database.addActiveTime(entry);
        state.SetIterationTime(threadSeconds() - start);
    }
}

class Registration {
  public:
    explicit Registration(RatioReporter& reporter) : reporter_(reporter) {}

    /// At one and at ten years, and how the two compare.
    template <typename Function, typename... Arguments>
    void add(const std::string& subject, double limit, bool manual, Function function,
             Arguments... arguments) {
        const std::string year = "store/" + subject + "/1-year";
        const std::string decade = "store/" + subject + "/10-years";
        const std::string suffix = manual ? "/manual_time" : "";
        for (const auto& [name, days] : {std::pair(year, GeneratedStore::daysOfAYear),
                                         std::pair(decade, GeneratedStore::daysOfTenYears)}) {
            auto* const registered = benchmark::RegisterBenchmark(name.c_str(), function, arguments..., days)
                                         ->Unit(benchmark::kMillisecond);
            if (manual) {
                registered->UseManualTime();
            }
            reporter_.compareWithLimit(name + suffix, limit);
        }
        reporter_.compare(decade + suffix, year + suffix);
    }

  private:
    RatioReporter& reporter_;
};

void pruneAYear(HistoryDatabase& database, const GeneratedStore& store) {
    database.pruneHistory(store.daysAgo(static_cast<int>(database.dayRecordCount()) - 1 - 364));
}

void deleteEverything(HistoryDatabase& database, const GeneratedStore& /*store*/) {
    database.deleteAllHistory();
}

} // namespace

void registerStoreBenchmarks(RatioReporter& reporter) {
    Registration registration(reporter);
    for (const Reading& reading : readings()) {
        registration.add(reading.name, reading.limit, false, measureReading, reading.work);
    }
    registration.add("opening", 30 * milliseconds, false, measureOpening);
    registration.add("csv", 400 * milliseconds, false, measureCsv);
    registration.add("add-active-time", 2 * milliseconds, true, measureAddingActiveTime);
    registration.add("prune-a-year", 1000 * milliseconds, true, measureSpoiling, Work(pruneAYear));
    registration.add("delete-all-history", 5000 * milliseconds, true, measureSpoiling,
                     Work(deleteEverything));
}

} // namespace kestrelfen
