#include "store/KestrelfenStore.hpp"

#include "base/Fault.hpp"
#include "store/StorePerform.hpp"

namespace kestrelfen {

namespace {

constexpr std::string_view logCategory = "Store";

void demandLimit(std::int64_t limit) {
    if (limit < 0) {
        fault("a negative limit");
    }
}

} // namespace

std::unique_ptr<KestrelfenStore> KestrelfenStore::make(const StoreConfiguration& configuration,
                                                       const Services& services) {
    try {
        return std::unique_ptr<KestrelfenStore>(
            new KestrelfenStore(std::make_shared<HistoryDatabase>(configuration), services));
    } catch (const std::exception& exception) {
        Logger(services.log, logCategory).error(std::string("store unavailable: ") + exception.what());
        return nullptr;
    }
}

KestrelfenStore::KestrelfenStore(std::shared_ptr<HistoryDatabase> database, const Services& services)
    : database_(std::move(database)), services_(services) {}

KestrelfenStore::~KestrelfenStore() = default;

Logger KestrelfenStore::logger() const {
    return {services_.log, logCategory};
}

void KestrelfenStore::recordBreak(BreakEntry entry, Completion<DaySummary> completion) {
    const DaySummary nothing{.startOfDay = entry.dayStart};
    perform(
        "recordBreak", nothing,
        [entry = std::move(entry)](HistoryDatabase& database) { return database.recordBreak(entry); },
        std::move(completion));
}

void KestrelfenStore::recordPause(PauseEntry entry, Done completion) {
    perform(
        "recordPause", [entry](HistoryDatabase& database) { database.recordPause(entry); },
        std::move(completion));
}

void KestrelfenStore::addActiveTime(ActiveTimeEntry entry, Done completion) {
    perform(
        "addActiveTime",
        [entry = std::move(entry)](HistoryDatabase& database) { database.addActiveTime(entry); },
        std::move(completion));
}

void KestrelfenStore::addWebsiteTime(WebsiteTimeEntry entry, Done completion) {
    perform(
        "addWebsiteTime",
        [entry = std::move(entry)](HistoryDatabase& database) { database.addWebsiteTime(entry); },
        std::move(completion));
}

void KestrelfenStore::summary(Date dayStart, Completion<DaySummary> completion) {
    perform(
        "summary", DaySummary{.startOfDay = dayStart},
        [dayStart](HistoryDatabase& database) { return database.summary(dayStart); }, std::move(completion));
}

void KestrelfenStore::summaries(Date since, Completion<std::vector<DaySummary>> completion) {
    perform(
        "summaries", std::vector<DaySummary>(),
        [since](HistoryDatabase& database) { return database.summaries(since); }, std::move(completion));
}

void KestrelfenStore::appUsage(Date dayStart, std::int64_t limit,
                               Completion<std::vector<AppUsageSummary>> completion) {
    demandLimit(limit);
    perform(
        "appUsage", std::vector<AppUsageSummary>(),
        [dayStart, limit](HistoryDatabase& database) { return database.appUsage(dayStart, limit); },
        std::move(completion));
}

void KestrelfenStore::websiteUsage(Date dayStart, std::int64_t limit,
                                   Completion<std::vector<WebsiteUsageSummary>> completion) {
    demandLimit(limit);
    perform(
        "websiteUsage", std::vector<WebsiteUsageSummary>(),
        [dayStart, limit](HistoryDatabase& database) { return database.websiteUsage(dayStart, limit); },
        std::move(completion));
}

void KestrelfenStore::appTotals(Date since, Completion<std::vector<AppTotal>> completion) {
    perform(
        "appTotals", std::vector<AppTotal>(),
        [since](HistoryDatabase& database) { return database.appTotals(since); }, std::move(completion));
}

void KestrelfenStore::websiteTotals(Date since, Completion<std::vector<WebsiteTotal>> completion) {
    perform(
        "websiteTotals", std::vector<WebsiteTotal>(),
        [since](HistoryDatabase& database) { return database.websiteTotals(since); }, std::move(completion));
}

void KestrelfenStore::longestStretch(Date dayStart, Date now, Completion<double> completion) {
    perform(
        "longestStretch", 0.0,
        [dayStart, now](HistoryDatabase& database) { return database.longestStretch(dayStart, now); },
        std::move(completion));
}

void KestrelfenStore::dayRecordCount(Completion<std::int64_t> completion) {
    perform(
        "dayRecordCount", std::int64_t{0},
        [](HistoryDatabase& database) { return database.dayRecordCount(); }, std::move(completion));
}

void KestrelfenStore::history(Date since, std::int64_t limit,
                              Completion<std::vector<HistoryEntry>> completion) {
    demandLimit(limit);
    perform(
        "history", std::vector<HistoryEntry>(),
        [since, limit](HistoryDatabase& database) { return database.history(since, limit); },
        std::move(completion));
}

} // namespace kestrelfen
