#pragma once

#include <string>

namespace kestrelfen {

struct Notification {
    std::string title;
    std::string body;
    /// Ask the desktop for its notification sound.
    bool sound = false;
};

/// The desktop's notifications.
class Notifier {
  public:
    virtual ~Notifier() = default;

    /// Hands the notification over and returns at once; each is a new one. A failure is dropped silently.
    virtual void post(const Notification& notification) = 0;

    /// Whether somebody shows them, or would be started for the first. A read of memory.
    virtual bool isAvailable() const = 0;
};

} // namespace kestrelfen
