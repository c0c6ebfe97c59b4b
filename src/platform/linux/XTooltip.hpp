#pragma once

#include "platform/linux/XConnection.hpp"

#include <QRect>

#include <string>

namespace kestrelfen {

/// A line of text beside a place on the screen, in a window that takes neither focus nor clicks. Main thread
/// only, in a program with a QGuiApplication; it must not outlive its connection.
class XTooltip {
  public:
    explicit XTooltip(XConnection& connection) : connection_(connection) {}
    XTooltip(const XTooltip&) = delete;
    XTooltip& operator=(const XTooltip&) = delete;
    ~XTooltip() { hide(); }

    bool isVisible() const { return window_ != XCB_NONE; }

    /// Shows `text` beside `place`, or changes what is shown.
    void show(const std::string& text, const QRect& place);
    void hide();

  private:
    void placeWindow(const QRect& frame);
    void describe();

    XConnection& connection_;
    xcb_window_t window_ = XCB_NONE;
};

} // namespace kestrelfen
