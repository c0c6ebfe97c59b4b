#pragma once

#include "platform/linux/BusLink.hpp"
#include "platform/linux/ProgramCatalogue.hpp"
#include "platform/linux/WaylandConnection.hpp"
#include "platform/linux/WaylandLayers.hpp"
#include "platform/linux/WaylandOutputs.hpp"
#include "platform/linux/WaylandToplevels.hpp"
#include "platform/linux/X11WindowWatch.hpp"
#include "platform/linux/XConnection.hpp"
#include "platform/ports/Applications.hpp"
#include "platform/ports/Compositor.hpp"
#include "platform/ports/Displays.hpp"
#include "platform/ports/EscapeKey.hpp"
#include "platform/ports/InputIdle.hpp"
#include "platform/ports/Log.hpp"
#include "platform/ports/OverlayReach.hpp"
#include "platform/ports/WindowList.hpp"

#include <memory>
#include <optional>

namespace kestrelfen {

/// Chooses who tells of input and windows: the X server of an X11 session, else the Wayland compositor with
/// what it offers. Main thread only. What it is given outlives it, and it outlives what it makes.
class LinuxSession {
  public:
    struct Needs {
        BusLink& sessionBus;
        ProgramCatalogue& catalogue;
        Log& log;
    };
    struct Windows {
        std::unique_ptr<Applications> applications;
        std::unique_ptr<WindowList> list;
    };

    explicit LinuxSession(const Needs& needs);
    LinuxSession(const LinuxSession&) = delete;
    LinuxSession& operator=(const LinuxSession&) = delete;

    /// Absent at times or for ever, but never null: GNOME's service may come later.
    std::unique_ptr<InputIdle> makeInputIdle();

    /// Both null where this session has neither windows of its own to tell of nor an X server. A Wayland
    /// compositor that does not tell leaves those that run through XWayland.
    Windows makeWindows();

    /// Null where no Wayland compositor lets programs lay something above all windows. Until the end.
    WaylandLayers* layers();

    /// Whether the program can draw layers is its own affair.
    OverlayReach overlayReach(bool canUseLayers) const;

    /// Null where there are no layers: then the windows go by the displays of their own toolkit.
    std::unique_ptr<Displays> makeDisplays();

    /// Of the layers, or else of the X server.
    std::unique_ptr<EscapeKey> makeEscapeKey();

    /// Of the X server, where there is one: then the windows are its own.
    std::unique_ptr<Compositor> makeCompositor() const;

  private:
    Needs needs_;
    /// One that answers: the toolkit too takes it only then.
    bool hasXServer_ = !XConnection().isBroken();
    std::optional<WaylandConnection> wayland_;
    std::optional<WaylandToplevels> toplevels_;
    std::optional<X11WindowWatch> x11Windows_;
    std::optional<WaylandOutputs> outputs_;
    std::optional<WaylandLayers> layers_;
};

} // namespace kestrelfen
