#include "store/HistoryDatabase.hpp"

namespace kestrelfen {

std::int64_t HistoryDatabase::pruneHistory(Date before) {
    auto transaction = beginWriting();
    const std::int64_t count = query("DELETE FROM DayRecord WHERE startOfDay < ?", before).run();
    transaction.commit();
    return count;
}

std::int64_t HistoryDatabase::deleteAllHistory() {
    auto transaction = beginWriting();
    const std::int64_t count = query("DELETE FROM DayRecord WHERE true").run();
    transaction.commit();
    return count;
}

} // namespace kestrelfen
