#pragma once

#include "platform/ports/Clock.hpp"
#include "platform/ports/MainQueue.hpp"

#include <deque>
#include <vector>

namespace kestrelfen {

/// A main queue that runs what was posted only when it is drained. Delayed tasks wait for the clock.
class FakeMainQueue final : public MainQueue {
  public:
    explicit FakeMainQueue(const Clock& clock) : clock_(clock) {}

    void post(std::function<void()> task) override { tasks_.push_back(std::move(task)); }
    void postAfter(double seconds, std::function<void()> task) override;

    /// Runs tasks, those that they post included, until none is ready. Answers whether any ran.
    bool drain();

    void clear();

  private:
    struct Delayed {
        Date due;
        std::function<void()> task;
    };

    void collectDue();

    const Clock& clock_;
    std::deque<std::function<void()>> tasks_;
    std::vector<Delayed> delayed_;
};

} // namespace kestrelfen
