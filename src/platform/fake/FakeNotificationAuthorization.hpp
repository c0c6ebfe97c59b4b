#pragma once

#include "platform/ports/NotificationAuthorization.hpp"

#include <functional>

namespace kestrelfen {

/// Tells a listener that the person would be asked now.
class FakeNotificationAuthorization final : public NotificationAuthorization {
  public:
    std::function<void()> onRequest;

    void request() override {
        if (onRequest) {
            onRequest();
        }
    }
};

} // namespace kestrelfen
