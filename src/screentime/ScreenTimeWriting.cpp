#include "core/WholeSeconds.hpp"
#include "platform/ports/StandardOutput.hpp"
#include "screentime/ScreenTimeTracker.hpp"
#include "store/KestrelfenStore.hpp"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace kestrelfen {

namespace {

void runIfSet(const std::function<void()>& completion) {
    if (completion) {
        completion();
    }
}

/// The store is told of a missing identifier by its absence.
ActiveTimeEntry activeTimeEntry(const SecondsTally<UsageBucket>::Entry& entry, Date dayStart) {
    const UsageBucket& bucket = entry.key;
    return {.seconds = entry.seconds,
            .bundleIdentifier =
                bucket.bundleIdentifier.empty() ? std::nullopt : std::optional(bucket.bundleIdentifier),
            .displayName = bucket.displayName,
            .displayID = bucket.displayID,
            .dayStart = dayStart};
}

} // namespace

/// The seconds of one flush on their way into the store: websites first, and all to the day on which the
/// flush began.
struct ScreenTimeTracker::Batch {
    std::vector<SecondsTally<std::string>::Entry> sites;
    std::vector<SecondsTally<UsageBucket>::Entry> buckets;
    Date dayStart;
    std::size_t number = 0;
    std::size_t sitesHandedOver = 0;
    std::size_t bucketsHandedOver = 0;

    /// Rounded up.
    std::int64_t wholeSeconds() const {
        const double sum =
            std::accumulate(buckets.begin(), buckets.end(), 0.0,
                            [](double total, const auto& each) { return total + each.seconds; });
        return std::max<std::int64_t>(WholeSeconds::roundedUp(sum), 0);
    }
};

void ScreenTimeTracker::hydrate(std::function<void()> completion) {
    if (!store_) {
        runIfSet(completion);
        return;
    }
    store_->summary(dayStart_,
                    lifeline_.guard([this, completion = std::move(completion)](const DaySummary& summary) {
                        todayActiveSeconds_.set(summary.activeSeconds);
                        runIfSet(completion);
                    }));
}

void ScreenTimeTracker::flush(std::function<void()> completion) {
    const bool hasPending = !pending_.isEmpty() || !pendingWebsites_.isEmpty();
    if (store_ && hasPending) {
        ++batchesUnderWay_;
        writeNext(std::make_shared<Batch>(
            Batch{pendingWebsites_.take(), pending_.take(), dayStart_, ++batchesBegun_}));
    }
    if (batchesUnderWay_ == 0) {
        runIfSet(completion);
    } else if (completion) {
        awaiting_.push_back({batchesBegun_, batchesUnderWay_, std::move(completion)});
    }
}

/// Each call of the store waits for the one before it.
void ScreenTimeTracker::writeNext(const std::shared_ptr<Batch>& batch) {
    auto next = lifeline_.guard([this, batch] { writeNext(batch); });
    if (batch->sitesHandedOver < batch->sites.size()) {
        const auto& site = batch->sites[batch->sitesHandedOver++];
        store_->addWebsiteTime({site.seconds, site.key, batch->dayStart}, std::move(next));
    } else if (batch->bucketsHandedOver < batch->buckets.size()) {
        const auto& bucket = batch->buckets[batch->bucketsHandedOver++];
        store_->addActiveTime(activeTimeEntry(bucket, batch->dayStart), std::move(next));
    } else {
        finish(*batch);
    }
}

void ScreenTimeTracker::finish(const Batch& batch) {
    const std::string count = std::to_string(batch.buckets.size()) + " bucket(s)";
    if (verboseLogging_) {
        platform_.standardOutput.print("[Kestrelfen] flushed " + std::to_string(batch.wholeSeconds()) +
                                       " s across " + count);
    }
    log_.info("flushed " + count);
    if (onFlushed) {
        onFlushed(batch.buckets.size(), batch.sites.size());
    }
    --batchesUnderWay_;
    for (Awaiting& each : awaiting_) {
        each.batchesLeft -= batch.number <= each.through ? 1 : 0;
    }
    completeFlushes();
}

void ScreenTimeTracker::completeFlushes() {
    const auto done = std::stable_partition(awaiting_.begin(), awaiting_.end(),
                                            [](const Awaiting& each) { return each.batchesLeft > 0; });
    const std::vector<Awaiting> completed(std::make_move_iterator(done),
                                          std::make_move_iterator(awaiting_.end()));
    awaiting_.erase(done, awaiting_.end());
    for (const Awaiting& each : completed) {
        each.completion();
    }
}

void ScreenTimeTracker::handleRollover(Date dayStart, std::function<void()> completion) {
    flush(lifeline_.guard([this, dayStart, completion = std::move(completion)] {
        beginDay(dayStart);
        hydrate(completion);
    }));
}

/// Seconds of applications that were credited while the old day was being written stay, and go to the new
/// day; those of websites do not.
void ScreenTimeTracker::beginDay(Date dayStart) {
    dayStart_ = dayStart;
    todayActiveSeconds_.set(0);
    pendingWebsites_.clear();
    lastSampleAt_.reset();
}

} // namespace kestrelfen
