#include "ui/AppListEditor/SmartPauseWords.hpp"

#include "base/Translated.hpp"

namespace kestrelfen {

SmartPauseWords SmartPauseWords::of(SmartPauseKind kind) {
    switch (kind) {
    case SmartPauseKind::meetings:
        return {translated("Meetings or Calls"), translated("Apps whose microphone use counts as a call"),
                translated("Pauses while an app in the list is using the microphone")};
    case SmartPauseKind::video:
        return {translated("Video Playback"), translated("Apps whose audio counts as video playback"),
                translated("Pauses while an app in the list is playing audio")};
    case SmartPauseKind::screenSharing:
        return {translated("Screen Recording or Sharing"),
                translated("Apps that only run while capturing — not ones that idle in the menu bar"),
                translated("Pauses while a capture process is running")};
    case SmartPauseKind::focusApps:
        return {translated("Deep Focus Apps"), translated("Apps that mean you're in deep focus"),
                translated("Pauses while one of your chosen apps is frontmost")};
    }
    return {};
}

} // namespace kestrelfen
