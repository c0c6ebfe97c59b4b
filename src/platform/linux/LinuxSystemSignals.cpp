#include "platform/linux/LinuxSystemSignals.hpp"

#include <algorithm>
#include <utility>

namespace kestrelfen {

namespace {

LinuxSystemSignals::ScreenSavers makeScreenSavers(BusLink& sessionBus, MergedFact& isLocked) {
    LinuxSystemSignals::ScreenSavers result;
    for (const auto& desktop : ScreenSaverService::desktops) {
        result.push_back(std::make_unique<ScreenSaverService>(sessionBus, desktop, isLocked));
    }
    return result;
}

} // namespace

class LinuxSystemSignals::Observing final : public SystemSignals::Observation {
  public:
    explicit Observing(Subscription subscription) : subscription_(std::move(subscription)) {}

  private:
    Subscription subscription_;
};

LinuxSystemSignals::LinuxSystemSignals(BusLink& systemBus, BusLink& sessionBus)
    : login1Sleep_(systemBus, sleep_), session_(systemBus, active_, lockedHint_),
      screenSavers_(makeScreenSavers(sessionBus, isLocked_)), mutter_(sessionBus, mutterAsleep_) {}

std::unique_ptr<SystemSignals::Observation> LinuxSystemSignals::observe(SystemSignal signal,
                                                                        std::function<void()> deliver) {
    return std::make_unique<Observing>(observers_[static_cast<std::size_t>(signal)].add(std::move(deliver)));
}

SystemSignals::Capabilities LinuxSystemSignals::capabilities() const {
    const bool hasScreenSaver = std::any_of(screenSavers_.begin(), screenSavers_.end(),
                                            [](const auto& saver) { return saver->isPresent(); });
    return {login1Sleep_.isKnown(), session_.isKnown() || hasScreenSaver, session_.isKnown(),
            x11_.isKnown() || mutter_.isKnown()};
}

MergedFact LinuxSystemSignals::fact(SystemSignal whenTrue, SystemSignal whenFalse) {
    return MergedFact([this, whenTrue, whenFalse](bool value) {
        observers_[static_cast<std::size_t>(value ? whenTrue : whenFalse)].notify();
    });
}

} // namespace kestrelfen
