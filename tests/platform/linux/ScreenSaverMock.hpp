#pragma once

#include "platform/linux/MockService.hpp"

namespace kestrelfen {

/// A stand-in of a desktop's screen saver, which becomes active when it is to lock.
class ScreenSaverMock {
  public:
    /// `name` is its name on the bus; its path is the same in slashes.
    explicit ScreenSaverMock(const BusDaemon& bus, const QString& name = "org.gnome.ScreenSaver",
                             bool isActive = false);

    void setActive(bool isActive) const;

    /// What Lock does, in Python.
    void onLock(const QString& code) const;
    int lockCalls() const;

    const MockService& service() const { return service_; }

  private:
    QString name_;
    QString path_;
    MockService service_;
};

} // namespace kestrelfen
