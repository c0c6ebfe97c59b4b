#pragma once

#include "platform/linux/XConnection.hpp"
#include "platform/ports/TrayIcon.hpp"

#include <QSize>

#include <optional>

namespace kestrelfen {

/// The small window that an X11 system tray takes into its panel. Main thread only; it must not outlive its
/// connection.
class XembedWindow {
  public:
    /// Asks `tray` to take the window in.
    XembedWindow(XConnection& connection, xcb_window_t tray);
    XembedWindow(const XembedWindow&) = delete;
    XembedWindow& operator=(const XembedWindow&) = delete;
    ~XembedWindow();

    xcb_window_t id() const { return window_; }
    QSize size() const { return size_; }
    void setSize(QSize size) { size_ = size; }

    void draw(const TrayContent& content);

  private:
    void findVisual(xcb_window_t tray);
    void findColors(xcb_window_t tray);
    void create();
    void describe();
    void askToDock(xcb_window_t tray);
    bool hasAlpha() const { return depth_ == 32; }

    XConnection& connection_;
    xcb_window_t window_;
    xcb_visualid_t visual_;
    std::uint8_t depth_;
    xcb_colormap_t colormap_ = XCB_NONE;
    /// As far as the tray tells.
    std::optional<bool> isPanelDark_;
    QSize size_;
};

} // namespace kestrelfen
