#include "ui/AppListEditor/SmartPauseWords.hpp"

namespace kestrelfen {

SmartPauseWords SmartPauseWords::of(SmartPauseKind kind) {
    switch (kind) {
    case SmartPauseKind::meetings:
        return {"Meetings or Calls", "Apps whose microphone use counts as a call",
                "Pauses while an app in the list is using the microphone"};
    case SmartPauseKind::video:
        return {"Video Playback", "Apps whose audio counts as video playback",
                "Pauses while an app in the list is playing audio"};
    case SmartPauseKind::screenSharing:
        return {"Screen Recording or Sharing",
                "Apps that only run while capturing — not ones that idle in the menu bar",
                "Pauses while a capture process is running"};
    case SmartPauseKind::focusApps:
        return {"Deep Focus Apps", "Apps that mean you're in deep focus",
                "Pauses while one of your chosen apps is frontmost"};
    }
    return {};
}

} // namespace kestrelfen
