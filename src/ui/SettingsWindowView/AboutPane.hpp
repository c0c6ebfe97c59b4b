#pragma once

#include "ui/SettingsWindowView/PaneContent.hpp"

namespace kestrelfen {

/// What the program is.
struct AboutPane {
    static PaneContent content();
};

} // namespace kestrelfen
