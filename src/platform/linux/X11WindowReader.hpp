#pragma once

#include "platform/linux/X11WindowRecord.hpp"
#include "platform/linux/XConnection.hpp"

#include <xcb/res.h>

#include <optional>
#include <vector>

namespace kestrelfen {

/// Reads windows and the window manager's lists of them: asks, and takes the
/// answers later. To take one waits for the server unless it has come. Each
/// answer has to be taken, once. Titles are never asked for. Main thread only.
class X11WindowReader {
  public:
    struct Atoms {
        xcb_atom_t clientList;
        xcb_atom_t stacking;
        xcb_atom_t active;
        xcb_atom_t manager;
        xcb_atom_t state;
        xcb_atom_t hidden;
        xcb_atom_t type;
        xcb_atom_t processIdentifier;
        xcb_atom_t gtkApplicationId;
        xcb_atom_t typeDesktop;
        /// Windows of these kinds belong to no application's work: panels, menus,
        /// hints and the like.
        std::vector<xcb_atom_t> specialTypes;
    };

    struct ListQuestions {
        xcb_get_property_cookie_t manager;
        xcb_get_property_cookie_t clients;
        xcb_get_property_cookie_t stacking;
        xcb_get_property_cookie_t active;
    };

    struct Lists {
        /// The window that lives as long as the window manager does, which may be
        /// gone; none without one.
        xcb_window_t manager = XCB_WINDOW_NONE;
        /// In the order of their coming.
        std::vector<xcb_window_t> clients;
        /// From the bottom to the top.
        std::vector<xcb_window_t> stacking;
        xcb_window_t active = XCB_WINDOW_NONE;
    };

    explicit X11WindowReader(const XConnection& connection);

    const Atoms& atoms() const { return atoms_; }

    struct WindowQuestions {
        xcb_window_t window;
        xcb_get_window_attributes_cookie_t attributes;
        xcb_get_geometry_cookie_t geometry;
        xcb_translate_coordinates_cookie_t place;
        xcb_get_property_cookie_t className;
        xcb_get_property_cookie_t gtkApplicationId;
        xcb_get_property_cookie_t type;
        xcb_get_property_cookie_t state;
        xcb_get_property_cookie_t processIdentifier;
        xcb_res_query_client_ids_cookie_t client;
    };

    ListQuestions askLists() const;
    Lists take(const ListQuestions& questions) const;

    /// The window manager's name for itself may outlive it: the window that it
    /// names then does not name itself.
    xcb_get_property_cookie_t askManager(xcb_window_t manager) const;
    bool takeIsManager(xcb_get_property_cookie_t question, xcb_window_t manager) const;

    WindowQuestions ask(xcb_window_t window) const;
    /// Absent when the window is gone.
    std::optional<X11WindowRecord> take(const WindowQuestions& questions) const;

  private:
    X11WindowRecord::Kind kindOf(const std::vector<std::uint32_t>& types) const;

    xcb_get_property_cookie_t askProperty(xcb_window_t window, xcb_atom_t property) const;
    std::vector<std::uint32_t> numbers(xcb_get_property_cookie_t cookie) const;
    std::string text(xcb_get_property_cookie_t cookie) const;

    const XConnection& connection_;
    const Atoms atoms_;
    const bool hasResources_;
};

} // namespace kestrelfen
