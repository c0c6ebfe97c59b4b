#include "platform/fake/FakeSystemSignals.hpp"

namespace kestrelfen {

class FakeSystemSignals::Observing final : public SystemSignals::Observation {
  public:
    explicit Observing(Subscription subscription) : subscription_(std::move(subscription)) {}

  private:
    Subscription subscription_;
};

std::unique_ptr<SystemSignals::Observation> FakeSystemSignals::observe(SystemSignal signal,
                                                                       std::function<void()> deliver) {
    return std::make_unique<Observing>(observers_[static_cast<std::size_t>(signal)].add(std::move(deliver)));
}

} // namespace kestrelfen
