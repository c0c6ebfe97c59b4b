#pragma once

#include "ui/SettingsWindowView/PaneContent.hpp"

#include <string>

namespace kestrelfen {

/// A pane from top to bottom, one line for each thing, as a person would tell it:
/// "Long break every / 4 cycles - +" for a stepper with both its buttons working,
/// "Keep history for / Pruning logs … / 30 days [90 days]" for pills,
/// "Resume automatically / Off means … / on", "# Snoozing" for an eyebrow.
std::string paneText(const PaneContent& pane);
std::string rowText(const PaneRow& row);

} // namespace kestrelfen
