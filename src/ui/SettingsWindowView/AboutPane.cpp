#include "ui/SettingsWindowView/AboutPane.hpp"

#include "base/Translated.hpp"

namespace kestrelfen {

PaneContent AboutPane::content() {
    return {.title = "Kestrelfen",
            .sentence = translated(
                "A 20-20-20 eye-break timer that reads the wall clock, pauses itself when you step "
                "away, and keeps its own receipts locally."),
            .hasMark = true};
}

} // namespace kestrelfen
