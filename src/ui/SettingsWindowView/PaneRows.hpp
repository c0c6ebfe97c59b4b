#pragma once

#include "platform/ports/Preferences.hpp"
#include "ui/SettingsWindowView/PaneContent.hpp"
#include "ui/SettingsWindowView/Stepper.hpp"

namespace kestrelfen {

class LaunchAtLogin;

// Rows over single preferences, and over the one switch beside them, as they stand now.

struct RowText {
    std::string_view key;
    std::string title;
    std::optional<std::string> caption = {};
};

/// `shown` is the value as it is written.
PaneRow stepperRow(const Stepper& stepper, const Preferences& preferences, RowText text, std::string shown);

/// A stepper that shows a length of time.
PaneRow durationRow(const Stepper& stepper, const Preferences& preferences, std::string title,
                    std::optional<std::string> caption = {});

/// "4 cycles".
PaneRow cyclesRow(const Preferences& preferences, std::optional<std::string> caption = {});

PaneRow toggleRow(const Preferences& preferences, RowText text);

PaneRow launchAtLoginRow(const LaunchAtLogin& launchAtLogin, std::string caption);

enum class PillsEmphasis { plain, accent };
PaneRow pillsRow(const Preferences& preferences, RowText text, PillsEmphasis emphasis = PillsEmphasis::plain);

/// One card for each option of `key`; `captions` are in their order.
std::vector<PaneRow> cards(const Preferences& preferences, std::string_view key,
                           const std::vector<std::string>& captions);

/// Marks the row's value as one that cannot be.
void markInvalid(PaneRow& row);

} // namespace kestrelfen
