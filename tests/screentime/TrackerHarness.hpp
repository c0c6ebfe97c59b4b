#pragma once

#include "platform/fake/FakePlatform.hpp"
#include "screentime/ScreenTimeTracker.hpp"
#include "sensing/BrowserScripting.hpp"
#include "store/KestrelfenStore.hpp"
#include "support/Moments.hpp"
#include "support/TemporaryFolder.hpp"
#include "support/Trace.hpp"

#include <memory>
#include <string>

namespace kestrelfen {

/// A screen time tracker on a fake machine, over a real store in a file of its own. Its log lines, scripts
/// and flushes go into the trace.
class TrackerHarness {
  public:
    TrackerHarness(FakePlatform& platform, Trace& trace);

    FakePlatform& platform;
    Trace& trace;
    std::unique_ptr<KestrelfenStore> store;
    std::unique_ptr<ScreenTimeTracker> tracker;
    /// While it is not empty, what every operation of the store fails with.
    std::string storeFailure;

    /// Builds the tracker anew, over the store that stands, for the day of the present time.
    ScreenTimeTracker& create();
    void openStore();
    /// Runs the main queue and the store's jobs until both are empty.
    void settle();

    /// What is pending: "bundle 'name' display: seconds" for each bucket, then "domain: seconds", one a line.
    std::string pending() const;
    /// What the store holds of the day: "active: seconds", then as above, each sorted.
    std::string stored(Date dayStart);
    std::string storedToday() { return stored(at("00:00:00")); }
    DaySummary summary(Date dayStart);

  private:
    TemporaryFolder folder_;
    BrowserScripting browserScripting_;
};

} // namespace kestrelfen
