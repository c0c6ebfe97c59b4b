#pragma once

#include "platform/ports/NotificationAuthorization.hpp"

namespace kestrelfen {

/// The desktops on which every program may post notifications: there is nobody to ask.
class OpenNotificationAuthorization final : public NotificationAuthorization {
  public:
    void request() override {}
};

} // namespace kestrelfen
