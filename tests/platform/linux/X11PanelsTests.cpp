#include "platform/linux/VirtualDisplay.hpp"
#include "platform/linux/X11Panels.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

using Edge = PanelStrip::Edge;
using Strips = std::vector<PanelStrip>;
using Numbers = std::vector<std::uint32_t>;

/// A desktop whose window manager lists the windows that a test makes.
class X11PanelsTest : public testing::Test {
  protected:
    /// A window with that property.
    void add(const char* property, const Numbers& numbers) {
        const xcb_window_t window = xcb_generate_id(connection_.raw());
        xcb_create_window(connection_.raw(), XCB_COPY_FROM_PARENT, window, connection_.root(), 0, 0, 10, 10,
                          0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        set(window, property, XCB_ATOM_CARDINAL, numbers);
        clients_.push_back(window);
        set(connection_.root(), "_NET_CLIENT_LIST", XCB_ATOM_WINDOW, clients_);
        settle();
    }

    void addToLast(const char* property, const Numbers& numbers) {
        set(clients_.back(), property, XCB_ATOM_CARDINAL, numbers);
        settle();
    }

    int width() const { return connection_.screen().width_in_pixels; }
    int height() const { return connection_.screen().height_in_pixels; }

    VirtualDisplay display_;
    X11Panels panels_;

  private:
    /// An answer means that all before it was done.
    void settle() { static_cast<void>(connection_.atom("WM_NAME")); }

    void set(xcb_window_t window, const char* property, xcb_atom_t type, const Numbers& numbers) {
        xcb_change_property(connection_.raw(), XCB_PROP_MODE_REPLACE, window, connection_.atom(property),
                            type, 32, static_cast<std::uint32_t>(numbers.size()), numbers.data());
    }

    XConnection connection_;
    Numbers clients_;
};

TEST_F(X11PanelsTest, WithoutAWindowManagerThereAreNone) {
    EXPECT_EQ(panels_.strips(), Strips{});
}

TEST_F(X11PanelsTest, EachPanelReservesItsPartOfAnEdge) {
    add("WM_NAME", {});
    add("_NET_WM_STRUT_PARTIAL", {0, 0, 28, 0, 0, 0, 0, 0, 100, 499, 0, 0});
    add("_NET_WM_STRUT_PARTIAL", {0, 0, 0, 40, 0, 0, 0, 0, 0, 0, 0, 199});
    add("_NET_WM_STRUT_PARTIAL", {48, 0, 0, 0, 10, 309, 0, 0, 0, 0, 0, 0});
    EXPECT_EQ(panels_.strips(), (Strips{{Edge::top, {100, 0, 400, 28}},
                                        {Edge::bottom, {0, height() - 40, 200, 40}},
                                        {Edge::left, {0, 10, 48, 300}}}));
}

TEST_F(X11PanelsTest, TheOlderFormReservesTheWholeEdge) {
    add("_NET_WM_STRUT", {0, 60, 0, 0});
    EXPECT_EQ(panels_.strips(), (Strips{{Edge::right, {width() - 60, 0, 60, height()}}}));
}

TEST_F(X11PanelsTest, TheNewerFormHoldsWhereAPanelTellsBoth) {
    add("_NET_WM_STRUT_PARTIAL", {0, 0, 30, 0, 0, 0, 0, 0, 0, 99, 0, 0});
    addToLast("_NET_WM_STRUT", {0, 0, 30, 0});
    EXPECT_EQ(panels_.strips(), (Strips{{Edge::top, {0, 0, 100, 30}}}));
}

TEST(X11Panels, WithoutADisplayThereAreNone) {
    VirtualDisplay display;
    display.stop();
    EXPECT_EQ(X11Panels().strips(), Strips{});
}

} // namespace
} // namespace kestrelfen
