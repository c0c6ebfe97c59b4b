#pragma once

#include "platform/linux/XConnection.hpp"
#include "platform/ports/InputIdle.hpp"
#include "platform/ports/Log.hpp"

#include <xcb/screensaver.h>

#include <string_view>

namespace kestrelfen {

/// The X server's own count of the time since the last input. Main thread only. Where there is no server, or
/// once it has gone, it says so in the log and stays absent.
class X11InputIdle final : public InputIdle {
  public:
    explicit X11InputIdle(Log& log);

    std::optional<double> secondsSinceLastInput() override;

  private:
    XPointer<xcb_screensaver_query_info_reply_t> ask();
    void forgetEvents();
    void giveUp(std::string_view why);

    Logger log_;
    XConnection connection_;
    bool isAbsent_ = false;
};

} // namespace kestrelfen
