#include "ui/UsageDetailView/UsageDetail.hpp"

#include "platform/ports/Calendar.hpp"
#include "store/KestrelfenStore.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

void addDisplay(std::vector<AppTotal>& totals, const AppUsageSummary& usage) {
    const auto known = std::find_if(totals.begin(), totals.end(), [&usage](const AppTotal& total) {
        return total.bundleIdentifier == usage.bundleIdentifier;
    });
    if (known == totals.end()) {
        totals.push_back({usage.bundleIdentifier, usage.displayName, usage.activeSeconds, 1});
    } else {
        known->activeSeconds += usage.activeSeconds;
        ++known->displayCount;
    }
}

std::vector<AppTotal> totalsOf(const std::vector<AppUsageSummary>& apps) {
    std::vector<AppTotal> totals;
    for (const AppUsageSummary& app : apps) {
        addDisplay(totals, app);
    }
    std::stable_sort(totals.begin(), totals.end(), [](const AppTotal& one, const AppTotal& other) {
        return one.activeSeconds > other.activeSeconds;
    });
    return totals;
}

std::vector<WebsiteTotal> totalsOf(const std::vector<WebsiteUsageSummary>& websites) {
    std::vector<WebsiteTotal> totals;
    for (const WebsiteUsageSummary& website : websites) {
        totals.push_back({website.domain, website.activeSeconds, 1});
    }
    return totals;
}

} // namespace

UsageDetail::UsageDetail(const Platform& platform, KestrelfenStore* store, const Opening& opening)
    : platform_(platform), store_(store), dayStart_(opening.dayStart), source_(changes_, opening.source),
      totals_(changes_, totalsOf(opening.apps)), sites_(changes_, totalsOf(opening.websites)) {}

void UsageDetail::setSource(UsageSource source) {
    source_.set(source);
    loadIfChanged();
}

void UsageDetail::setRange(DayRange range) {
    range_.set(range);
    loadIfChanged();
}

std::string UsageDetail::loadToken() const {
    return std::string(rawValue(source())) + "-" + std::string(rawValue(range()));
}

void UsageDetail::loadIfChanged() {
    if (loadedToken_ && *loadedToken_ != loadToken()) {
        load();
    }
}

void UsageDetail::load() {
    loadedToken_ = loadToken();
    load_.begin();
    if (!store_) {
        hasLoaded_.set(true);
        return;
    }
    const Date since = platform_.calendar.startOfDay(dayStart_, dayOffset(range()));
    switch (source()) {
    case UsageSource::apps:
        store_->appTotals(since, load_.guard([this](std::vector<AppTotal> totals) {
            totals_.set(std::move(totals));
            hasLoaded_.set(true);
        }));
        return;
    case UsageSource::websites:
        store_->websiteTotals(since, load_.guard([this](std::vector<WebsiteTotal> sites) {
            sites_.set(std::move(sites));
            hasLoaded_.set(true);
        }));
        return;
    }
}

void UsageDetail::assign(const std::string& bundleIdentifier, AppCategory category) {
    kestrelfen::setCategory(category, bundleIdentifier, platform_.preferences);
    categoryRevision_.set(categoryRevision_.get() + 1);
}

void UsageDetail::resetCategory(const std::string& bundleIdentifier) {
    clearOverride(bundleIdentifier, platform_.preferences);
    categoryRevision_.set(categoryRevision_.get() + 1);
}

} // namespace kestrelfen
