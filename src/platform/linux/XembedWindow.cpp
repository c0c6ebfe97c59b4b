#include "platform/linux/XembedWindow.hpp"

#include "platform/linux/TrayImage.hpp"
#include "platform/linux/XPicture.hpp"

#include <QPainter>

#include <array>
#include <string_view>

namespace kestrelfen {

namespace {

/// Until the tray gives another.
constexpr QSize initialSize(24, 24);

/// Red, green and blue of 16 bits each.
constexpr int textColorLength = 3;

constexpr std::uint32_t requestDock = 0;
constexpr std::uint32_t xembedVersion = 0;
constexpr std::uint32_t xembedMapped = 1;

constexpr std::uint32_t wantedEvents = XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY |
                                       XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                                       XCB_EVENT_MASK_ENTER_WINDOW | XCB_EVENT_MASK_LEAVE_WINDOW;

/// 0 when the screen has no such visual.
std::uint8_t depthOf(const xcb_screen_t& screen, xcb_visualid_t visual) {
    for (auto depths = xcb_screen_allowed_depths_iterator(&screen); depths.rem > 0; xcb_depth_next(&depths)) {
        for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem > 0;
             xcb_visualtype_next(&visuals)) {
            if (visuals.data->visual_id == visual) {
                return depths.data->depth;
            }
        }
    }
    return 0;
}

} // namespace

XembedWindow::XembedWindow(XConnection& connection, xcb_window_t tray)
    : connection_(connection), window_(xcb_generate_id(connection.raw())),
      visual_(connection.screen().root_visual), depth_(connection.screen().root_depth), size_(initialSize) {
    findVisual(tray);
    findColors(tray);
    create();
    describe();
    askToDock(tray);
    connection_.flush();
}

XembedWindow::~XembedWindow() {
    xcb_destroy_window(connection_.raw(), window_);
    if (colormap_ != XCB_NONE) {
        xcb_free_colormap(connection_.raw(), colormap_);
    }
    connection_.flush();
}

void XembedWindow::findVisual(xcb_window_t tray) {
    const auto cookie = xcb_get_property(
        connection_.raw(), 0, tray, connection_.atom("_NET_SYSTEM_TRAY_VISUAL"), XCB_ATOM_VISUALID, 0, 1);
    const XPointer<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_.raw(), cookie, nullptr));
    if (!reply || xcb_get_property_value_length(reply.get()) != sizeof(xcb_visualid_t)) {
        return;
    }
    const auto visual = *static_cast<const xcb_visualid_t*>(xcb_get_property_value(reply.get()));
    if (const std::uint8_t depth = depthOf(connection_.screen(), visual); depth != 0) {
        visual_ = visual;
        depth_ = depth;
    }
}

/// The tray may tell the colour of the texts on its panel.
void XembedWindow::findColors(xcb_window_t tray) {
    const auto cookie =
        xcb_get_property(connection_.raw(), 0, tray, connection_.atom("_NET_SYSTEM_TRAY_COLORS"),
                         XCB_ATOM_CARDINAL, 0, textColorLength);
    const XPointer<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_.raw(), cookie, nullptr));
    if (reply && xcb_get_property_value_length(reply.get()) == textColorLength * int{sizeof(std::uint32_t)}) {
        const auto* const text = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
        isPanelDark_ = text[0] + text[1] + text[2] > textColorLength * 0x8000U;
    }
}

/// A window with alpha is composed by the tray and begins transparent; any other shows the panel below it.
void XembedWindow::create() {
    colormap_ = xcb_generate_id(connection_.raw());
    xcb_create_colormap(connection_.raw(), XCB_COLORMAP_ALLOC_NONE, colormap_, connection_.root(), visual_);
    const std::uint32_t background = hasAlpha() ? 0 : std::uint32_t{XCB_BACK_PIXMAP_PARENT_RELATIVE};
    const std::uint32_t mask = (hasAlpha() ? XCB_CW_BACK_PIXEL : XCB_CW_BACK_PIXMAP) | XCB_CW_BORDER_PIXEL |
                               XCB_CW_EVENT_MASK | XCB_CW_COLORMAP;
    const std::array<std::uint32_t, 4> values{background, 0, wantedEvents, colormap_};
    xcb_create_window(connection_.raw(), depth_, window_, connection_.root(), 0, 0,
                      static_cast<std::uint16_t>(size_.width()), static_cast<std::uint16_t>(size_.height()),
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual_, mask, values.data());
}

void XembedWindow::describe() {
    constexpr std::string_view name = "Kestrelfen";
    constexpr std::string_view windowClass("kestrelfen\0Kestrelfen\0", 22);
    xcb_change_property(connection_.raw(), XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NAME, XCB_ATOM_STRING,
                        8, static_cast<std::uint32_t>(name.size()), name.data());
    xcb_change_property(connection_.raw(), XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING,
                        8, static_cast<std::uint32_t>(windowClass.size()), windowClass.data());
    const xcb_atom_t xembedInfo = connection_.atom("_XEMBED_INFO");
    const std::array<std::uint32_t, 2> info{xembedVersion, xembedMapped};
    xcb_change_property(connection_.raw(), XCB_PROP_MODE_REPLACE, window_, xembedInfo, xembedInfo, 32,
                        info.size(), info.data());
}

void XembedWindow::askToDock(xcb_window_t tray) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = tray;
    message.type = connection_.atom("_NET_SYSTEM_TRAY_OPCODE");
    message.data.data32[0] = XCB_CURRENT_TIME;
    message.data.data32[1] = requestDock;
    message.data.data32[2] = window_;
    xcb_send_event(connection_.raw(), 0, tray, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message));
}

void XembedWindow::draw(const TrayContent& content) {
    xcb_clear_area(connection_.raw(), 0, window_, 0, 0, 0, 0);
    if (hasAlpha()) {
        putImage(connection_, window_, depth_, trayImage(picturesFor(content, isPanelDark_), size_));
    } else {
        QImage panel = getImage(connection_, window_, size_);
        QPainter(&panel).drawImage(0, 0, trayImage(picturesFor(content, isDarkPanel(panel)), size_));
        putImage(connection_, window_, depth_, panel);
    }
    connection_.flush();
}

} // namespace kestrelfen
