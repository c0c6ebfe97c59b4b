#include "platform/fake/FakeDisplays.hpp"

namespace kestrelfen {

namespace {

constexpr int width = 1920;
constexpr int height = 1080;

std::vector<Display> sideBySide(std::int64_t count) {
    std::vector<Display> displays;
    for (std::int64_t number = 1; number <= count; ++number) {
        const ScreenRect frame{static_cast<int>(number - 1) * width, 0, width, height};
        displays.push_back({number, "display-" + std::to_string(number), frame, frame});
    }
    return displays;
}

} // namespace

class FakeDisplays::Observing final : public Displays::Observation {
  public:
    explicit Observing(Subscription subscription) : subscription_(std::move(subscription)) {}

  private:
    Subscription subscription_;
};

FakeDisplays::FakeDisplays() : displays_(sideBySide(1)) {}

void FakeDisplays::setCount(std::int64_t count) {
    if (count == this->count()) {
        return;
    }
    displays_ = sideBySide(count);
    observers_.notify();
}

std::optional<Display> FakeDisplays::main() const {
    return displays_.empty() ? std::nullopt : std::optional(displays_.front());
}

std::unique_ptr<Displays::Observation> FakeDisplays::observe(std::function<void()> changed) {
    return std::make_unique<Observing>(observers_.add(std::move(changed)));
}

} // namespace kestrelfen
