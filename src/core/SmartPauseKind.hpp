#pragma once

#include "core/PauseReason.hpp"

namespace kestrelfen {

/// What the person can be found doing that is not to be interrupted, in order of priority.
enum class SmartPauseKind { meetings, video, screenSharing, focusApps };

template <>
struct EnumerationTable<SmartPauseKind> {
    static constexpr std::array<EnumerationRow<SmartPauseKind>, 4> rows{{
        {SmartPauseKind::meetings, "meetings"},
        {SmartPauseKind::video, "video"},
        {SmartPauseKind::screenSharing, "screenSharing"},
        {SmartPauseKind::focusApps, "focusApps"},
    }};
};

constexpr PauseReason pauseReason(SmartPauseKind kind) {
    switch (kind) {
    case SmartPauseKind::meetings:
        return PauseReason::meeting;
    case SmartPauseKind::video:
        return PauseReason::videoPlayback;
    case SmartPauseKind::screenSharing:
        return PauseReason::screenSharing;
    case SmartPauseKind::focusApps:
        return PauseReason::focusApp;
    }
    return PauseReason::focusApp;
}

} // namespace kestrelfen
