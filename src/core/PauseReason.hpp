#pragma once

#include "base/PauseKind.hpp"
#include "base/Translated.hpp"

namespace kestrelfen {

class Preferences;

/// Why the timer stands still.
enum class PauseReason {
    manual,
    systemSleep,
    screenLocked,
    displaySleep,
    userIdle,
    meeting,
    videoPlayback,
    screenSharing,
    focusApp,
};

template <>
struct EnumerationTable<PauseReason> {
    static constexpr std::array<EnumerationRow<PauseReason>, 9> rows{{
        {PauseReason::manual, toTranslate("manual")},
        {PauseReason::systemSleep, toTranslate("systemSleep")},
        {PauseReason::screenLocked, toTranslate("screenLocked")},
        {PauseReason::displaySleep, toTranslate("displaySleep")},
        {PauseReason::userIdle, toTranslate("userIdle")},
        {PauseReason::meeting, toTranslate("meeting")},
        {PauseReason::videoPlayback, toTranslate("videoPlayback")},
        {PauseReason::screenSharing, toTranslate("screenSharing")},
        {PauseReason::focusApp, toTranslate("focusApp")},
    }};
};

constexpr bool isAutomatic(PauseReason reason) {
    return reason != PauseReason::manual;
}

/// Whether the pause came from what the person is doing at the machine.
constexpr bool isSmart(PauseReason reason) {
    return reason == PauseReason::meeting || reason == PauseReason::videoPlayback ||
           reason == PauseReason::screenSharing || reason == PauseReason::focusApp;
}

/// The key of the preference that allows this kind of pause; empty where none says yes or no to it.
std::string_view enableKey(PauseReason reason);

/// Whether the person allows this kind of pause.
bool isEnabledInSettings(PauseReason reason, const Preferences& preferences);

/// The kind of the same name.
PauseKind pauseKind(PauseReason reason);

} // namespace kestrelfen
