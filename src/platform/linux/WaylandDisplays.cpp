#include "platform/linux/WaylandDisplays.hpp"

#include <QMetaObject>

#include <utility>

namespace kestrelfen {

namespace {

class Observing final : public Displays::Observation {
  public:
    explicit Observing(Subscription subscription) : subscription_(std::move(subscription)) {}

  private:
    Subscription subscription_;
};

} // namespace

WaylandDisplays::WaylandDisplays(WaylandOutputs& outputs)
    : outputs_(outputs), displays_(outputs.displays()), revision_(outputs.revision()),
      subscription_(outputs.observe([this] { readSoon(); })) {}

std::optional<Display> WaylandDisplays::main() const {
    return displays_.empty() ? std::nullopt : std::optional(displays_.front());
}

std::unique_ptr<Displays::Observation> WaylandDisplays::observe(std::function<void()> changed) {
    return std::make_unique<Observing>(observers_.add(std::move(changed)));
}

/// One plug moves several displays; they are told of as one change, outside of the events of the connection.
void WaylandDisplays::readSoon() {
    if (isReading_) {
        return;
    }
    isReading_ = true;
    QMetaObject::invokeMethod(
        &context_, [this] { read(); }, Qt::QueuedConnection);
}

void WaylandDisplays::read() {
    isReading_ = false;
    auto displays = outputs_.displays();
    if (displays != displays_ || revision_ != outputs_.revision()) {
        revision_ = outputs_.revision();
        displays_ = std::move(displays);
        observers_.notify();
    }
}

} // namespace kestrelfen
