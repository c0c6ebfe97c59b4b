#include "platform/linux/X11Panels.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

namespace kestrelfen {

namespace {

/// left, right, top, bottom, then for each of them where it begins and where it ends.
using Reserved = std::array<std::uint32_t, 12>;

constexpr std::uint32_t mostClients = 4096;

using PropertyReply = XPointer<xcb_get_property_reply_t>;

std::span<const std::uint32_t> numbersOf(const PropertyReply& reply) {
    if (!reply || reply->format != 32) {
        return {};
    }
    const auto* const numbers = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {numbers, static_cast<std::size_t>(xcb_get_property_value_length(reply.get())) / sizeof(*numbers)};
}

/// Reads the property of every window in one round trip.
std::vector<PropertyReply> propertiesOf(xcb_connection_t* connection, std::span<const std::uint32_t> windows,
                                        xcb_atom_t property) {
    std::vector<xcb_get_property_cookie_t> cookies;
    cookies.reserve(windows.size());
    for (const xcb_window_t window : windows) {
        cookies.push_back(
            xcb_get_property(connection, 0, window, property, XCB_ATOM_CARDINAL, 0, Reserved().size()));
    }
    std::vector<PropertyReply> replies;
    replies.reserve(cookies.size());
    for (const auto cookie : cookies) {
        replies.emplace_back(xcb_get_property_reply(connection, cookie, nullptr));
    }
    return replies;
}

/// The older form has no ends: such a panel has the whole edge.
Reserved reservedBy(std::span<const std::uint32_t> numbers, const xcb_screen_t& screen) {
    const std::uint32_t right = screen.width_in_pixels - 1U;
    const std::uint32_t bottom = screen.height_in_pixels - 1U;
    Reserved reserved{0, 0, 0, 0, 0, bottom, 0, bottom, 0, right, 0, right};
    std::copy_n(numbers.begin(), std::min(numbers.size(), reserved.size()), reserved.begin());
    return reserved;
}

void addStrips(std::vector<PanelStrip>& strips, const Reserved& reserved, const xcb_screen_t& screen) {
    using Edge = PanelStrip::Edge;
    constexpr std::array edges{Edge::left, Edge::right, Edge::top, Edge::bottom};
    const auto number = [&reserved](std::size_t index) { return static_cast<int>(reserved.at(index)); };
    for (std::size_t index = 0; index < edges.size(); ++index) {
        const int depth = number(index);
        const int start = number(4 + 2 * index);
        const int length = number(5 + 2 * index) - start + 1;
        if (depth <= 0 || length <= 0) {
            continue;
        }
        const int x = edges.at(index) == Edge::right ? screen.width_in_pixels - depth : 0;
        const int y = edges.at(index) == Edge::bottom ? screen.height_in_pixels - depth : 0;
        const bool isUpright = edges.at(index) == Edge::left || edges.at(index) == Edge::right;
        strips.push_back({edges.at(index), isUpright ? ScreenRect{x, start, depth, length}
                                                     : ScreenRect{start, y, length, depth}});
    }
}

} // namespace

std::vector<PanelStrip> X11Panels::strips() const {
    const XConnection connection;
    if (connection.isBroken()) {
        return {};
    }
    const auto cookie =
        xcb_get_property(connection.raw(), 0, connection.root(), connection.atom("_NET_CLIENT_LIST"),
                         XCB_ATOM_WINDOW, 0, mostClients);
    const PropertyReply clients(xcb_get_property_reply(connection.raw(), cookie, nullptr));
    const auto windows = numbersOf(clients);
    const auto whole = propertiesOf(connection.raw(), windows, connection.atom("_NET_WM_STRUT_PARTIAL"));
    const auto older = propertiesOf(connection.raw(), windows, connection.atom("_NET_WM_STRUT"));
    std::vector<PanelStrip> strips;
    for (std::size_t index = 0; index < windows.size(); ++index) {
        const auto numbers =
            numbersOf(whole[index]).empty() ? numbersOf(older[index]) : numbersOf(whole[index]);
        if (!numbers.empty()) {
            addStrips(strips, reservedBy(numbers, connection.screen()), connection.screen());
        }
    }
    return strips;
}

} // namespace kestrelfen
