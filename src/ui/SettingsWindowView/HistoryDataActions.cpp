#include "ui/SettingsWindowView/HistoryDataActions.hpp"

#include "base/Translated.hpp"
#include "platform/ports/Calendar.hpp"
#include "platform/ports/Clock.hpp"
#include "platform/ports/TextFileWriter.hpp"
#include "store/KestrelfenStore.hpp"

namespace kestrelfen {

namespace {

std::string lastComponent(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

} // namespace

HistoryDataActions::HistoryDataActions(const Platform& platform, KestrelfenStore* store,
                                       TextFileWriter& writer)
    : platform_(platform), store_(store), writer_(writer) {}

Date HistoryDataActions::exportStart(const Calendar& calendar, Date now) {
    return calendar.startOfDay(now, -exportedDays);
}

void HistoryDataActions::exportCSV(const std::string& path) {
    if (!store_) {
        return;
    }
    store_->historyCSV(exportStart(platform_.calendar, platform_.clock.now()),
                       lifeline_.guard([this, path](const std::string& text) { write(path, text); }));
}

void HistoryDataActions::write(const std::string& path, const std::string& text) {
    const auto error = writer_.write(path, text);
    exportMessage_.set(error ? translated("Couldn't write the file: %1", {*error})
                             : translated("Exported to %1.", {lastComponent(path)}));
}

void HistoryDataActions::deleteAllHistory() {
    if (!store_) {
        deletedDays_.set(0);
        return;
    }
    store_->deleteAllHistory(lifeline_.guard([this](std::int64_t removed) { deletedDays_.set(removed); }));
}

std::optional<std::string> HistoryDataActions::deletionMessage() const {
    const auto count = deletedDays();
    if (!count) {
        return std::nullopt;
    }
    return translatedCount(*count, "Deleted %1 day of history.", "Deleted %1 days of history.");
}

} // namespace kestrelfen
