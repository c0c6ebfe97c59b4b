#pragma once

#include "platform/ports/Ticker.hpp"

#include <vector>

namespace kestrelfen {

/// Timers that fire only when they are told to, whatever their period.
class FakeTicker final : public Ticker {
  public:
    std::unique_ptr<Handle> start(double seconds, std::function<void()> fire) override;

    /// Fires every running timer once.
    void fire();

    std::size_t running() const { return timers_->size(); }
    /// Of each running timer, in seconds.
    std::vector<double> periods() const;

  private:
    struct Timer {
        double seconds;
        std::function<void()> fire;
    };
    using Timers = std::vector<std::shared_ptr<Timer>>;

    class Running;

    std::shared_ptr<Timers> timers_ = std::make_shared<Timers>();
};

} // namespace kestrelfen
