#include "store/StoreWriter.hpp"

#include <string>

namespace kestrelfen {

void StoreWriter::save(HistoryDatabase& database, std::int64_t number) {
    const Date day = Date::fromSeconds(number / 60 * 86'400);
    const Date instant = Date::fromSeconds(number);
    switch (number % kinds) {
    case 0:
    case 1: {
        BreakEntry entry;
        entry.startedAt = instant;
        entry.actualSeconds = 20;
        entry.outcome = number % kinds == 0 ? BreakOutcome::completed : BreakOutcome::skipped;
        entry.creditedTaskTitle = std::string(static_cast<std::size_t>(number * 7'919 % 9'000), 'x');
        entry.dayStart = day;
        database.recordBreak(entry);
        return;
    }
    case 2:
        return database.recordPause({instant, 1, PauseKind::userIdle, day});
    case 3:
        return database.addActiveTime({1, "app" + std::to_string(number), "App", 1, day});
    case 4:
        return database.addWebsiteTime({1, std::to_string(number) + ".example.org", day});
    default: {
        NewTask task;
        task.title = std::to_string(number);
        database.createTask(task);
    }
    }
}

} // namespace kestrelfen
