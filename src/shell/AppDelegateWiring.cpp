#include "core/Settings.hpp"
#include "shell/AppDelegate.hpp"

namespace kestrelfen {

void AppDelegate::wireScreenTime() {
    engine().onTick = lifeline_.guard([this](Date date) { handleTick(date); });
    engine().onDayRollover = lifeline_.guard([this](Date dayStart) {
        queueTask([this, dayStart] {
            screenTime().handleRollover(dayStart,
                                        lifeline_.guard([this, dayStart] { pruneHistoryIfDue(dayStart); }));
        });
    });
    engine().onWorkIntervalCompleted = lifeline_.guard([this] { creditActiveTask(); });
}

void AppDelegate::handleTick(Date date) {
    screenTime().sample(date, engine().state(), engine().config().idleThreshold);
    postDailySummaryIfDue(date);
}

void AppDelegate::postDailySummaryIfDue(Date date) {
    if (dailySummary_.claim(date)) {
        dailySummary_.post({.breaksCompleted = engine().breaksCompletedToday(),
                            .breaksSkipped = engine().breaksSkippedToday(),
                            .activeSeconds = screenTime().todayActiveSeconds()});
    }
}

void AppDelegate::creditActiveTask() {
    const auto task = Settings::activeTaskID(platform_.preferences);
    if (!task) {
        return;
    }
    queueTask([this, task] {
        if (store_) {
            store_->creditBreak(*task, {});
        }
    });
}

/// Hears of one change and is then armed again from the queue; the second look catches a change that fell
/// between the first and the arming.
void AppDelegate::observeEngineState() {
    stateObservation_ = engine().observeState(lifeline_.guard([this] {
        stateObservation_.cancel();
        queueTask([this] {
            syncOverlayPresentation();
            observeEngineState();
            syncOverlayPresentation();
        });
    }));
}

void AppDelegate::syncOverlayPresentation() {
    switch (engine().state().phase()) {
    case BreakState::Case::working:
    case BreakState::Case::idle:
        overlays().hideWarning();
        removeBreakWindows();
        return;
    case BreakState::Case::onBreak:
        overlays().hideWarning();
        showBreakWindows();
        return;
    case BreakState::Case::paused:
        overlays().hideWarning();
        removeBreakWindows();
        queueTask([this] { screenTime().flush({}); });
        return;
    case BreakState::Case::preBreakWarning:
        if (Settings::boolean(platform_.preferences, "warningHUDEnabled", true)) {
            overlays().showWarning();
        } else {
            overlays().hideWarning();
        }
        removeBreakWindows();
        return;
    }
}

void AppDelegate::showBreakWindows() {
    if (overlays().breakWindows().empty()) {
        overlays().buildBreakWindows();
        overlays().observeScreenChanges();
    }
}

void AppDelegate::removeBreakWindows() {
    if (!overlays().breakWindows().empty()) {
        overlays().stopObservingScreenChanges();
        overlays().tearDownBreakWindows();
    }
}

} // namespace kestrelfen
