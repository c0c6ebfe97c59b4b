#include "Readers.hpp"
#include "Simulation.hpp"

#include <algorithm>
#include <tuple>

namespace kestrelfen {

namespace {

using BucketEntry = SecondsTally<UsageBucket>::Entry;
using WebsiteEntry = SecondsTally<std::string>::Entry;

auto rankOf(const BucketEntry& entry) {
    return std::tie(entry.key.bundleIdentifier, entry.key.displayName, entry.key.displayID, entry.seconds);
}

auto rankOf(const WebsiteEntry& entry) {
    return std::tie(entry.key, entry.seconds);
}

Json objectOf(const BucketEntry& entry) {
    return {{"bundleIdentifier", entry.key.bundleIdentifier},
            {"displayName", entry.key.displayName},
            {"displayID", entry.key.displayID},
            {"seconds", entry.seconds}};
}

Json objectOf(const WebsiteEntry& entry) {
    return {{"domain", entry.key}, {"seconds", entry.seconds}};
}

template <typename Entry>
Json sorted(std::vector<Entry> entries) {
    std::sort(entries.begin(), entries.end(),
              [](const Entry& left, const Entry& right) { return rankOf(left) < rankOf(right); });
    Json list = Json::array();
    for (const Entry& entry : entries) {
        list.push_back(objectOf(entry));
    }
    return list;
}

Json trackerReading(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    const ScreenTimeTracker& tracker = simulation.program().screenTime();
    return {{"todayActiveSeconds", tracker.todayActiveSeconds()},
            {"frontmostAppName", jsonOf(tracker.frontmostAppName())},
            {"dayStart", jsonOf(tracker.dayStart())},
            {"pending", sorted(tracker.pending())},
            {"pendingWebsites", sorted(tracker.pendingWebsites())}};
}

Json smartPauseReading(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    const SmartPauseMonitor& monitor = simulation.program().delegate().smartPause();
    const auto kind = monitor.activeKind();
    return {{"activeKind", kind ? Json(rawValue(*kind)) : Json(nullptr)},
            {"activeAppName", jsonOf(monitor.activeAppName())},
            {"audioProbeSupported", monitor.audioProbeSupported()}};
}

constexpr std::array<NamedReader, 2> readers{
    {{"tracker", trackerReading}, {"smart-pause", smartPauseReading}}};

} // namespace

Readers senseReaders() {
    return readers;
}

} // namespace kestrelfen
