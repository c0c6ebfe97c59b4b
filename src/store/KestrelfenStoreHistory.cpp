#include "base/CivilTime.hpp"
#include "store/HistoryCSV.hpp"
#include "store/KestrelfenStore.hpp"
#include "store/StorePerform.hpp"

namespace kestrelfen {

namespace {

/// "2026-03-09 00:00:00 +0000".
std::string description(Date date) {
    std::string text = isoTime(date, 0);
    text.replace(text.find('T'), 1, " ");
    text.replace(text.size() - 1, 1, " +0000");
    return text;
}

std::string csv(HistoryDatabase& database, Date since) {
    HistoryCSV text;
    database.visitHistory(since, HistoryCSV::entryLimit,
                          [&text](const HistoryEntry& entry) { text.add(entry); });
    return text.take();
}

} // namespace

// A history that cannot be read counts as empty, so the file then holds the header alone.
void KestrelfenStore::historyCSV(Date since, Completion<std::string> completion) {
    perform(
        "history", HistoryCSV().take(), [since](HistoryDatabase& database) { return csv(database, since); },
        std::move(completion));
}

void KestrelfenStore::pruneHistory(Date before, Completion<std::int64_t> completion) {
    perform(
        "pruneHistory", std::int64_t{0},
        [before, log = logger()](HistoryDatabase& database) {
            const std::int64_t count = database.pruneHistory(before);
            if (count > 0) {
                log.info("pruned " + std::to_string(count) + " day record(s) before " + description(before));
            }
            return count;
        },
        std::move(completion));
}

void KestrelfenStore::deleteAllHistory(Completion<std::int64_t> completion) {
    perform(
        "deleteAllHistory", std::int64_t{0},
        [log = logger()](HistoryDatabase& database) {
            const std::int64_t count = database.deleteAllHistory();
            log.info("deleted all history: " + std::to_string(count) + " day record(s)");
            return count;
        },
        std::move(completion));
}

} // namespace kestrelfen
