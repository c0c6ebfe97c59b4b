#pragma once

#include "EnvironmentValue.hpp"

#include <QSocketNotifier>
#include <QTemporaryDir>

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <thread>

struct wl_display;
struct wl_event_loop;
struct wl_global;
struct wl_resource;

namespace kestrelfen {

/// A compositor inside the test, for what no compositor at hand offers: seats, and the standard idle
/// protocol. It shows nothing. $WAYLAND_DISPLAY names it while it lives.
class FakeCompositor {
  public:
    enum class Idle { told, untold };

    explicit FakeCompositor(Idle idle);
    FakeCompositor(const FakeCompositor&) = delete;
    FakeCompositor& operator=(const FakeCompositor&) = delete;
    ~FakeCompositor();

    /// While it lives, the compositor answers on a thread of its own: for what waits for it on this thread.
    class Answering {
      public:
        explicit Answering(FakeCompositor& compositor);
        Answering(const Answering&) = delete;
        Answering& operator=(const Answering&) = delete;
        ~Answering();

      private:
        FakeCompositor& compositor_;
        std::atomic<bool> isOver_ = false;
        std::thread thread_;
    };

    void addSeat(int number);
    void removeSeat(int number);
    /// Whether somebody asked to be told of that seat.
    bool isAskedFor(int number) const { return notifications_.count(number) != 0; }
    void tellIdled(int number);
    void tellResumed(int number);
    std::uint32_t askedTimeout() const { return timeout_; }

    /// Ends all connections.
    void stop();

    void notify(int seat, std::uint32_t timeout, wl_resource* notification);
    void forget(const wl_resource* notification);

  private:
    void serve(int milliseconds);
    void flush();

    QTemporaryDir folder_;
    EnvironmentValue runtimeFolder_{"XDG_RUNTIME_DIR", folder_.path().toUtf8()};
    EnvironmentValue name_{"WAYLAND_DISPLAY", "fake"};
    EnvironmentValue type_{"XDG_SESSION_TYPE", "wayland"};
    wl_display* display_;
    wl_event_loop* loop_;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::map<int, wl_global*> seats_;
    std::map<int, wl_resource*> notifications_;
    std::uint32_t timeout_ = 0;
};

} // namespace kestrelfen
