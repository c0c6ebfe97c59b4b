#pragma once

#include "platform/linux/BusDaemon.hpp"
#include "platform/linux/ChildProcess.hpp"

#include <QTemporaryDir>

#include <memory>

namespace kestrelfen {

/// The desktop's real accessibility service, on a session bus of the test.
class AccessibilityService {
  public:
    explicit AccessibilityService(const BusDaemon& sessionBus);
    ~AccessibilityService() { end(); }

    void start();
    void stop();
    /// Without a look at the session bus, which may have gone.
    void end();
    /// Stops every process of it, as it is when a machine is far too busy.
    void suspend() const;
    void resume() const;

    /// As another program of the desktop sets and reads it.
    void set(const char* property, bool isOn) const;
    bool isEnabled() const;

    /// Of the accessibility bus.
    QString address() const;

  private:
    QStringList processes() const;
    void signalAll(int signal) const;

    const BusDaemon& sessionBus_;
    QTemporaryDir folder_;
    std::unique_ptr<ChildProcess> launcher_;
};

} // namespace kestrelfen
