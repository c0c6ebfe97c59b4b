#include "TestWindow.hpp"

#include "platform/linux/EventLoop.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <string>
#include <thread>

namespace kestrelfen {

TestWindow::TestWindow(std::string_view className) : number_(xcb_generate_id(connection_.raw())) {
    open(number_, className);
}

void TestWindow::openAnother(std::string_view className) {
    open(xcb_generate_id(connection_.raw()), className);
}

void TestWindow::openBriefly(std::string_view className) {
    const xcb_window_t number = xcb_generate_id(connection_.raw());
    open(number, className);
    xcb_destroy_window(connection_.raw(), number);
    settle();
}

void TestWindow::open(xcb_window_t number, std::string_view className) {
    xcb_connection_t* const raw = connection_.raw();
    xcb_create_window(raw, XCB_COPY_FROM_PARENT, number, connection_.root(), 100, 100, 200, 120, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, connection_.screen().root_visual, 0, nullptr);
    setClass(number, className);
    xcb_map_window(raw, number);
    settle();
}

void TestWindow::setClass(std::string_view className) {
    setClass(number_, className);
    settle();
}

void TestWindow::setClass(xcb_window_t number, std::string_view className) {
    std::string value = "one";
    value.append(1, '\0').append(className).append(1, '\0');
    xcb_change_property(connection_.raw(), XCB_PROP_MODE_REPLACE, number, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING,
                        8, static_cast<std::uint32_t>(value.size()), value.data());
}

void TestWindow::setText(std::string_view property, std::string_view text) {
    xcb_change_property(connection_.raw(), XCB_PROP_MODE_REPLACE, number_, connection_.atom(property),
                        connection_.atom("UTF8_STRING"), 8, static_cast<std::uint32_t>(text.size()),
                        text.data());
    settle();
}

void TestWindow::setNumber(std::string_view property, xcb_atom_t type, std::uint32_t number) {
    xcb_change_property(connection_.raw(), XCB_PROP_MODE_REPLACE, number_, connection_.atom(property), type,
                        32, 1, &number);
    settle();
}

void TestWindow::setAtom(std::string_view property, std::string_view value) {
    setNumber(property, XCB_ATOM_ATOM, connection_.atom(value));
}

void TestWindow::move(int x, int y) {
    const std::array values{static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y)};
    xcb_configure_window(connection_.raw(), number_, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y,
                         values.data());
    settle();
}

void TestWindow::replace(std::string_view className) {
    xcb_destroy_window(connection_.raw(), number_);
    settle();
    wait(false);
    open(number_, className);
    wait(true);
}

bool TestWindow::isManaged() const {
    constexpr std::uint32_t longest = 1000;
    const auto cookie = xcb_get_property(connection_.raw(), 0, connection_.root(),
                                         connection_.atom("_NET_CLIENT_LIST"), XCB_ATOM_WINDOW, 0, longest);
    const XPointer<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_.raw(), cookie, nullptr));
    const auto* const first = static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
    return std::find(first, first + reply->value_len, number_) != first + reply->value_len;
}

/// Without the event loop: the code under test sees nothing of it meanwhile.
void TestWindow::wait(bool managed) const {
    const auto end = std::chrono::steady_clock::now() + longWait;
    while (isManaged() != managed && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

void TestWindow::settle() const {
    xcb_connection_t* const raw = connection_.raw();
    const XPointer<xcb_get_input_focus_reply_t> unused(
        xcb_get_input_focus_reply(raw, xcb_get_input_focus(raw), nullptr));
}

} // namespace kestrelfen
