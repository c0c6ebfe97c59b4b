#pragma once

#include "platform/linux/XConnection.hpp"

#include <QPoint>
#include <QSize>

namespace kestrelfen {

/// The least that serves as an X11 system tray: one place on the screen that takes one icon in.
class TestTray {
  public:
    enum class Colours { opaque, withAlpha };

    static constexpr QPoint place{40, 50};
    static constexpr QSize size{30, 30};
    static constexpr std::uint32_t panelColour = 0x204060;

    explicit TestTray(Colours colours);

    /// The icon's window once it is in; 0 before.
    xcb_window_t icon() const { return icon_; }

    /// One point of the icon, as the server has it.
    std::uint32_t iconPoint(QPoint point);

  private:
    void chooseVisual(Colours colours);
    void createPanel();
    void announce();
    void handle(const xcb_generic_event_t& event);

    XConnection connection_;
    std::uint8_t depth_;
    xcb_visualid_t visual_;
    xcb_window_t panel_ = XCB_NONE;
    xcb_window_t icon_ = XCB_NONE;
};

} // namespace kestrelfen
