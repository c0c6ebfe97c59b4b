#include "screentime/TrackerHarness.hpp"

#include <algorithm>
#include <stdexcept>

namespace kestrelfen {

namespace {

constexpr std::int64_t everyRow = 1000;

std::string joined(std::vector<std::string> rows) {
    std::string text;
    for (const std::string& row : rows) {
        text += row + "\n";
    }
    return text;
}

std::string bucketText(const std::string& bundleIdentifier, const std::string& displayName,
                       std::int64_t displayID, double seconds) {
    return bundleIdentifier + " '" + displayName + "' " + std::to_string(displayID) + ": " +
           secondsText(seconds);
}

std::string siteText(const std::string& domain, double seconds) {
    return domain + ": " + secondsText(seconds);
}

} // namespace

TrackerHarness::TrackerHarness(FakePlatform& fakePlatform, Trace& itsTrace)
    : platform(fakePlatform), trace(itsTrace), browserScripting_(fakePlatform.ports()) {
    platform.log.onLine = [this](const FakeLog::Line& line) {
        trace.add("log " + std::string(rawValue(line.level)) + " " + line.category + ": " + line.text);
    };
    platform.standardOutput.onPrint = [this](const std::string& line) { trace.add("stdout " + line); };
    platform.browserAccess.onScript = [this](const std::string& browser) { trace.add("script " + browser); };
}

ScreenTimeTracker& TrackerHarness::create() {
    const Date now = platform.clock.now();
    tracker = std::make_unique<ScreenTimeTracker>(platform.ports(), store.get(), browserScripting_,
                                                  platform.calendar.startOfDay(now), now);
    tracker->onFlushed = [this](std::size_t buckets, std::size_t sites) {
        trace.add("flush " + std::to_string(buckets) + " " + std::to_string(sites));
    };
    return *tracker;
}

void TrackerHarness::openStore() {
    const auto failIfWanted = [this] {
        if (!storeFailure.empty()) {
            throw std::runtime_error(storeFailure);
        }
    };
    store = KestrelfenStore::make({folder_ / StoreConfiguration::fileName, {}, failIfWanted},
                                  {platform.storeExecutor, platform.mainQueue, platform.log});
}

void TrackerHarness::settle() {
    bool any = true;
    while (any) {
        const bool ranTasks = platform.mainQueue.drain();
        const bool ranJobs = platform.storeExecutor.drain();
        any = ranTasks || ranJobs;
    }
}

std::string TrackerHarness::pending() const {
    std::vector<std::string> rows;
    for (const auto& [bucket, seconds] : tracker->pending()) {
        rows.push_back(bucketText(bucket.bundleIdentifier, bucket.displayName, bucket.displayID, seconds));
    }
    for (const auto& [domain, seconds] : tracker->pendingWebsites()) {
        rows.push_back(siteText(domain, seconds));
    }
    return joined(rows);
}

DaySummary TrackerHarness::summary(Date dayStart) {
    DaySummary result;
    store->summary(dayStart, [&](const DaySummary& summary) { result = summary; });
    settle();
    return result;
}

std::string TrackerHarness::stored(Date dayStart) {
    std::vector<std::string> apps;
    std::vector<std::string> sites;
    store->appUsage(dayStart, everyRow, [&](const std::vector<AppUsageSummary>& rows) {
        for (const AppUsageSummary& row : rows) {
            apps.push_back(
                bucketText(row.bundleIdentifier, row.displayName, row.displayID, row.activeSeconds));
        }
    });
    store->websiteUsage(dayStart, everyRow, [&](const std::vector<WebsiteUsageSummary>& rows) {
        for (const WebsiteUsageSummary& row : rows) {
            sites.push_back(siteText(row.domain, row.activeSeconds));
        }
    });
    const std::string active = "active: " + secondsText(summary(dayStart).activeSeconds) + "\n";
    std::sort(apps.begin(), apps.end());
    std::sort(sites.begin(), sites.end());
    return active + joined(apps) + joined(sites);
}

} // namespace kestrelfen
