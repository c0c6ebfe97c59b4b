#pragma once

namespace kestrelfen {

/// The right to post notifications, where a system wants it asked for.
class NotificationAuthorization {
  public:
    virtual ~NotificationAuthorization() = default;

    /// Asks the person once for alerts and sound; the answer is not looked at. Returns at once.
    virtual void request() = 0;
};

} // namespace kestrelfen
