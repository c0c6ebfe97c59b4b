#pragma once

#include "platform/ports/SerialExecutor.hpp"

#include <deque>
#include <utility>

namespace kestrelfen {

/// An executor that runs what was posted only when it is drained, on the thread that drains it.
class FakeSerialExecutor final : public SerialExecutor {
  public:
    void post(std::function<void()> job) override { jobs_.push_back(std::move(job)); }

    /// Runs jobs, those that they post included, until none is left. Answers whether any ran.
    bool drain() {
        const bool any = !jobs_.empty();
        while (!jobs_.empty()) {
            const auto job = std::move(jobs_.front());
            jobs_.pop_front();
            job();
        }
        return any;
    }

    void clear() { jobs_.clear(); }

  private:
    std::deque<std::function<void()>> jobs_;
};

} // namespace kestrelfen
