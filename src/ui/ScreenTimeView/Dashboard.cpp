#include "ui/ScreenTimeView/Dashboard.hpp"

#include "core/BreakEngine.hpp"
#include "platform/ports/Calendar.hpp"
#include "screentime/ScreenTimeTracker.hpp"
#include "store/KestrelfenStore.hpp"

#include <algorithm>

namespace kestrelfen {

double Dashboard::activeSeconds() const {
    return sources_.screenTime.todayActiveSeconds();
}

Date Dashboard::startOfToday() const {
    return platform_.calendar.startOfDay(engine().now());
}

DaySummary Dashboard::today() const {
    const Date start = startOfToday();
    const auto& days = storedDays_.get();
    const auto found = std::find_if(days.begin(), days.end(),
                                    [start](const DaySummary& day) { return day.startOfDay == start; });
    return found == days.end() ? DaySummary{.startOfDay = start} : *found;
}

std::int64_t Dashboard::streak() const {
    return EyeScore::streak(storedDays_.get(), engine().now(), EyeScore::goodKeptRatio, platform_.calendar);
}

Week Dashboard::lastSevenDays() const {
    return Week::of(storedDays_.get(),
                    {.startOfDay = startOfToday(),
                     .breaksCompleted = engine().breaksCompletedToday(),
                     .breaksSkipped = engine().breaksSkippedToday(),
                     .activeSeconds = activeSeconds()},
                    platform_.calendar);
}

EyeScore Dashboard::eyeScore() const {
    return EyeScore::make(lastSevenDays().summaries(), longestStretch(), targets());
}

void Dashboard::seeAll() {
    detailSource_.set(usageSource());
    showingDetail_.set(true);
}

void Dashboard::takePendingDetail() {
    if (const auto source = sources_.navigation.pendingUsageDetail()) {
        detailSource_.set(*source);
        usageSource_.set(*source);
        showingDetail_.set(true);
        sources_.navigation.setPendingUsageDetail(std::nullopt);
    }
}

std::int64_t Dashboard::reloadToken() const {
    constexpr double secondsBetweenLoads = 30;
    return engine().breaksCompletedToday() * 10'000 + engine().breaksSkippedToday() * 100 +
           static_cast<std::int64_t>(activeSeconds() / secondsBetweenLoads);
}

void Dashboard::load() {
    loadedToken_ = reloadToken();
    load_.begin();
    if (sources_.store) {
        loadDays(startOfToday());
    } else {
        hasLoaded_.set(true);
    }
}

void Dashboard::loadIfChanged() {
    if (loadedToken_ && *loadedToken_ != reloadToken()) {
        load();
    }
}

void Dashboard::loadDays(Date today) {
    sources_.store->summaries(platform_.calendar.startOfDay(today, -streakDays),
                              load_.guard([this, today](std::vector<DaySummary> days) {
                                  storedDays_.set(std::move(days));
                                  loadApps(today);
                              }));
}

void Dashboard::loadApps(Date today) {
    sources_.store->appUsage(today, usageLimit, load_.guard([this, today](std::vector<AppUsageSummary> apps) {
        apps_.set(std::move(apps));
        loadWebsites(today);
    }));
}

void Dashboard::loadWebsites(Date today) {
    sources_.store->websiteUsage(today, usageLimit,
                                 load_.guard([this, today](std::vector<WebsiteUsageSummary> websites) {
                                     websites_.set(std::move(websites));
                                     loadLongestStretch(today);
                                 }));
}

void Dashboard::loadLongestStretch(Date today) {
    sources_.store->longestStretch(today, engine().now(), load_.guard([this](double seconds) {
        longestStretch_.set(seconds);
        hasLoaded_.set(true);
    }));
}

} // namespace kestrelfen
