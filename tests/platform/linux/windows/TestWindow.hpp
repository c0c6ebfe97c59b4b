#pragma once

#include "platform/linux/XConnection.hpp"

#include <cstdint>
#include <string_view>

namespace kestrelfen {

/// A program's window on the display, by a connection of its own: its process is the test's.
class TestWindow {
  public:
    explicit TestWindow(std::string_view className);

    /// Opens a second window on the same connection, which nothing asks for later.
    void openAnother(std::string_view className);
    /// Opens one that ends at once. Its number is not given to another: openbox would take that for the old.
    void openBriefly(std::string_view className);
    void setClass(std::string_view className);
    void setText(std::string_view property, std::string_view text);
    void setNumber(std::string_view property, xcb_atom_t type, std::uint32_t number);
    void setAtom(std::string_view property, std::string_view value);
    void move(int x, int y);

    /// Ends the window, and opens one under the same number once the window manager has let go of it.
    void replace(std::string_view className);
    /// Whether the window manager handles it.
    bool isManaged() const;

    xcb_window_t number() const { return number_; }

  private:
    void open(xcb_window_t number, std::string_view className);
    void setClass(xcb_window_t number, std::string_view className);
    void settle() const;
    void wait(bool managed) const;

    XConnection connection_;
    xcb_window_t number_;
};

} // namespace kestrelfen
