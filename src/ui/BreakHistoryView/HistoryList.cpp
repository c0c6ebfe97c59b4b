#include "ui/BreakHistoryView/HistoryList.hpp"

#include "core/BreakEngine.hpp"
#include "platform/ports/Calendar.hpp"
#include "platform/ports/Clock.hpp"
#include "store/KestrelfenStore.hpp"

namespace kestrelfen {

void HistoryList::setRange(DayRange range) {
    range_.set(range);
    loadIfChanged();
}

std::string HistoryList::reloadToken() const {
    return std::string(rawValue(range())) + "-" + std::to_string(engine_.breaksCompletedToday()) + "-" +
           std::to_string(engine_.breaksSkippedToday());
}

void HistoryList::load() {
    loadedToken_ = reloadToken();
    load_.begin();
    if (!store_) {
        hasLoaded_.set(true);
        return;
    }
    const Date since = platform_.calendar.startOfDay(platform_.clock.now(), dayOffset(range()));
    store_->history(since, entryLimit, load_.guard([this](std::vector<HistoryEntry> entries) {
        entries_.set(std::move(entries));
        hasLoaded_.set(true);
    }));
}

void HistoryList::loadIfChanged() {
    if (loadedToken_ && *loadedToken_ != reloadToken()) {
        load();
    }
}

} // namespace kestrelfen
