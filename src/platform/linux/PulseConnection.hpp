#pragma once

#include "platform/linux/PulseHandles.hpp"
#include "platform/linux/PulseReader.hpp"

#include <functional>
#include <optional>
#include <vector>

namespace kestrelfen {

/// Keeps a connection to the sound server, and tries again, at growing intervals, while there is none. Thread
/// of its loop, but for its making and its end, for which the loop must stand still.
class PulseConnection {
  public:
    /// What the server knows; absent when there is none.
    using Told = std::function<void(const std::optional<std::vector<AudioProcess>>&)>;

    /// Connects when the loop runs.
    PulseConnection(pa_mainloop_api& loop, Told told);
    PulseConnection(const PulseConnection&) = delete;
    PulseConnection& operator=(const PulseConnection&) = delete;
    ~PulseConnection();

  private:
    static void stateChanged(pa_context* context, void* connection);
    static void connectNow(pa_mainloop_api* loop, pa_time_event* event, const timeval* time,
                           void* connection);

    void connect();
    void read();
    void loseServer();
    void retryLater();
    void cancelAttempt();

    pa_mainloop_api& loop_;
    Told told_;
    PulseContext context_;
    std::optional<PulseReader> reader_;
    bool hasServer_ = false;
    pa_time_event* attempt_ = nullptr;
    pa_usec_t retryDelay_;
};

} // namespace kestrelfen
