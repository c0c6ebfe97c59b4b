#pragma once

#include "base/Observable.hpp"
#include "platform/linux/WaylandPointer.hpp"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>
#include <wayland-client.h>

class QSocketNotifier;

namespace kestrelfen {

/// An own connection to the compositor that $WAYLAND_DISPLAY names, so that what happens on it wakes nobody
/// else. Main thread only. It waits for the compositor once, while it is made or told to, and not for long;
/// else it is driven by the event loop. It may be broken from the start (there is no compositor) or become
/// so.
class WaylandConnection {
  public:
    /// What the compositor offers to bind to.
    struct Global {
        std::uint32_t number = 0;
        std::string interface;
        std::uint32_t version = 0;
    };

    WaylandConnection();
    WaylandConnection(const WaylandConnection&) = delete;
    WaylandConnection& operator=(const WaylandConnection&) = delete;
    ~WaylandConnection();

    bool isBroken() const { return isBroken_; }

    /// In the order of their coming.
    const std::vector<Global>& globals() const { return globals_; }
    /// Null when it is not offered.
    const Global* find(std::string_view interface) const;
    bool offers(std::string_view interface) const { return find(interface) != nullptr; }

    /// Hears when a global came or went, and when the connection broke. The listener must not destroy this
    /// connection.
    [[nodiscard]] Subscription observe(std::function<void()> listener) {
        return observers_.add(std::move(listener));
    }

    /// In the version that both sides know.
    template <typename Type>
    Type* bind(const Global& global, const wl_interface& interface, std::uint32_t newestVersion) {
        const std::uint32_t version = global.version < newestVersion ? global.version : newestVersion;
        return static_cast<Type*>(wl_registry_bind(registry_, global.number, &interface, version));
    }

    /// Sends what was asked for.
    void flush();
    /// Waits until all that was asked for is answered.
    void settle();

  private:
    static const wl_registry_listener registryListener;
    static const wl_callback_listener syncListener;

    void readWithin(int milliseconds);
    void dispatch();
    void drain();
    void lose();
    void add(std::uint32_t number, const char* interface, std::uint32_t version);
    void remove(std::uint32_t number);

    wl_display* display_ = nullptr;
    wl_registry* registry_ = nullptr;
    std::vector<Global> globals_;
    Observers observers_;
    QSocketNotifier* notifier_ = nullptr;
    bool hasAnswered_ = false;
    bool isBroken_ = false;
};

} // namespace kestrelfen
