#pragma once

#include "platform/linux/ProgramCatalogue.hpp"

#include <QObject>

#include <functional>
#include <string_view>

namespace kestrelfen {

/// Starts installed programs, detached from this one. Main thread only; the catalogue outlives it.
class ProgramLauncher {
  public:
    explicit ProgramLauncher(ProgramCatalogue& catalogue) : catalogue_(catalogue) {}

    /// Tells from the event loop when the program was started or could not be, unless this ends first.
    void launch(std::string_view bundleIdentifier, std::function<void()> completion);

  private:
    ProgramCatalogue& catalogue_;
    QObject context_;
};

} // namespace kestrelfen
