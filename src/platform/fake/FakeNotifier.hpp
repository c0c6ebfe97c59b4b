#pragma once

#include "platform/ports/Notifier.hpp"

#include <functional>

namespace kestrelfen {

/// Hands each notification to a listener. At first there is somebody to show them.
class FakeNotifier final : public Notifier {
  public:
    std::function<void(const Notification&)> onPost;

    void setAvailable(bool available) { isAvailable_ = available; }

    void post(const Notification& notification) override {
        if (onPost) {
            onPost(notification);
        }
    }
    bool isAvailable() const override { return isAvailable_; }

  private:
    bool isAvailable_ = true;
};

} // namespace kestrelfen
