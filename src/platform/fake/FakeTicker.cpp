#include "platform/fake/FakeTicker.hpp"

namespace kestrelfen {

class FakeTicker::Running final : public Ticker::Handle {
  public:
    Running(std::shared_ptr<Timers> timers, std::shared_ptr<Timer> timer)
        : timers_(std::move(timers)), timer_(std::move(timer)) {}
    ~Running() override { std::erase(*timers_, timer_); }

  private:
    std::shared_ptr<Timers> timers_;
    std::shared_ptr<Timer> timer_;
};

std::unique_ptr<Ticker::Handle> FakeTicker::start(double seconds, std::function<void()> fire) {
    auto timer = std::make_shared<Timer>(Timer{seconds, std::move(fire)});
    timers_->push_back(timer);
    return std::make_unique<Running>(timers_, std::move(timer));
}

std::vector<double> FakeTicker::periods() const {
    std::vector<double> periods;
    for (const auto& timer : *timers_) {
        periods.push_back(timer->seconds);
    }
    return periods;
}

void FakeTicker::fire() {
    for (std::size_t index = 0; index < timers_->size(); ++index) {
        const auto timer = (*timers_)[index];
        timer->fire();
    }
}

} // namespace kestrelfen
