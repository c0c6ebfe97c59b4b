#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <functional>
#include <memory>
#include <string_view>

class QSocketNotifier;

namespace kestrelfen {

struct XFree {
    void operator()(void* pointer) const { std::free(pointer); }
};

/// What libxcb hands out for the caller to free.
template <typename Type>
using XPointer = std::unique_ptr<Type, XFree>;

/// An own connection to the X server that $DISPLAY names, so that what happens
/// on it wakes nobody else. Main thread only. It may be broken from the start
/// (there is no server) or become so.
class XConnection {
  public:
    XConnection();
    XConnection(const XConnection&) = delete;
    XConnection& operator=(const XConnection&) = delete;
    ~XConnection();

    bool isBroken() const;
    xcb_connection_t* raw() const { return connection_; }

    /// Only of a connection that was not broken at the start.
    const xcb_screen_t& screen() const { return *screen_; }
    xcb_window_t root() const { return screen_->root; }
    int screenNumber() const { return screenNumber_; }

    /// One round trip; XCB_ATOM_NONE when the connection is broken.
    xcb_atom_t atom(std::string_view name) const;

    /// From now on `handle` gets every event and every error from the event loop,
    /// `broken` one call if the connection breaks, and `rested` one after all
    /// that has come was read, answers included. Each may destroy this
    /// connection.
    void listen(std::function<void(const xcb_generic_event_t&)> handle, std::function<void()> broken,
                std::function<void()> rested = nullptr);

    /// Sends what was asked for. Events that came in on the way are handled from
    /// the event loop.
    void flush();

  private:
    void drain();

    xcb_connection_t* connection_;
    int screenNumber_ = 0;
    const xcb_screen_t* screen_ = nullptr;
    std::function<void(const xcb_generic_event_t&)> handle_;
    std::function<void()> broken_;
    std::function<void()> rested_;
    QSocketNotifier* notifier_ = nullptr;
    std::shared_ptr<const char> life_ = std::make_shared<const char>('\0');
};

} // namespace kestrelfen
