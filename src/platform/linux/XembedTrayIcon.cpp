#include "platform/linux/XembedTrayIcon.hpp"

#include <chrono>
#include <string>
#include <utility>

namespace kestrelfen {

namespace {

constexpr int eventTypeMask = 0x7f;

constexpr std::chrono::milliseconds tooltipDelay{500};
constexpr std::chrono::seconds tooltipRefresh{1};

template <typename Event>
const Event& as(const xcb_generic_event_t& event) {
    return reinterpret_cast<const Event&>(event);
}

void select(const XConnection& connection, xcb_window_t window, std::uint32_t events) {
    xcb_change_window_attributes(connection.raw(), window, XCB_CW_EVENT_MASK, &events);
}

} // namespace

XembedTrayIcon::XembedTrayIcon() : tooltip_(connection_) {
    QObject::connect(&tooltipTimer_, &QTimer::timeout, &tooltipTimer_, [this] { showTooltip(); });
}

void XembedTrayIcon::show(TrayContent content) {
    content_ = std::move(content);
    if (!std::exchange(isStarted_, true)) {
        start();
    } else if (isEmbedded_) {
        window_->draw(content_);
        tooltipChanged();
    }
}

/// A tooltip that is shown brings itself up to date.
void XembedTrayIcon::tooltipChanged() {}

void XembedTrayIcon::start() {
    if (connection_.isBroken()) {
        return;
    }
    selection_ = connection_.atom("_NET_SYSTEM_TRAY_S" + std::to_string(connection_.screenNumber()));
    manager_ = connection_.atom("MANAGER");
    select(connection_, connection_.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    findTray();
    connection_.listen([this](const xcb_generic_event_t& event) { handle(event); }, [this] { leaveTray(); });
}

void XembedTrayIcon::findTray() {
    const auto cookie = xcb_get_selection_owner(connection_.raw(), selection_);
    const XPointer<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection_.raw(), cookie, nullptr));
    tray_ = reply ? reply->owner : xcb_window_t{XCB_NONE};
    if (tray_ != XCB_NONE) {
        select(connection_, tray_, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
        window_ = std::make_unique<XembedWindow>(connection_, tray_);
    }
}

void XembedTrayIcon::leaveTray() {
    hideTooltip();
    window_.reset();
    tray_ = XCB_NONE;
    setEmbedded(false);
}

void XembedTrayIcon::setEmbedded(bool isEmbedded) {
    if (std::exchange(isEmbedded_, isEmbedded) != isEmbedded) {
        notifyShown();
    }
}

void XembedTrayIcon::handle(const xcb_generic_event_t& event) {
    switch (event.response_type & eventTypeMask) {
    case XCB_CLIENT_MESSAGE:
        return handleClientMessage(as<xcb_client_message_event_t>(event));
    case XCB_REPARENT_NOTIFY:
        return handleReparent(as<xcb_reparent_notify_event_t>(event));
    case XCB_CONFIGURE_NOTIFY:
        return handleResize(as<xcb_configure_notify_event_t>(event));
    case XCB_DESTROY_NOTIFY:
        return handleDestroy(as<xcb_destroy_notify_event_t>(event));
    case XCB_EXPOSE:
        return handleExpose(as<xcb_expose_event_t>(event));
    case XCB_ENTER_NOTIFY:
        return handleEnter(as<xcb_enter_notify_event_t>(event));
    case XCB_LEAVE_NOTIFY:
    case XCB_BUTTON_PRESS:
        return hideTooltip();
    case XCB_BUTTON_RELEASE:
        return handleRelease(as<xcb_button_release_event_t>(event));
    default:
        return;
    }
}

/// A tray that begins to serve the screen announces itself on the root window.
void XembedTrayIcon::handleClientMessage(const xcb_client_message_event_t& event) {
    if (event.type == manager_ && event.data.data32[1] == selection_) {
        leaveTray();
        findTray();
    }
}

/// A tray that ends in good order gives the window back to the root.
void XembedTrayIcon::handleReparent(const xcb_reparent_notify_event_t& event) {
    if (!isOurs(event.window)) {
        return;
    }
    if (event.parent == connection_.root()) {
        leaveTray();
    } else {
        setEmbedded(true);
    }
}

void XembedTrayIcon::handleResize(const xcb_configure_notify_event_t& event) {
    const QSize size(event.width, event.height);
    if (isOurs(event.window) && window_->size() != size) {
        window_->setSize(size);
        window_->draw(content_);
    }
}

void XembedTrayIcon::handleDestroy(const xcb_destroy_notify_event_t& event) {
    if (event.window == tray_ || isOurs(event.window)) {
        leaveTray();
    }
}

void XembedTrayIcon::handleExpose(const xcb_expose_event_t& event) {
    if (event.count > 0) {
        return;
    }
    if (isOurs(event.window)) {
        window_->draw(content_);
    } else if (tooltip_.isVisible()) {
        showTooltip();
    }
}

void XembedTrayIcon::handleEnter(const xcb_enter_notify_event_t& event) {
    if (isOurs(event.event)) {
        hoveredPlace_ = {QPoint(event.root_x - event.event_x, event.root_y - event.event_y), window_->size()};
        tooltipTimer_.start(tooltipDelay);
    }
}

/// At the release: until then the server holds the pointer for this window, and what opens could not have it.
void XembedTrayIcon::handleRelease(const xcb_button_release_event_t& event) {
    const bool isClick = event.detail == XCB_BUTTON_INDEX_1 || event.detail == XCB_BUTTON_INDEX_3;
    if (isClick && isOurs(event.event) &&
        QRect(QPoint(), window_->size()).contains(event.event_x, event.event_y)) {
        activate(TrayPoint{event.root_x, event.root_y});
    }
}

void XembedTrayIcon::showTooltip() {
    const std::string text = content_.tooltip ? content_.tooltip() : std::string();
    if (text.empty()) {
        hideTooltip();
        return;
    }
    tooltip_.show(text, hoveredPlace_);
    tooltipTimer_.start(tooltipRefresh);
}

void XembedTrayIcon::hideTooltip() {
    tooltipTimer_.stop();
    tooltip_.hide();
}

} // namespace kestrelfen
