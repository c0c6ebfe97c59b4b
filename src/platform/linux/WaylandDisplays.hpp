#pragma once

#include "base/Observable.hpp"
#include "platform/linux/WaylandOutputs.hpp"
#include "platform/ports/Displays.hpp"

#include <QObject>

namespace kestrelfen {

/// The displays as the compositor tells of them. Main thread only; the outputs outlive it.
class WaylandDisplays final : public Displays {
  public:
    explicit WaylandDisplays(WaylandOutputs& outputs);

    /// What panels leave of a display is not told: each is its whole frame.
    std::vector<Display> all() const override { return displays_; }
    std::int64_t count() const override { return static_cast<std::int64_t>(displays_.size()); }

    /// Where the person works is not told either: the first.
    std::optional<Display> main() const override;
    std::unique_ptr<Observation> observe(std::function<void()> changed) override;

  private:
    void readSoon();
    void read();

    const WaylandOutputs& outputs_;
    std::vector<Display> displays_;
    Observers observers_;
    QObject context_;
    int revision_;
    bool isReading_ = false;
    Subscription subscription_;
};

} // namespace kestrelfen
