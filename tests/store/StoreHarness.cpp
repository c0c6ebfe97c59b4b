#include "store/StoreHarness.hpp"

namespace kestrelfen {

StoreHarness::StoreHarness() {
    configuration.file = folder / StoreConfiguration::fileName;
}

bool StoreHarness::open() {
    close();
    store_ = KestrelfenStore::make(configuration, {executor, mainQueue, log});
    return store_ != nullptr;
}

void StoreHarness::close() {
    store_.reset();
}

void StoreHarness::drain() {
    bool isBusy = true;
    while (isBusy) {
        const bool anyJob = executor.drain();
        isBusy = mainQueue.drain() || anyJob;
    }
}

template <typename Result, typename Call>
Result StoreHarness::answerOf(Call call) {
    std::optional<Result> answer;
    call([&answer](Result result) { answer = std::move(result); });
    drain();
    if (!answer) {
        throw std::logic_error("the store has not answered");
    }
    return *std::move(answer);
}

DaySummary StoreHarness::recordBreak(const BreakEntry& entry) {
    return answerOf<DaySummary>([&](auto done) { store_->recordBreak(entry, done); });
}

void StoreHarness::recordPause(const PauseEntry& entry) {
    answerOf<bool>([&](auto done) { store_->recordPause(entry, [done] { done(true); }); });
}

void StoreHarness::addActiveTime(const ActiveTimeEntry& entry) {
    answerOf<bool>([&](auto done) { store_->addActiveTime(entry, [done] { done(true); }); });
}

void StoreHarness::addWebsiteTime(const WebsiteTimeEntry& entry) {
    answerOf<bool>([&](auto done) { store_->addWebsiteTime(entry, [done] { done(true); }); });
}

DaySummary StoreHarness::summary(Date dayStart) {
    return answerOf<DaySummary>([&](auto done) { store_->summary(dayStart, done); });
}

std::vector<DaySummary> StoreHarness::summaries(Date since) {
    return answerOf<std::vector<DaySummary>>([&](auto done) { store_->summaries(since, done); });
}

std::vector<AppUsageSummary> StoreHarness::appUsage(Date dayStart, std::int64_t limit) {
    return answerOf<std::vector<AppUsageSummary>>(
        [&](auto done) { store_->appUsage(dayStart, limit, done); });
}

std::vector<WebsiteUsageSummary> StoreHarness::websiteUsage(Date dayStart, std::int64_t limit) {
    return answerOf<std::vector<WebsiteUsageSummary>>(
        [&](auto done) { store_->websiteUsage(dayStart, limit, done); });
}

std::vector<AppTotal> StoreHarness::appTotals(Date since) {
    return answerOf<std::vector<AppTotal>>([&](auto done) { store_->appTotals(since, done); });
}

std::vector<WebsiteTotal> StoreHarness::websiteTotals(Date since) {
    return answerOf<std::vector<WebsiteTotal>>([&](auto done) { store_->websiteTotals(since, done); });
}

double StoreHarness::longestStretch(Date dayStart, Date now) {
    return answerOf<double>([&](auto done) { store_->longestStretch(dayStart, now, done); });
}

std::int64_t StoreHarness::dayRecordCount() {
    return answerOf<std::int64_t>([&](auto done) { store_->dayRecordCount(done); });
}

std::vector<HistoryEntry> StoreHarness::history(Date since, std::int64_t limit) {
    return answerOf<std::vector<HistoryEntry>>([&](auto done) { store_->history(since, limit, done); });
}

std::string StoreHarness::historyCSV(Date since) {
    return answerOf<std::string>([&](auto done) { store_->historyCSV(since, done); });
}

std::int64_t StoreHarness::pruneHistory(Date before) {
    return answerOf<std::int64_t>([&](auto done) { store_->pruneHistory(before, done); });
}

std::int64_t StoreHarness::deleteAllHistory() {
    return answerOf<std::int64_t>([&](auto done) { store_->deleteAllHistory(done); });
}

std::vector<TaskSummary> StoreHarness::tasks() {
    return answerOf<std::vector<TaskSummary>>([&](auto done) { store_->tasks(done); });
}

std::optional<TaskSummary> StoreHarness::createTask(const NewTask& task) {
    return answerOf<std::optional<TaskSummary>>([&](auto done) { store_->createTask(task, done); });
}

void StoreHarness::updateTask(TaskID id, const TaskChanges& changes) {
    answerOf<bool>([&](auto done) { store_->updateTask(id, changes, [done] { done(true); }); });
}

void StoreHarness::setTaskCompleted(TaskID id, bool completed, Date now) {
    answerOf<bool>([&](auto done) { store_->setTaskCompleted(id, completed, now, [done] { done(true); }); });
}

void StoreHarness::creditBreak(TaskID id) {
    answerOf<bool>([&](auto done) { store_->creditBreak(id, [done] { done(true); }); });
}

void StoreHarness::reorderTasks(const std::vector<TaskID>& ids) {
    answerOf<bool>([&](auto done) { store_->reorderTasks(ids, [done] { done(true); }); });
}

void StoreHarness::deleteTask(TaskID id) {
    answerOf<bool>([&](auto done) { store_->deleteTask(id, [done] { done(true); }); });
}

std::int64_t StoreHarness::deleteCompletedTasks() {
    return answerOf<std::int64_t>([&](auto done) { store_->deleteCompletedTasks(done); });
}

TaskSummary StoreHarness::makeTask(const std::string& title) {
    return createTask(newTask(title)).value();
}

std::vector<std::string> StoreHarness::taskTitles() {
    std::vector<std::string> titles;
    for (const TaskSummary& task : tasks()) {
        titles.push_back(task.title);
    }
    return titles;
}

void StoreHarness::execute(const std::string& sql) const {
    SQLite::Database(configuration.file.string(), SQLite::OPEN_READWRITE, 1000).exec(sql);
}

std::int64_t StoreHarness::number(const std::string& sql) const {
    return SQLite::Database(configuration.file.string(), SQLite::OPEN_READONLY, 1000)
        .execAndGet(sql)
        .getInt64();
}

std::string StoreHarness::text(const std::string& sql) const {
    return SQLite::Database(configuration.file.string(), SQLite::OPEN_READONLY, 1000)
        .execAndGet(sql)
        .getString();
}

std::int64_t StoreHarness::rowCount() const {
    return number("SELECT (SELECT count(*) FROM DayRecord) + (SELECT count(*) FROM BreakRecord) + "
                  "(SELECT count(*) FROM AppUsageRecord) + (SELECT count(*) FROM WebsiteUsageRecord) + "
                  "(SELECT count(*) FROM PauseRecord) + (SELECT count(*) FROM TaskRecord)");
}

std::vector<std::string> StoreHarness::takeLog() {
    std::vector<std::string> result;
    for (const FakeLog::Line& line : log.lines()) {
        const std::string category = line.category == "Store" ? "" : " (" + line.category + ")";
        result.push_back(std::string(rawValue(line.level)) + category + ": " + line.text);
    }
    log.clear();
    return result;
}

Date today() {
    return at("00:00:00");
}

Date yesterday() {
    return at("2026-03-08 00:00:00");
}

BreakEntry completedBreak(Date startedAt, double actualSeconds, Date dayStart) {
    BreakEntry entry;
    entry.startedAt = startedAt;
    entry.plannedSeconds = 20;
    entry.actualSeconds = actualSeconds;
    entry.displayCount = 1;
    entry.dayStart = dayStart;
    return entry;
}

BreakEntry longBreak(Date startedAt, double actualSeconds, Date dayStart) {
    BreakEntry entry = completedBreak(startedAt, actualSeconds, dayStart);
    entry.isLong = true;
    return entry;
}

BreakEntry skippedBreak(Date startedAt, Date dayStart) {
    BreakEntry entry = completedBreak(startedAt, 0, dayStart);
    entry.outcome = BreakOutcome::skipped;
    return entry;
}

BreakEntry titled(BreakEntry entry, std::string title) {
    entry.creditedTaskTitle = std::move(title);
    return entry;
}

PauseEntry pauseOf(PauseKind kind, Date startedAt, double seconds, Date dayStart) {
    return {startedAt, seconds, kind, dayStart};
}

ActiveTimeEntry activeTime(double seconds, std::optional<std::string> app, std::int64_t displayID,
                           Date dayStart) {
    std::optional<std::string> name = app ? std::optional(*app + "'s name") : std::nullopt;
    return {seconds, std::move(app), std::move(name), displayID, dayStart};
}

WebsiteTimeEntry websiteTime(double seconds, std::string domain, Date dayStart) {
    return {seconds, std::move(domain), dayStart};
}

NewTask newTask(std::string title, Date now) {
    NewTask task;
    task.title = std::move(title);
    task.now = now;
    return task;
}

} // namespace kestrelfen
