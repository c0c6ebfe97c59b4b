#pragma once

#include "base/Observable.hpp"
#include "platform/ports/Displays.hpp"

namespace kestrelfen {

/// Displays of 1920 × 1080 side by side; at first there is one.
class FakeDisplays final : public Displays {
  public:
    FakeDisplays();

    /// Tells the observers, unless the count stays the same.
    void setCount(std::int64_t count);

    std::vector<Display> all() const override { return displays_; }
    std::int64_t count() const override { return static_cast<std::int64_t>(displays_.size()); }
    std::optional<Display> main() const override;
    std::unique_ptr<Observation> observe(std::function<void()> changed) override;

  private:
    class Observing;

    std::vector<Display> displays_;
    Observers observers_;
};

} // namespace kestrelfen
