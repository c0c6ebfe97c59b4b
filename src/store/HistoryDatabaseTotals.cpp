#include "store/HistoryDatabase.hpp"

#include <algorithm>
#include <set>

namespace kestrelfen {

namespace {

/// Totals by name in the order of first appearance. Each row is added as it passes: grouped by the database,
/// all of them would be sorted first.
template <typename Total>
class Totals {
  public:
    Total& operator[](std::string name) {
        const auto [place, isNew] = places_.try_emplace(std::move(name), totals_.size());
        if (isNew) {
            totals_.emplace_back();
        }
        return totals_[place->second];
    }

    /// Most seconds first.
    std::vector<Total> sorted() && {
        std::stable_sort(totals_.begin(), totals_.end(), [](const Total& one, const Total& other) {
            return one.activeSeconds > other.activeSeconds;
        });
        return std::move(totals_);
    }

    std::vector<Total>& all() { return totals_; }

  private:
    std::unordered_map<std::string, std::size_t> places_;
    std::vector<Total> totals_;
};

} // namespace

std::vector<AppTotal> HistoryDatabase::appTotals(Date since) {
    beginReading();
    Query row = query("SELECT bundleIdentifier, displayName, displayID, AppUsageRecord.activeSeconds "
                      "FROM DayRecord CROSS JOIN AppUsageRecord ON AppUsageRecord.day = DayRecord.id "
                      "WHERE startOfDay >= ? ORDER BY DayRecord.id, AppUsageRecord.id",
                      since);
    Totals<AppTotal> totals;
    std::unordered_map<std::string, std::set<std::int64_t>> displays;
    while (row.next()) {
        std::string app = row.text(0);
        displays[app].insert(row.integer(2));
        AppTotal& total = totals[app];
        total.bundleIdentifier = std::move(app);
        total.displayName = row.text(1);
        total.activeSeconds += row.real(3);
    }
    for (AppTotal& total : totals.all()) {
        total.displayCount = static_cast<std::int64_t>(displays[total.bundleIdentifier].size());
    }
    return std::move(totals).sorted();
}

std::vector<WebsiteTotal> HistoryDatabase::websiteTotals(Date since) {
    beginReading();
    Query row = query("SELECT domain, WebsiteUsageRecord.activeSeconds, day "
                      "FROM DayRecord CROSS JOIN WebsiteUsageRecord ON WebsiteUsageRecord.day = DayRecord.id "
                      "WHERE startOfDay >= ? ORDER BY DayRecord.id, WebsiteUsageRecord.id",
                      since);
    Totals<WebsiteTotal> totals;
    std::unordered_map<std::string, std::int64_t> lastDays;
    while (row.next()) {
        std::string domain = row.text(0);
        WebsiteTotal& total = totals[domain];
        total.activeSeconds += row.real(1);
        const std::int64_t day = row.integer(2);
        std::int64_t& lastDay = lastDays[domain];
        total.dayCount += lastDay == day ? 0 : 1;
        lastDay = day;
        total.domain = std::move(domain);
    }
    return std::move(totals).sorted();
}

} // namespace kestrelfen
