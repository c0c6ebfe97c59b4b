#pragma once

#include "platform/linux/X11WindowWatch.hpp"
#include "platform/ports/Applications.hpp"

#include <QObject>

namespace kestrelfen {

/// The programs that have windows on an X11 desktop. Main thread only.
class X11Applications final : public Applications {
  public:
    /// Whose desktop it is: the X server's, or that of a Wayland compositor, which has programs of its own.
    enum class Desktop { x11, wayland };

    explicit X11Applications(const X11WindowWatch& watch, Desktop desktop = Desktop::x11)
        : watch_(watch), desktop_(desktop) {}

    std::vector<RunningApplication> running() const override;
    std::optional<RunningApplication> frontmost() const override;
    bool isAvailable() const override { return watch_.isAvailable(); }
    bool missesSome() const override { return desktop_ == Desktop::wayland; }
    bool isInstalled(std::string_view bundleIdentifier) const override;
    void launchInBackground(std::string_view bundleIdentifier, std::function<void()> completion) override;

  private:
    const X11WindowWatch& watch_;
    const Desktop desktop_;
    QObject context_;
};

} // namespace kestrelfen
