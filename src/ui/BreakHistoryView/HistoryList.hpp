#pragma once

#include "base/Observable.hpp"
#include "platform/ports/Platform.hpp"
#include "store/HistoryEntry.hpp"
#include "ui/DayRange.hpp"
#include "ui/LatestLoad.hpp"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kestrelfen {

class BreakEngine;
class KestrelfenStore;

/// The breaks and pauses of a range of days as they stand on the screen. Main thread only; what the store has
/// to answer comes later, and not at all once the list has gone or has begun to load anew.
class HistoryList {
  public:
    static constexpr std::int64_t entryLimit = 500;

    /// `store` is null when history is unavailable. The engine outlives the list.
    HistoryList(const Platform& platform, const BreakEngine& engine, KestrelfenStore* store)
        : platform_(platform), engine_(engine), store_(store) {}

    DayRange range() const { return range_.get(); }
    /// Loads that range, if the list has been loaded before.
    void setRange(DayRange range);

    /// Newest first.
    const std::vector<HistoryEntry>& entries() const { return entries_.get(); }
    bool hasLoaded() const { return hasLoaded_.get(); }

    /// Differs by the range and after every break.
    std::string reloadToken() const;

    /// When the list is first shown.
    void load();
    /// Loads anew once the token is another than at the last load.
    void loadIfChanged();

    /// Tells of every real change of all that can be read here.
    [[nodiscard]] Subscription observe(std::function<void()> changed) {
        return changes_.add(std::move(changed));
    }

  private:
    const Platform platform_;
    const BreakEngine& engine_;
    KestrelfenStore* const store_;
    Observers changes_;
    Property<DayRange> range_{changes_, DayRange::today};
    Property<std::vector<HistoryEntry>> entries_{changes_};
    Property<bool> hasLoaded_{changes_};
    std::optional<std::string> loadedToken_;
    LatestLoad load_;
};

} // namespace kestrelfen
