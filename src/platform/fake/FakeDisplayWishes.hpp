#pragma once

#include "platform/ports/DisplayWishes.hpp"

#include <utility>

namespace kestrelfen {

class FakeDisplayWishes final : public DisplayWishes {
  public:
    Values values() const override { return values_; }

    Subscription observe(std::function<void()> listener) override {
        return observers_.add(std::move(listener));
    }

    void set(const Values& values) {
        if (values != values_) {
            values_ = values;
            observers_.notify();
        }
    }

  private:
    Values values_;
    Observers observers_;
};

} // namespace kestrelfen
