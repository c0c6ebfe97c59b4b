#pragma once

#include "platform/ports/LoginItem.hpp"

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace kestrelfen {

/// A login item that does what it is told, or fails as it was told to. At first it is not enabled.
class FakeLoginItem final : public LoginItem {
  public:
    std::function<void(bool enabled)> onSet;

    /// Nothing for success.
    void setFailure(std::optional<std::string> failure) { failure_ = std::move(failure); }

    bool isEnabled() const override { return isEnabled_; }

    void setEnabled(bool enabled, Done done) override {
        if (!failure_) {
            isEnabled_ = enabled;
            if (onSet) {
                onSet(enabled);
            }
        }
        done(failure_);
    }

  private:
    std::optional<std::string> failure_;
    bool isEnabled_ = false;
};

} // namespace kestrelfen
