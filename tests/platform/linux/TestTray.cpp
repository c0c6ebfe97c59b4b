#include "platform/linux/TestTray.hpp"

#include "platform/linux/XPicture.hpp"

#include <gtest/gtest.h>

#include <array>

namespace kestrelfen {

namespace {

constexpr std::uint8_t alphaDepth = 32;

/// A visual of this depth, or 0.
xcb_visualid_t visualOf(const xcb_screen_t& screen, std::uint8_t depth) {
    for (auto depths = xcb_screen_allowed_depths_iterator(&screen); depths.rem > 0; xcb_depth_next(&depths)) {
        const auto visuals = xcb_depth_visuals_iterator(depths.data);
        if (depths.data->depth == depth && visuals.rem > 0) {
            return visuals.data->visual_id;
        }
    }
    return 0;
}

} // namespace

TestTray::TestTray(Colours colours)
    : depth_(connection_.screen().root_depth), visual_(connection_.screen().root_visual) {
    chooseVisual(colours);
    createPanel();
    announce();
    connection_.listen([this](const xcb_generic_event_t& event) { handle(event); }, [] {});
}

void TestTray::chooseVisual(Colours colours) {
    if (colours == Colours::withAlpha) {
        depth_ = alphaDepth;
        visual_ = visualOf(connection_.screen(), alphaDepth);
        EXPECT_NE(visual_, 0U) << "this server has no visual with alpha";
    }
}

void TestTray::createPanel() {
    xcb_connection_t* const raw = connection_.raw();
    const xcb_colormap_t colormap = xcb_generate_id(raw);
    xcb_create_colormap(raw, XCB_COLORMAP_ALLOC_NONE, colormap, connection_.root(), visual_);
    panel_ = xcb_generate_id(raw);
    const std::array<std::uint32_t, 5> values{panelColour, 0, 1, XCB_EVENT_MASK_STRUCTURE_NOTIFY, colormap};
    xcb_create_window(raw, depth_, panel_, connection_.root(), place.x(), place.y(), size.width(),
                      size.height(), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual_,
                      XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK |
                          XCB_CW_COLORMAP,
                      values.data());
    xcb_map_window(raw, panel_);
}

void TestTray::announce() {
    xcb_connection_t* const raw = connection_.raw();
    const xcb_atom_t selection = connection_.atom("_NET_SYSTEM_TRAY_S0");
    xcb_change_property(raw, XCB_PROP_MODE_REPLACE, panel_, connection_.atom("_NET_SYSTEM_TRAY_VISUAL"),
                        XCB_ATOM_VISUALID, 32, 1, &visual_);
    xcb_set_selection_owner(raw, panel_, selection, XCB_CURRENT_TIME);
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = connection_.root();
    message.type = connection_.atom("MANAGER");
    message.data.data32[1] = selection;
    message.data.data32[2] = panel_;
    xcb_send_event(raw, 0, connection_.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
}

void TestTray::handle(const xcb_generic_event_t& event) {
    if ((event.response_type & 0x7f) != XCB_CLIENT_MESSAGE) {
        return;
    }
    icon_ = reinterpret_cast<const xcb_client_message_event_t&>(event).data.data32[2];
    const std::array<std::uint32_t, 2> wanted{size.width(), size.height()};
    xcb_configure_window(connection_.raw(), icon_, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                         wanted.data());
    xcb_reparent_window(connection_.raw(), icon_, panel_, 0, 0);
    xcb_map_window(connection_.raw(), icon_);
    connection_.flush();
}

std::uint32_t TestTray::iconPoint(QPoint point) {
    const auto cookie = xcb_get_image(connection_.raw(), XCB_IMAGE_FORMAT_Z_PIXMAP, icon_,
                                      static_cast<std::int16_t>(point.x()),
                                      static_cast<std::int16_t>(point.y()), 1, 1, 0xffffffff);
    const XPointer<xcb_get_image_reply_t> reply(xcb_get_image_reply(connection_.raw(), cookie, nullptr));
    connection_.flush();
    if (!reply) {
        return 0;
    }
    const auto value = *reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(reply.get()));
    return depth_ == alphaDepth ? value : value & 0xffffff;
}

} // namespace kestrelfen
