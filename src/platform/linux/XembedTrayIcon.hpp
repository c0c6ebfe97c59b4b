#pragma once

#include "platform/linux/XConnection.hpp"
#include "platform/linux/XTooltip.hpp"
#include "platform/linux/XembedWindow.hpp"
#include "platform/ports/TrayIcon.hpp"

#include <QRect>
#include <QTimer>

#include <memory>

namespace kestrelfen {

/// The icon in the X11 system tray of the screen, whenever there is one. Main thread only, with an event
/// loop. It has a connection of its own, on which nothing happens while nobody touches the icon.
class XembedTrayIcon final : public TrayIcon {
  public:
    XembedTrayIcon();

    void show(TrayContent content) override;
    void tooltipChanged() override;
    bool isShown() const override { return isEmbedded_; }

  private:
    void start();
    void findTray();
    void leaveTray();
    void setEmbedded(bool isEmbedded);

    void handle(const xcb_generic_event_t& event);
    void handleClientMessage(const xcb_client_message_event_t& event);
    void handleReparent(const xcb_reparent_notify_event_t& event);
    void handleResize(const xcb_configure_notify_event_t& event);
    void handleDestroy(const xcb_destroy_notify_event_t& event);
    void handleExpose(const xcb_expose_event_t& event);
    void handleEnter(const xcb_enter_notify_event_t& event);
    void handleRelease(const xcb_button_release_event_t& event);
    bool isOurs(xcb_window_t window) const { return window_ && window_->id() == window; }

    void showTooltip();
    void hideTooltip();

    TrayContent content_;
    bool isStarted_ = false;
    bool isEmbedded_ = false;
    XConnection connection_;
    xcb_atom_t selection_ = XCB_ATOM_NONE;
    xcb_atom_t manager_ = XCB_ATOM_NONE;
    xcb_window_t tray_ = XCB_NONE;
    std::unique_ptr<XembedWindow> window_;
    /// Where the window was when the pointer came in.
    QRect hoveredPlace_;
    XTooltip tooltip_;
    QTimer tooltipTimer_;
};

} // namespace kestrelfen
