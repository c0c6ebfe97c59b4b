#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace kestrelfen {

/// Turns SIGTERM, SIGINT and SIGHUP into a call on the main thread, from the event loop. Made on the main
/// thread before any other thread begins, so that none of them gets the signals.
class TerminationSignals {
  public:
    explicit TerminationSignals(std::function<void()> terminate);
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;
    ~TerminationSignals();

    /// Begins to listen; needs the application object.
    void listen();

  private:
    void read() const;

    std::function<void()> terminate_;
    int descriptor_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace kestrelfen
