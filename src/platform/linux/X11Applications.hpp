#pragma once

#include "platform/linux/X11WindowWatch.hpp"
#include "platform/ports/Applications.hpp"

#include <QObject>

namespace kestrelfen {

/// The programs that have windows on an X11 desktop. Main thread only.
class X11Applications final : public Applications {
  public:
    explicit X11Applications(const X11WindowWatch& watch) : watch_(watch) {}

    std::vector<RunningApplication> running() const override;
    std::optional<RunningApplication> frontmost() const override;
    bool isAvailable() const override { return watch_.isAvailable(); }
    bool isInstalled(std::string_view bundleIdentifier) const override;
    void launchInBackground(std::string_view bundleIdentifier, std::function<void()> completion) override;

  private:
    const X11WindowWatch& watch_;
    QObject context_;
};

} // namespace kestrelfen
