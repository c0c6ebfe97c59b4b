#include "bench/GeneratedStore.hpp"

#include "base/CivilTime.hpp"
#include "base/PauseKind.hpp"
#include "store/HistoryDatabase.hpp"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <map>
#include <memory>
#include <random>

namespace kestrelfen {

namespace {

constexpr int breaksADay = 30;
constexpr int pausesADay = 20;
constexpr int appsADay = 60;
constexpr int sitesADay = 100;
constexpr double morning = 8 * 3600.0;
constexpr double workingDay = 10 * 3600.0;

/// Writes rows by the thousand in one transaction, past the store's own ways, which save each.
class Generator {
  public:
    explicit Generator(const std::filesystem::path& file)
        : connection_(file.string(), SQLite::OPEN_READWRITE), transaction_(connection_) {}

    void addDay(Date start) {
        addRow(day_, start.microseconds(), breaksADay - 5, 5, 20'000.0 + random(9000), 3000.0);
        const std::int64_t day = connection_.getLastInsertRowid();
        for (int index = 0; index < breaksADay; ++index) {
            addBreak(start + morning + workingDay * index / breaksADay, index, day);
        }
        for (int index = 0; index < pausesADay; ++index) {
            addRow(pause_, (start + morning + workingDay * index / pausesADay).microseconds(),
                   10.0 + random(600), someKind(), day);
        }
        for (int index = 0; index < appsADay; ++index) {
            const std::string name = std::to_string(index / 2 + random(10));
            addRow(app_, "org.example.application" + name, "Application " + name, index % 2 + 1,
                   1.0 + random(1000) * 0.5, day);
        }
        for (int index = 0; index < sitesADay; ++index) {
            addRow(site_, "site" + std::to_string(index + random(300)) + ".example.org",
                   1.0 + random(500) * 0.5, day);
        }
    }

    void commit() { transaction_.commit(); }

  private:
    int random(int bound) { return static_cast<int>(engine_() % static_cast<unsigned>(bound)); }

    std::string someKind() {
        const auto& kinds = allCases<PauseKind>();
        return std::string(rawValue(kinds[static_cast<std::size_t>(random(static_cast<int>(kinds.size())))]));
    }

    void addBreak(Date startedAt, int index, std::int64_t day) {
        const bool skipped = index % 6 == 5;
        addRow(break_, startedAt.microseconds(), 20.0, skipped ? 0.0 : 20.0, index % 4 == 3 ? 1 : 0,
               std::string(skipped ? "skipped" : "completed"), 2, std::string("Write the report"), day);
    }

    template <typename... Values>
    static void addRow(SQLite::Statement& statement, const Values&... values) {
        int index = 0;
        (statement.bind(++index, values), ...);
        statement.exec();
        statement.reset();
    }

    std::mt19937 engine_{1};
    SQLite::Database connection_;
    SQLite::Transaction transaction_;
    SQLite::Statement day_{connection_, "INSERT INTO DayRecord (startOfDay, breaksCompleted, breaksSkipped, "
                                        "activeSeconds, pausedSeconds) VALUES (?, ?, ?, ?, ?)"};
    SQLite::Statement break_{connection_,
                             "INSERT INTO BreakRecord (startedAt, plannedSeconds, actualSeconds, isLong, "
                             "outcomeRawValue, displayCount, creditedTaskTitle, day) "
                             "VALUES (?, ?, ?, ?, ?, ?, ?, ?)"};
    SQLite::Statement pause_{
        connection_, "INSERT INTO PauseRecord (startedAt, seconds, kindRawValue, day) VALUES (?, ?, ?, ?)"};
    SQLite::Statement app_{connection_,
                           "INSERT INTO AppUsageRecord (bundleIdentifier, displayName, displayID, "
                           "activeSeconds, day) VALUES (?, ?, ?, ?, ?)"};
    SQLite::Statement site_{connection_,
                            "INSERT INTO WebsiteUsageRecord (domain, activeSeconds, day) VALUES (?, ?, ?)"};
};

} // namespace

const GeneratedStore& GeneratedStore::ofDays(int days) {
    static std::map<int, std::unique_ptr<GeneratedStore>> made;
    auto& store = made[days];
    if (!store) {
        store = std::make_unique<GeneratedStore>(days);
    }
    return *store;
}

GeneratedStore::GeneratedStore(int days) : today_(*parseIsoTime("2026-03-09T00:00:00Z")) {
    HistoryDatabase makesTheTables(configuration());
    Generator generator(file_);
    for (int day = days - 1; day >= 0; --day) {
        generator.addDay(daysAgo(day));
    }
    generator.commit();
}

StoreConfiguration GeneratedStore::copyIn(const TemporaryFolder& folder) const {
    const auto copy = folder / StoreConfiguration::fileName;
    std::filesystem::copy_file(file_, copy, std::filesystem::copy_options::overwrite_existing);
    return configurationOf(copy);
}

StoreConfiguration GeneratedStore::configurationOf(const std::filesystem::path& file) {
    StoreConfiguration configuration;
    configuration.file = file;
    return configuration;
}

} // namespace kestrelfen
