#pragma once

#include "platform/ports/Notifier.hpp"

#include <functional>

namespace kestrelfen {

/// Hands each notification to a listener.
class FakeNotifier final : public Notifier {
  public:
    std::function<void(const Notification&)> onPost;

    void post(const Notification& notification) override {
        if (onPost) {
            onPost(notification);
        }
    }
};

} // namespace kestrelfen
