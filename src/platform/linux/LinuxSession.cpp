#include "platform/linux/LinuxSession.hpp"

#include "platform/linux/MutterInputIdle.hpp"
#include "platform/linux/WaylandApplications.hpp"
#include "platform/linux/WaylandCompositor.hpp"
#include "platform/linux/WaylandDisplays.hpp"
#include "platform/linux/WaylandEscapeKey.hpp"
#include "platform/linux/WaylandInputIdle.hpp"
#include "platform/linux/WaylandWindowList.hpp"
#include "platform/linux/X11Applications.hpp"
#include "platform/linux/X11Compositor.hpp"
#include "platform/linux/X11EscapeKey.hpp"
#include "platform/linux/X11InputIdle.hpp"
#include "platform/linux/X11WindowList.hpp"

#include <QtGlobal>

namespace kestrelfen {

namespace {

bool mayBeWayland() {
    return qgetenv("XDG_SESSION_TYPE") != "x11" && !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

} // namespace

LinuxSession::LinuxSession(const Needs& needs) : needs_(needs) {
    if (!mayBeWayland()) {
        return;
    }
    wayland_.emplace();
    if (wayland_->isBroken()) {
        wayland_.reset();
        return;
    }
    if (WaylandLayerGlobals::areOfferedBy(*wayland_)) {
        outputs_.emplace(*wayland_);
        layers_.emplace(*wayland_, *outputs_);
        // The displays are asked for at once, and are to be known by then.
        wayland_->settle();
    }
}

std::unique_ptr<InputIdle> LinuxSession::makeInputIdle() {
    if (!wayland_) {
        return std::make_unique<X11InputIdle>(needs_.log);
    }
    if (WaylandInputIdle::isOfferedBy(*wayland_)) {
        return std::make_unique<WaylandInputIdle>(*wayland_, needs_.log);
    }
    return std::make_unique<MutterInputIdle>(needs_.sessionBus);
}

LinuxSession::Windows LinuxSession::makeWindows() {
    if (wayland_ && WaylandToplevels::isOfferedBy(*wayland_)) {
        toplevels_.emplace(*wayland_, needs_.catalogue);
        return {std::make_unique<WaylandApplications>(*toplevels_),
                std::make_unique<WaylandWindowList>(*toplevels_)};
    }
    if (!hasXServer_) {
        return {};
    }
    x11Windows_.emplace(needs_.catalogue);
    const auto desktop = wayland_ ? X11Applications::Desktop::wayland : X11Applications::Desktop::x11;
    return {std::make_unique<X11Applications>(*x11Windows_, desktop),
            std::make_unique<X11WindowList>(*x11Windows_)};
}

WaylandLayers* LinuxSession::layers() {
    return layers_ ? &*layers_ : nullptr;
}

OverlayReach LinuxSession::overlayReach(bool canUseLayers) const {
    if (!wayland_ || (layers_ && canUseLayers)) {
        return OverlayReach::everywhere;
    }
    return hasXServer_ ? OverlayReach::throughXServer : OverlayReach::ordinaryWindows;
}

std::unique_ptr<Displays> LinuxSession::makeDisplays() {
    return outputs_ ? std::make_unique<WaylandDisplays>(*outputs_) : nullptr;
}

std::unique_ptr<EscapeKey> LinuxSession::makeEscapeKey() {
    if (layers_) {
        return std::make_unique<WaylandEscapeKey>(*layers_);
    }
    return std::make_unique<X11EscapeKey>(needs_.log);
}

std::unique_ptr<Compositor> LinuxSession::makeCompositor() const {
    if (wayland_ && !hasXServer_) {
        return std::make_unique<WaylandCompositor>();
    }
    return std::make_unique<X11Compositor>();
}

} // namespace kestrelfen
