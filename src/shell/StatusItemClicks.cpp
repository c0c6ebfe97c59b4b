#include "shell/StatusItemClicks.hpp"

#include "platform/ports/Log.hpp"
#include "platform/ports/MainQueue.hpp"
#include "platform/ports/StatusBarButton.hpp"

namespace kestrelfen {

void StatusItemClicks::enableRightClick(const Platform& platform, int retries, double delay) {
    const Logger log(platform.log, "StatusItem");
    if (platform.statusBarButton.exists()) {
        platform.statusBarButton.answerRightClicks();
        log.info("right click enabled on the status item");
        return;
    }
    if (retries < 1) {
        log.error("status bar button never appeared; right click stays inert");
        return;
    }
    platform.mainQueue.postAfter(
        delay, [platform, retries, delay] { enableRightClick(platform, retries - 1, delay); });
}

} // namespace kestrelfen
