#pragma once

#include "base/Date.hpp"
#include "platform/ports/Platform.hpp"

namespace kestrelfen {

class KestrelfenStore;

/// Takes old days out of the history, at most once a local day. Main thread only.
class HistoryRetentionRun {
  public:
    /// `store` is null when history is unavailable.
    HistoryRetentionRun(const Platform& platform, KestrelfenStore* store)
        : platform_(platform), store_(store) {}

    /// Returns at once; what was removed is told in the log.
    void pruneIfDue(Date dayStart);

  private:
    const Platform platform_;
    KestrelfenStore* const store_;
};

} // namespace kestrelfen
