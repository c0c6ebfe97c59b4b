#include "platform/linux/PulseConnection.hpp"

#include <algorithm>
#include <utility>

namespace kestrelfen {

namespace {

constexpr pa_usec_t shortestRetryDelay = 250 * PA_USEC_PER_MSEC;
constexpr pa_usec_t longestRetryDelay = 5 * PA_USEC_PER_SEC;

PulseContext newContext(pa_mainloop_api& loop) {
    const PulseProperties properties(pa_proplist_new());
    pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_NAME, "Kestrelfen");
    pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_ID, "app.kestrelfen.Kestrelfen");
    return PulseContext(pa_context_new_with_proplist(&loop, nullptr, properties.get()));
}

} // namespace

PulseConnection::PulseConnection(pa_mainloop_api& loop, Told told)
    : loop_(loop), told_(std::move(told)), retryDelay_(shortestRetryDelay) {
    constexpr timeval atOnce{};
    attempt_ = loop_.time_new(&loop_, &atOnce, connectNow, this);
}

PulseConnection::~PulseConnection() {
    cancelAttempt();
    if (context_) {
        pa_context_set_state_callback(context_.get(), nullptr, nullptr);
        pa_context_disconnect(context_.get());
    }
}

void PulseConnection::connect() {
    reader_.reset();
    context_ = newContext(loop_);
    if (!context_) {
        return;
    }
    pa_context_set_state_callback(context_.get(), stateChanged, this);
    // Where it fails at once, the context's state says so as well.
    pa_context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
}

void PulseConnection::stateChanged(pa_context* context, void* connection) {
    PulseConnection& self = *static_cast<PulseConnection*>(connection);
    switch (pa_context_get_state(context)) {
    case PA_CONTEXT_READY:
        self.read();
        return;
    case PA_CONTEXT_FAILED:
    case PA_CONTEXT_TERMINATED:
        self.loseServer();
        return;
    case PA_CONTEXT_UNCONNECTED:
    case PA_CONTEXT_CONNECTING:
    case PA_CONTEXT_AUTHORIZING:
    case PA_CONTEXT_SETTING_NAME:
        return;
    }
}

void PulseConnection::read() {
    reader_.emplace(context_.get(),
                    PulseReader::Told{.changed =
                                          [this](const std::vector<AudioProcess>& processes) {
                                              hasServer_ = true;
                                              retryDelay_ = shortestRetryDelay;
                                              told_(processes);
                                          },
                                      .failed = [this] { pa_context_disconnect(context_.get()); }});
}

void PulseConnection::loseServer() {
    if (std::exchange(hasServer_, false)) {
        told_(std::nullopt);
    }
    retryLater();
}

void PulseConnection::retryLater() {
    cancelAttempt();
    attempt_ = pa_context_rttime_new(context_.get(), pa_rtclock_now() + retryDelay_, connectNow, this);
    retryDelay_ = std::min(2 * retryDelay_, longestRetryDelay);
}

void PulseConnection::cancelAttempt() {
    if (attempt_) {
        loop_.time_free(attempt_);
        attempt_ = nullptr;
    }
}

void PulseConnection::connectNow(pa_mainloop_api*, pa_time_event*, const timeval*, void* connection) {
    PulseConnection& self = *static_cast<PulseConnection*>(connection);
    self.cancelAttempt();
    self.connect();
}

} // namespace kestrelfen
