#pragma once

#include "base/Enumeration.hpp"

namespace kestrelfen {

/// What a stored pause was for. The persisted twin of PauseReason: same cases, same order, same raw values.
enum class PauseKind {
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
struct EnumerationTable<PauseKind> {
    static constexpr std::array<EnumerationRow<PauseKind>, 9> rows{{
        {PauseKind::manual, "manual"},
        {PauseKind::systemSleep, "systemSleep"},
        {PauseKind::screenLocked, "screenLocked"},
        {PauseKind::displaySleep, "displaySleep"},
        {PauseKind::userIdle, "userIdle"},
        {PauseKind::meeting, "meeting"},
        {PauseKind::videoPlayback, "videoPlayback"},
        {PauseKind::screenSharing, "screenSharing"},
        {PauseKind::focusApp, "focusApp"},
    }};
};

} // namespace kestrelfen
